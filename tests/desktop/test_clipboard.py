"""A person copies results and pastes: with the mouse, with keys, and between programs."""

from __future__ import annotations

import os
import subprocess
import unittest

from case import DesktopCase
from desktop import wait_for
from person import Role


class Clipboard(DesktopCase):
    """The clipboard is read and written by another program, xclip."""

    def setUp(self) -> None:
        self.start()

    def xclip(self, selection: str, *words: str, text: str | None = None) -> str:
        program = subprocess.Popen(["xclip", "-selection", selection, *words], stdin=subprocess.PIPE, text=True,
                                   stdout=subprocess.DEVNULL if text is not None else subprocess.PIPE,
                                   stderr=subprocess.DEVNULL, env={**os.environ, "DISPLAY": self.desktop.display})
        return program.communicate(text)[0] or ""  # the child process serves the text that it keeps for others

    def shows(self, field: str, expected: str) -> None:
        wait_for(lambda: self.person.text_of(field) == expected,
                 lambda: f'"{expected}" in the field "{field}", which shows "{self.person.text_of(field)}"')

    def copied(self, expected: str) -> None:
        wait_for(lambda: self.xclip("clipboard", "-o") == expected,
                 lambda: f'"{expected}" in the clipboard, which holds "{self.xclip("clipboard", "-o")}"')

    def copy_by_menu(self) -> None:
        """Chooses the first entry of the context menu that is open, "Copier"; screen readers do not see menus."""
        self.person.press("Down", "Return")

    def test_pastes(self) -> None:
        self.person.pick("Circuits oscillants et Selfs", "Circuits oscillants")
        frequency = self.person.find(Role.TEXT, "Fréquence en ...")
        self.xclip("primary", "-i", text="1\n2")
        self.person.click(frequency, "2")
        self.shows("Fréquence en ...", "1")
        self.xclip("clipboard", "-i", text="1000\r\n")
        self.person.click(self.person.find(Role.TEXT, "Résitance en ..."))
        self.person.press("ctrl+v")
        self.shows("Résitance en ...", "1000")

    def test_results(self) -> None:
        self.person.pick("Circuits oscillants et Selfs", "Circuits oscillants")
        self.person.write("Fréquence en ...", "1")
        self.person.write("Résitance en ...", "1000")
        self.person.write("Capacite en ...", "1000")
        self.shows("Impédance", " 1.012585 Kilo")
        self.person.click(self.person.find(Role.TEXT, "Impédance"), "3")
        self.copy_by_menu()
        self.copied(" 1.012585 Kilo")
        self.xclip("clipboard", "-i", text="autre chose")
        self.person.press("Menu")
        self.copy_by_menu()
        self.copied(" 1.012585 Kilo")

    def test_captions(self) -> None:
        self.person.pick("Le timer 555", "Astable")
        result = "Résistance R1 =  721.5 Ohms"
        self.person.click(self.person.find(Role.LABEL, result), "3")
        self.copy_by_menu()
        self.copied(result)

    def test_the_mouse_rewrites_nothing(self) -> None:
        self.person.pick("Rubiques en vrac", "Unités de Pression")
        self.person.choose("De", "mm Hg")
        self.person.write("Valeur mm Hg", "760")
        row = self.person.find(Role.LIST_ITEM, "N/m²", self.person.find(Role.LIST, "De"))
        for button in "2345":
            self.person.click(row, button)
        self.person.write("Valeur mm Hg", "1")
        self.shows("Valeur mm Hg", "1")


if __name__ == "__main__":
    unittest.main()
