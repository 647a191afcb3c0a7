"""Keys that come faster than windows open: none is lost, and what is typed replaces what was there."""

from __future__ import annotations

import unittest

from desktop import Desktop, Program, wait_for
from person import Person, Role


class Bursts(unittest.TestCase):
    def test_a_number_follows_its_entry_at_once(self) -> None:
        for manager in ["openbox", "xfwm4"]:
            with self.subTest(manager):
                desktop = Desktop(manager=manager)
                self.addCleanup(desktop.close)
                program = Program(desktop)
                self.addCleanup(program.close)
                person = Person(desktop, program)
                for burst in range(25):
                    desktop.xdotool("key", "--delay", "0", "F10", "Down", *["Right"] * 5, "Return", "7")
                    person.find(Role.TEXT, "Puissance en entrée")
                    wait_for(lambda: person.text_of("Puissance en entrée") == "7",
                             lambda: f'"7" in burst {burst}, not "{person.text_of("Puissance en entrée")}"')
                    person.press("ctrl+w")
                    wait_for(lambda: not person.panels(), "no panel")


if __name__ == "__main__":
    unittest.main()
