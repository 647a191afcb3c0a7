"""How the program asks, and how it ends."""

from __future__ import annotations

import unittest

from case import DesktopCase
from desktop import wait_for
from person import Atspi, Role


class Boxes(DesktopCase):
    def test_no_and_yes(self) -> None:
        self.start()
        self.person.pick("Filtres", "Filtre en Pi f(Ze, Zs, Q)")
        said = self.person.answer("Filtre en Pi", "Oui")
        self.assertIn("P > Pm ==> Pi conventionnel", said)
        self.assertIn("Voulez vous continuer ?", said)
        # The names of the parts show which network it is: No keeps that of the Pi, Yes brings that of the T.
        self.person.find(Role.TEXT, "C1 pF")
        self.person.choose("Choix du type de filtre", "Filtre en T")
        self.person.answer("Filtre en T", "Non")
        self.person.find(Role.TEXT, "C1 pF")
        self.person.choose("Choix du type de filtre", "Filtre en Pi")
        self.person.answer("Filtre en Pi", "Oui")
        self.person.choose("Choix du type de filtre", "Filtre en T")
        self.person.box("Filtre en T")
        self.person.press("Return")  # the first button has the keyboard
        self.person.find(Role.TEXT, "L1 µH")


class Endings(DesktopCase):
    def test_quitter_by_mouse(self) -> None:
        self.start()
        self.person.pick("Fin de travail", "Quitter")
        self.assert_ends(0)

    def test_quitter_by_key(self) -> None:
        self.start()
        self.person.pick_by_key("Fin de travail", "Quitter")
        self.assert_ends(0)

    def test_close_box(self) -> None:
        self.start()
        inside = Atspi.Component.get_extents(self.person.window, Atspi.CoordType.SCREEN)
        # The window manager has put a title bar above the window, with the close box at its right end.
        self.desktop.xdotool("mousemove", str(inside.x + inside.width - 9), str(inside.y - 11), "click", "1")
        self.assert_ends(0)

    def test_key_of_the_window_manager(self) -> None:
        self.start()
        self.person.pick("Le timer 555", "Astable")
        wait_for(self.person.panels, "the panel")
        self.person.press("alt+F4")
        self.assert_ends(0)

    def test_fault(self) -> None:
        self.start()
        self.person.pick("Circuits oscillants et Selfs", "Circuits oscillants")
        self.person.choose("Circuits résonants", "RLC Série")
        self.person.write("Fréquence en ...", "1")
        self.person.write("Résitance en ...", "50")
        self.person.write("Inductance en ...", "1")
        self.person.write("Capacite en ...", "1000")  # the third 0 makes it take the root of a negative number
        said = self.person.answer("Ondelis", "OK")
        self.assertEqual(said, "Erreur 5 : Argument ou appel incorrect.\n\nLe programme va s'arrêter.")
        self.assert_ends(1)


if __name__ == "__main__":
    unittest.main()
