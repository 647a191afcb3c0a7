"""Builds mutants: one source, or one header with all that includes it, as programs of their own beside the build."""

import json
import os
import re
import resource
import shlex
import subprocess
import tempfile
import threading
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent.parent
SOURCES = ROOT / "src"

# What panels read, read once. What a mutant changes is never in it.
PANEL_HEADERS = '#include "forms/Controls.h"\n#include "forms/ControlArray.h"\n#include "forms/Runtime.h"\n' \
                '#include "kit/Conversions.h"\n#include "kit/Maths.h"\n#include "kit/Table.h"\n#include "kit/Text.h"\n' \
                '#include "kit/TraitementMultiplicateur.h"\n'
SYSTEM_HEADERS = "".join(f"#include <{name}>\n" for name in (
    "algorithm", "array", "cmath", "compare", "functional", "memory", "optional", "string", "string_view",
    "unordered_map", "utility", "vector"))
TEST_HEADERS = SYSTEM_HEADERS + "#include <gtest/gtest.h>\n"


def limits():
    """A compiler may need more than there is, and a mutant may never end."""
    for what, limit in ((resource.RLIMIT_CPU, 60), (resource.RLIMIT_AS, 3 << 30), (resource.RLIMIT_CORE, 0)):
        resource.setrlimit(what, (limit, limit))


class CompileError(Exception):
    """A source that does not compile: the lines that the compiler mentions, by file."""

    def __init__(self, said):
        super().__init__(said)
        self.said = said

    def lines(self, path):
        return {int(line) for line in re.findall(re.escape(str(path)) + r":(\d+)", self.said)}


class Build:
    """A finished build folder, whose libraries the mutants are linked with."""

    def __init__(self, folder):
        self.folder = Path(folder).resolve()
        self.commands = {}
        for entry in json.loads((self.folder / "compile_commands.json").read_text()):
            words = shlex.split(entry["command"])
            self.commands[Path(entry["file"])] = (words, self.folder / words[words.index("-o") + 1])
        self.scratch = tempfile.TemporaryDirectory(prefix="mutants-")
        self.headers = {}
        self.lock = threading.Lock()

    def flags(self, source):
        """The compiler, and the build's flags that change what a program does; the fastest compile otherwise."""
        words, _ = self.commands[source]
        kept = [word for word in words[1:] if word.startswith(("-I", "-D", "-isystem", "-std", "-ffp"))
                and "FORTIFY" not in word]
        return words[0], kept + ["-O0", "-w", "-Wno-narrowing"]

    def precompiled(self, compiler, flags, text):
        key = (compiler, tuple(flags), text)
        with self.lock:
            if key not in self.headers:
                header = Path(self.scratch.name) / f"headers{len(self.headers)}.h"
                header.write_text(f'#include "{HERE}/Mutant.h"\n' + text)
                subprocess.run([compiler, *flags, "-x", "c++-header", str(header), "-o", f"{header}.gch"], check=True)
                self.headers[key] = header
            return self.headers[key]

    def own(self, program):
        """The sources of a program of the build itself, without its libraries, and their objects."""
        return {source: obj for source, (_, obj) in self.commands.items()
                if f"/{program}.dir/" in str(obj) and obj.suffix == ".o"}

    def libraries(self):
        return [self.folder / "tools/pilote/libondelis_pilote.a",
                *(self.folder / f"src/libondelis_{name}.a" for name in ("shell", "panels", "forms", "kit"))]

    def readers(self, header, floors, program):
        """The sources of these floors, and of a program, that read a header, by what the build noted."""
        said = subprocess.run(["ninja", "-C", str(self.folder), "-t", "deps"], capture_output=True, text=True,
                              check=True).stdout
        found = set()
        for part in said.split("\n\n"):
            if any(os.path.normpath(self.folder / word) == str(header)
                   for word in part.split() if word.endswith(header.name)):
                found.add(self.folder / part.split(":", 1)[0])
        folders = tuple(f"{SOURCES / name}/" for name in floors)
        return sorted(source for source, (_, obj) in self.commands.items()
                      if obj in found and (str(source).startswith(folders) or source in self.own(program)))


class Builder:
    """A private folder for the mutants of one file."""

    def __init__(self, build):
        self.build = build
        self.folder = Path(tempfile.mkdtemp(dir=build.scratch.name))

    def compile(self, source, changed, shared):
        """Compiles a source with the changed texts in place of the files of these paths; gives the object."""
        compiler, flags = self.build.flags(source)
        if not shared and all(path.suffix == ".h" for path in changed):
            flags = [*flags, "-DONDELIS_MUTANTS_OF_A_FLOOR"]
        for path, text in changed.items():
            copy = self.folder / path.relative_to(SOURCES)
            copy.parent.mkdir(parents=True, exist_ok=True)
            copy.write_text(text)
        texts = PANEL_HEADERS if shared else SYSTEM_HEADERS if source.is_relative_to(SOURCES) else TEST_HEADERS
        header = self.build.precompiled(compiler, flags, texts)
        read = self.with_constructor(source, self.folder / source.relative_to(SOURCES)) if source in changed else source
        obj = self.folder / (str(source.relative_to(ROOT)).replace("/", "-") + ".o")
        done = subprocess.run([compiler, f"-I{self.folder}", *flags, "-include", str(header), "-c", str(read),
                               "-o", str(obj)], capture_output=True, text=True, check=False, preexec_fn=limits)
        if done.returncode:
            raise CompileError(done.stderr)
        return obj

    def with_constructor(self, source, read):
        """A panel is made by its constructor in its header, which the panel's own source does not use: this one does."""
        form = source.with_suffix(".h")
        name = form.exists() and re.search(r"class (\w+) final : public", form.read_text())
        if not name or f"explicit {name[1]}(Runtime& runtime)" not in form.read_text():
            return read
        wrapper = self.folder / f"{source.stem}-made.cpp"
        wrapper.write_text(f'#include "{read}"\nnamespace ondelis {{\n'
                           f"[[gnu::used]] auto* made(Runtime& runtime) {{ return new {name[1]}{{runtime}}; }}\n}}\n")
        return wrapper

    def link(self, compiler, program, objects):
        """Links a program of the build; the objects, by source, come in place of its own, and before the others: of
        what is inline, the first one counts."""
        path = self.folder / program
        others = [obj for source, obj in self.build.own(program).items() if source not in objects]
        extra = [] if program == "pilote" else ["-lgtest_main", "-lgtest"]
        done = subprocess.run([compiler, "-o", str(path), *map(str, objects.values()), *map(str, others),
                               *map(str, self.build.libraries()), *extra], capture_output=True, text=True, check=False)
        if done.returncode:
            raise CompileError(done.stderr)
        return path
