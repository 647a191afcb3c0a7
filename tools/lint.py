#!/usr/bin/env python3
"""lint.py BUILD [SOURCE...]

Runs clang-tidy on the sources that changed since they last passed, or whose headers, flags or settings did: on all of
them if nothing is known, and on all that are named. BUILD is a folder that has just been built.

Headers take most of the time. So sources are read together, one text after another, as if they were one source, with
the flags of all. What clang-tidy says about a group does not count: if it objects, the halves of the group are read,
and in the end single sources, as they are.
"""

import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile
import threading

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ("src", "tests", "tools", "bench")
SETTINGS = [ROOT / ".clang-tidy", *(ROOT / folder / ".clang-tidy" for folder in FOLDERS)]
GROUP = 64  # sources in a group, at most


class Source:
    """A source, as the compiler was called for it."""

    def __init__(self, entry):
        self.path = pathlib.Path(entry["file"])
        self.objects = []  # by whose records its dependencies are known: its own, and that of a precompiled header
        self.flags = []
        words = iter(shlex.split(entry["command"]))
        for word in words:
            if word == "-o":
                self.objects.append(next(words))
            elif word == "-include":  # only the compiler that made it can read a precompiled header
                self.objects.append(os.path.relpath(next(words), entry["directory"]) + ".gch")
            elif word.startswith("-") and word not in ("-c", "-Winvalid-pch"):
                self.flags.append(word + next(words) if word == "-isystem" else word)

    def key(self, made_from, common):
        """What the findings in it depend on; none where that is not known."""
        if any(name not in made_from for name in self.objects):
            return None
        files = {str(self.path)}.union(*(made_from[name] for name in self.objects))
        text = "\n".join([common, *self.flags, *(f"{digest(file)} {file}" for file in sorted(files))])
        return hashlib.sha256(text.encode()).hexdigest()


@functools.cache
def digest(file):
    return hashlib.sha256(pathlib.Path(file).read_bytes()).hexdigest()


def read_sources(build):
    """All sources of the project."""
    commands = {entry["file"]: entry for entry in json.loads((build / "compile_commands.json").read_text())}
    files = sorted(str(file) for folder in FOLDERS for file in (ROOT / folder).rglob("*.cpp"))
    if unknown := [file for file in files if file not in commands]:
        sys.exit(f"{build} does not build {', '.join(unknown)}: add it to a CMakeLists.txt, or delete it.")
    return [Source(commands[file]) for file in files]


def read_dependencies(build):
    """For each object that is up to date, the files that it was made from."""
    listing = subprocess.run(["ninja", "-C", build, "-t", "deps"], stdout=subprocess.PIPE, check=True, text=True)
    result, files = {}, []
    for line in listing.stdout.splitlines():
        if line.startswith(" "):
            files.append(os.path.normpath(build / line.strip()))
        elif line.endswith("(VALID)"):
            files = result.setdefault(line.split(":")[0], [])
        else:
            files = []
    return result


def clang_tidy(file, flags, *options):
    """Whether clang-tidy finds nothing, and what it says."""
    run = subprocess.run(
        ["clang-tidy", "--quiet", *options, str(file), "--", *flags],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    # clang-tidy counts the warnings that it suppressed in other people's headers.
    said = re.sub(r"^\d+ (warning|error)s?( and \d+ errors?)? generated\.\n", "", run.stdout, flags=re.MULTILINE)
    return run.returncode == 0, said


def names_in(text):
    """Types and constants of a source whose names could mean something else in another one."""
    return set(re.findall(r"^(?:struct |class |enum class |int (?=main\())(\w+)\b(?!::)(?!.*;$)", text, flags=re.MULTILINE)
        + re.findall(r"^const(?:expr)? [^(=\n]*\b(\w+)(?: =|\{|\[)", text, flags=re.MULTILINE))


def stands_alone(source):
    """Whether others in a group could hide a finding in it: one include or using declaration too many."""
    code = re.sub(r"//.*", "", source.path.read_text())
    includes = re.findall(r"^#include (\S+)", code, flags=re.MULTILINE)
    used = re.findall(r"^\s*using [\w:]+::(\w+);", code, flags=re.MULTILINE)
    return len(includes) > len(set(includes)) or any(len(re.findall(rf"\b{name}\b", code)) == 1 for name in used)


def joined(group):
    """The texts of a group as one, in which names that several of them have differ."""
    texts = [source.path.read_text() for source in group]
    words = [set(re.findall(r"\w+", text)) for text in texts]
    result = []
    for index, (source, text) in enumerate(zip(group, texts)):
        for name in names_in(text) & set.union(*words[:index], *words[index + 1:]):
            text = re.sub(rf"(?<!\.)\b{name}\b(?!\.(?:h|cpp|moc)\b)", f"{name}_{index}", text)
        here = source.path.parent
        result.append(re.sub(
            r'^#include "(.*)"',
            lambda include: f'#include "{here / include[1]}"' if (here / include[1]).exists() else include[0],
            text, flags=re.MULTILINE))
    return "".join(result)


def folder_of(source):
    """The folder of the project that a source is in: that of its settings."""
    return source.path.relative_to(ROOT).parts[0]


def pass_together(group, folder):
    """Whether a group passes, read as one source."""
    with tempfile.NamedTemporaryFile("w", dir=folder / folder_of(group[0]), suffix=".cpp") as file:
        file.write(joined(group))
        file.flush()
        # Each text has its own includes; stands_alone looks for those that a text has twice. A main that has been
        # renamed need not return a value.
        flags = {flag.split("=")[0]: flag for source in group for flag in source.flags}  # one value of each macro
        return clang_tidy(
            file.name, flags.values(), "--checks=-readability-duplicate-include", "--extra-arg=-Wno-return-type")[0]


def grouped(sources):
    """The sources in groups of one folder, the largest groups first."""
    alike = {}
    for source in sources:
        alike.setdefault(source if stands_alone(source) else folder_of(source), []).append(source)
    groups = []
    for members in alike.values():
        parts = -(-len(members) // GROUP)
        size = -(-len(members) // parts)
        groups += [members[start:start + size] for start in range(0, len(members), size)]
    return sorted(groups, key=len, reverse=True)


def copy_settings(folder):
    """clang-tidy looks for the settings in the folder of a source, and in those above."""
    for settings in SETTINGS:
        copy = folder / settings.relative_to(ROOT)
        copy.parent.mkdir(parents=True, exist_ok=True)
        copy.write_text(settings.read_text() if settings.exists() else "InheritParentConfig: true\n")


class Stamps:
    """The sources that passed, each with what its findings depended on."""

    def __init__(self, folder):
        self.file = folder / "passed.json"
        self.keys = json.loads(self.file.read_text()) if self.file.exists() else {}
        self.lock = threading.Lock()

    def add(self, keys):
        with self.lock:
            self.keys.update(keys)
            new = self.file.with_suffix(".new")
            new.write_text(json.dumps(self.keys))
            new.replace(self.file)


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__.splitlines()[0])
    build = pathlib.Path(sys.argv[1]).resolve()
    named = {pathlib.Path(name).resolve() for name in sys.argv[2:]}

    version = subprocess.run(["clang-tidy", "--version"], stdout=subprocess.PIPE, check=True, text=True).stdout
    common = "\n".join([version, digest(__file__), *(digest(settings) for settings in SETTINGS if settings.exists())])
    made_from = read_dependencies(build)
    folder = build / "lint"
    copy_settings(folder)
    stamps = Stamps(folder)
    sources = read_sources(build)
    keys = {source: source.key(made_from, common) for source in sources}
    if named:
        wanted = [source for source in sources if source.path in named]
    else:
        wanted = [source for source in sources if not keys[source] or stamps.keys.get(str(source.path)) != keys[source]]
    print(f"{len(wanted)} of {len(sources)} sources to read.", flush=True)

    def read(group):
        """How many sources of a group have findings."""
        if len(group) == 1:
            passed, said = clang_tidy(group[0].path, group[0].flags)
            print(said, end="", flush=True)
        else:
            passed = pass_together(group, folder)
        if passed:
            stamps.add({str(source.path): keys[source] for source in group if keys[source]})
            return 0
        half = len(group) // 2
        return 1 if half == 0 else read(group[:half]) + read(group[half:])

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        failed = sum(pool.map(read, grouped(wanted)))
    if failed:
        sys.exit(f"clang-tidy finds something in {failed} of them.")


if __name__ == "__main__":
    main()
