#!/usr/bin/env python3
"""Changes one token of a source at a time, and reports which changes no scenario and no test notices.

    mutants.py BUILD [FILE...] [--number N] [--sample N] [--seed N]

BUILD is the folder of a finished release build. Without FILE all sources of src/kit, forms, panels and shell are
tried, a panel's header with its source. Survivors are printed; those in equivalent.toml are not tried.
"""

import argparse
import os
import random
import re
import resource
import subprocess
import sys
import tomllib
from collections import Counter, defaultdict
from concurrent.futures import ThreadPoolExecutor, as_completed
from dataclasses import dataclass
from functools import cache
from pathlib import Path

import sites
from builder import HERE, ROOT, SOURCES, CompileError, Build, Builder

FLOORS = ("kit", "forms", "panels", "shell")
SCENARIOS = ROOT / "tests/scenarios"
# A constant that the compiler computes: a variable, not a function.
CONSTANT = re.compile(r"\b((?:static )?)(?:inline )?constexpr(?= [\w:<>, *]+? \w+(?:\[\w*\])?(?: = |\{))")
SECONDS = 5  # of processor time; a play takes a fraction of one, a mutant may never end


@dataclass
class Mutant:
    path: Path
    change: sites.Change
    number: int

    def describe(self, texts):
        line = texts[self.path].split("\n")[self.change.line - 1].strip()
        return f"{self.path.relative_to(ROOT)}:{self.change.line}: {self.change.old} -> {self.change.new}\n    {line}"


@dataclass
class Result:
    name: str
    killed: int = 0
    listed: int = 0
    stillborn: int = 0
    survivors: list = None


@cache
def lines_of(name):
    return {line.strip() for line in (SOURCES / name).read_text(encoding="utf-8").splitlines()}


def floor_of(path):
    return path.relative_to(SOURCES).parts[0]


class Equivalents:
    """The changes that nobody can see, and why."""

    def __init__(self):
        self.entries = tomllib.loads((HERE / "equivalent.toml").read_text(encoding="utf-8"))["equivalent"]
        self.used = set()

    def has(self, path, line, change):
        name, words = str(path.relative_to(SOURCES)), f"{change.old} -> {change.new}"
        for entry in self.entries:
            if entry["file"] == name and line in entry["lines"] and words in entry.get("changes", [words]):
                self.used.add((name, line))
                return True
        return False

    def stale(self, paths):
        """What is listed and stands nowhere, and what is listed for these files and no longer matches any change."""
        names = {str(path.relative_to(SOURCES)) for path in paths}
        listed = {(entry["file"], line) for entry in self.entries for line in entry["lines"]}
        return sorted((name, line) for name, line in listed - self.used if name in names or line not in lines_of(name))


class Trial:
    """All that is tried on one file, or on a panel's source with its header."""

    def __init__(self, build, paths, units):
        self.build, self.paths, self.units = build, paths, units  # units: by program, what is compiled for it
        self.floor = floor_of(paths[0])
        self.shared = self.floor == "panels"
        self.texts = {path: path.read_text(encoding="utf-8") for path in paths}
        self.result = Result("/".join(paths[0].relative_to(SOURCES).with_suffix("").parts), survivors=[])
        self.builder = Builder(build)
        own = sorted(SCENARIOS.rglob(f"{paths[0].stem}.scn")) + sorted(SCENARIOS.rglob(f"{paths[0].stem}-*.scn"))
        others = sorted(set(SCENARIOS.rglob("*.scn")) - set(own))
        self.plays = [list(map(str, files)) for files in (own, others) if files]

    def choose(self, equivalents, number, dice):
        """At most that many changes, at random; all of them without a number."""
        found = []
        for path in self.paths:
            lines = self.texts[path].split("\n")
            for change in sites.changes(self.texts[path], path.suffix == ".h" and self.floor != "kit"):
                if equivalents.has(path, lines[change.line - 1].strip(), change):
                    self.result.listed += 1
                else:
                    if not self.shared and path.suffix == ".h" and CONSTANT.search(lines[change.line - 1]):
                        change.before = None  # the compiler computes it: beside the original it would never be on
                    found.append((path, change))
        if number is not None and len(found) > number:
            found = [found[place] for place in sorted(dice.sample(range(len(found)), number))]
        self.mutants = [Mutant(path, change, place + 1) for place, (path, change) in enumerate(found)]

    def run(self):
        alone = [mutant for mutant in self.mutants if mutant.change.before is None]
        rounds = defaultdict(list)
        taken = Counter()
        for mutant in self.mutants:
            if mutant.change.before is None:
                continue
            operator = mutant.change.before == ""
            key = (mutant.path, mutant.change.start)
            rounds[taken[key] if operator else 0].append(mutant)
            taken[key] += operator
        for together in rounds.values():
            alone += self.play_together(together)
        for mutant in alone:
            self.play_alone(mutant)
        if self.result.stillborn == len(self.mutants):
            self.check_build()
        return self.result

    def check_build(self):
        """No change compiles: is it because nothing does?"""
        try:
            list(self.programs({}))
        except CompileError as broken:
            raise SystemExit(f"{self.result.name}: without a change it does not compile\n{broken.said}") from broken

    def play_together(self, mutants):
        """Plays many mutants in one build, where the environment chooses one; returns those that do not compile so."""
        left = []
        while True:
            try:
                programs = list(self.programs(self.instrumented(mutants)))
                break
            except CompileError as broken:
                kept = [mutant for mutant in mutants
                        if mutant.change.line not in broken.lines(self.copy(mutant.path))]
                if len(kept) == len(mutants) > 1:
                    half = len(mutants) // 2
                    return left + self.play_together(mutants[:half]) + self.play_together(mutants[half:])
                left += [mutant for mutant in mutants if mutant not in kept] if len(mutants) > 1 else mutants
                if not kept or len(mutants) == 1:
                    return left
                mutants = kept
        if self.killed(programs, 0):
            raise SystemExit(f"{self.result.name}: without a change something fails already")
        for mutant in mutants:
            self.count(mutant, self.killed(programs, mutant.number))
        return left

    def play_alone(self, mutant):
        text, change = self.texts[mutant.path], mutant.change
        try:
            programs = self.programs({mutant.path: text[:change.start] + change.new + text[change.end:]})
            self.count(mutant, self.killed(programs, 0))
        except CompileError:
            self.result.stillborn += 1

    def instrumented(self, mutants):
        texts = {}
        for path, text in self.texts.items():
            inserts = []
            for mutant in mutants:
                change = mutant.change
                if mutant.path == path:
                    number, length = str(mutant.number), change.end - change.start
                    inserts.append((change.start, 1, -length, -mutant.number, change.before.replace("@", number)))
                    inserts.append((change.end, 0, length, mutant.number, change.behind.replace("@", number)))
            for place, *_, words in sorted(inserts, reverse=True):
                text = text[:place] + words + text[place:]
            if self.shared or path.suffix == ".cpp":
                text = CONSTANT.sub(r"\1inline const" if path.suffix == ".h" else r"\1const", text)
            texts[path] = text
        return texts

    def copy(self, path):
        return self.builder.folder / path.relative_to(SOURCES)

    def programs(self, texts):
        """The programs with these texts in place of their files, each compiled and linked when it is asked for."""
        texts, objects = {**self.texts, **texts}, {}
        for program, units in self.units.items():
            for unit in units:
                objects[unit] = objects.get(unit) or self.builder.compile(unit, texts, self.shared)
            compiler, _ = self.build.flags(units[0])
            yield self.builder.link(compiler, program, {unit: objects[unit] for unit in units})

    def killed(self, programs, number):
        return any(fails(command, number) for program in programs for command in self.commands(program))

    def commands(self, program):
        if program.name != "pilote":
            return [[program, "--gtest_brief=1", "--gtest_fail_fast"]]
        return [[program, *files] for files in self.plays]

    def count(self, mutant, killed):
        if killed:
            self.result.killed += 1
        else:
            self.result.survivors.append(mutant.describe(self.texts))


def fails(command, number):
    def limit():
        resource.setrlimit(resource.RLIMIT_CPU, (SECONDS, SECONDS))
        resource.setrlimit(resource.RLIMIT_AS, (2 << 30, 2 << 30))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    done = subprocess.run(list(map(str, command)), stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL, preexec_fn=limit, check=False, timeout=600,
                          env={**os.environ, "ONDELIS_MUTANT": str(number)})
    return done.returncode != 0


def trial(build, paths):
    floor = floor_of(paths[0])
    test = f"test_{floor}"
    source = next((path for path in paths if path.suffix == ".cpp"), None)
    header = next((path for path in paths if path.suffix == ".h"), None)
    if header and not (source and "final : public" in header.read_text(encoding="utf-8")):
        # A base class, or functions: what is inline stands in the objects of all that read it.
        played = build.readers(header, FLOORS, "pilote")
        tested = build.readers(header, [floor], test)
    else:
        played = tested = [source]
    if floor != "panels":  # its tests are quicker than the scenarios
        return Trial(build, paths, {program: units for program, units in ((test, tested), ("pilote", played)) if units})
    includes = f'/{paths[0].stem}.h"'
    if any(includes in path.read_text(encoding="utf-8") for path in (ROOT / "tests/panels").glob("*.cpp")):
        return Trial(build, paths, {"pilote": played, test: tested})
    return Trial(build, paths, {"pilote": played})


def all_files():
    """What is tried together: a panel's header with its source, every other file alone."""
    files = sorted(path for floor in FLOORS for path in (SOURCES / floor).rglob("*") if path.suffix in (".h", ".cpp"))
    together = []
    for path in files:
        source = path.with_suffix(".cpp")
        if path.suffix == ".h" and floor_of(path) == "panels" and source in files:
            continue
        header = path.with_suffix(".h")
        both = floor_of(path) == "panels" and path.suffix == ".cpp" and header in files
        together.append([path, header] if both else [path])
    return together


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=Path)
    parser.add_argument("files", nargs="*", type=Path)
    parser.add_argument("--number", type=int, help="of changes a file; all of them where it is not given")
    parser.add_argument("--sample", type=int, help="of files, by chance")
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()

    dice = random.Random(options.seed)
    files = all_files()
    if options.files:
        wanted = {path.resolve() for path in options.files}
        files = [paths for paths in files if wanted & set(paths)]
    if options.sample is not None:
        files = dice.sample([paths for paths in files if paths[0].suffix == ".cpp"], options.sample)
    build, equivalents = Build(options.build), Equivalents()
    trials = [trial(build, paths) for paths in files]
    for one in trials:
        one.choose(equivalents, options.number, dice)
    sums, survivors = defaultdict(Counter), 0
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        runs = [pool.submit(one.run) for one in trials if one.mutants]
        for done in as_completed(runs):
            result = done.result()
            left = len(result.survivors)
            print(f"{result.name}: {result.killed} killed, {left} survived, {result.listed} listed, "
                  f"{result.stillborn} do not compile", *result.survivors, sep="\n  ", flush=True)
            survivors += left
            sums[str(Path(result.name).parent)].update(
                killed=result.killed, survived=left, listed=result.listed, tried=result.killed + left)
    for folder, sum_ in sorted(sums.items()):
        print(f"{folder}: {sum_['tried']} tried, {sum_['killed']} killed, {sum_['survived']} survived, "
              f"{sum_['listed']} listed")
    stale = equivalents.stale([path for paths in files for path in paths])
    for name, line in stale:
        print(f"equivalent.toml: {name} has no such change: {line}")
    return 1 if survivors or stale else 0


if __name__ == "__main__":
    sys.exit(main())
