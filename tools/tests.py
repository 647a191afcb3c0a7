#!/usr/bin/env python3
"""tests.py PRESET

Runs the tests of a build, except those that have passed and for which nothing has changed since: what they run, what
that reads, and the packages of the system. Without a record of earlier runs it runs all of them.
"""

import functools
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent
SCENARIOS = ROOT / "tests" / "scenarios"


@functools.cache
def digest(file):
    return hashlib.sha256(pathlib.Path(file).read_bytes()).hexdigest()


def said_by(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, check=True, text=True, cwd=ROOT).stdout


def data():
    """What the tests may read: all files of the project but the sources, which are in the programs, the scenarios,
    which the tests name, and pages that are for people alone."""
    files = said_by("git", "ls-files", "--cached", "--others", "--exclude-standard").splitlines()
    return "\n".join(
        f"{digest(ROOT / file)} {file}" for file in sorted(files)
        if (ROOT / file).is_file() and (ROOT / file).suffix not in (".cpp", ".h", ".scn")
        and not re.fullmatch(r"[^/]*\.md|docs/[^/]*\.md", file))


def key(test, common):
    """What the outcome of a test depends on."""
    words = json.dumps([test["command"], test["properties"]])
    files = {file for file in re.findall(r"/[^\"=:;\\ ]+", words) if os.path.isfile(file)}
    return hashlib.sha256("\n".join([common, words, *(digest(file) for file in sorted(files))]).encode()).hexdigest()


def passed_in(report):
    """The names of the tests that a report of CTest calls passed."""
    cases = xml.etree.ElementTree.parse(report).getroot().iter("testcase")
    return {case.get("name") for case in cases if case.get("status") == "run"}


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__.splitlines()[0])
    ctest = ["ctest", "--preset", sys.argv[1]]
    folder = ROOT / "build" / sys.argv[1]
    tests = json.loads(said_by(*ctest, "--show-only=json-v1"))["tests"]
    stamps = folder / "passed.json"
    known = json.loads(stamps.read_text()) if stamps.exists() else {}

    common = data() + said_by("dpkg-query", "--show")
    keys = {test["name"]: key(test, common) for test in tests}
    numbers = [number for number, test in enumerate(tests, 1)
               if known.get(test["name"]) != keys[test["name"]]]
    print(f"{len(numbers)} of {len(tests)} tests to run.", flush=True)
    if not numbers:
        return
    chosen = folder / "chosen-tests"
    chosen.write_text(",".join(["0", "0", "0", *map(str, numbers)]) + "\n")
    report = folder / "tests.xml"
    report.unlink(missing_ok=True)
    # One more than there are processors: the tests on a real desktop mostly wait.
    status = subprocess.run(
        [*ctest, f"-j{os.cpu_count() + 1}", "-I", chosen, "--output-junit", report], cwd=ROOT, check=False).returncode
    passed = passed_in(report)
    stamps.write_text(json.dumps({name: key for name, key in keys.items() if name in passed or known.get(name) == key}))
    sys.exit(status)


if __name__ == "__main__":
    main()
