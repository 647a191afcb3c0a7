"""What the tests of the program on a desktop have in common."""

from __future__ import annotations

import unittest
from pathlib import Path

from desktop import Desktop, Program
from person import Person


class DesktopCase(unittest.TestCase):
    """A test with a desktop, a program and a person of its own."""

    desktop: Desktop
    program: Program
    person: Person

    def start(self, file: Path | None = None, size: str = "1920x1080", **environment: str) -> None:
        self.desktop = Desktop(size)
        self.addCleanup(self.desktop.close)
        self.program = Program(self.desktop, file, **environment)
        self.addCleanup(self.program.close)
        self.person = Person(self.desktop, self.program)

    def assert_ends(self, status: int) -> None:
        """The program ends by itself, with that status and without any output."""
        self.assertEqual(self.program.exit_status(), status)
        self.assertEqual(self.program.error_output(), "")
