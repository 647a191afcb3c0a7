"""What goes wrong around the program: it carries on, or it ends at once and says why."""

from __future__ import annotations

import os
import signal
import subprocess
import tempfile
import unittest
from pathlib import Path

from case import DesktopCase
from desktop import TIMEOUT, french_settings, wait_for, without_plugins
from person import Atspi, Role

MEAN_COLOR = "3D4A5D"  # the colour that stands for the picture of the client area


class Hardships(DesktopCase):
    """The program carries on."""

    def open_section(self) -> None:
        self.person.pick_by_key("Rubiques en vrac", "Section vers diamètre")
        self.works()

    def works(self) -> None:
        for section, diameter in [("12", "3"), ("1", "1")]:
            self.person.write("Section du fil", section)
            wait_for(lambda: self.person.text_of("Diametre du fil").startswith(diameter), f"a diameter of {diameter}")

    def test_locale_that_does_not_exist(self) -> None:
        self.start(LC_ALL="xx_YY.UTF-8")
        self.open_section()
        self.assertEqual(self.person.text_of("Diametre du fil"), "1.12")

    def test_locale_in_an_older_encoding(self) -> None:
        folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.start(**french_settings(folder, "ISO-8859-1"))
        self.person.pick_by_key("Ponts diviseurs", "Pont de résistances avec charge")
        self.person.write("Valeur R1", "1 0")  # the blank is what separates thousands there
        wait_for(lambda: self.person.text_of("Résitance vue de l'alimentation") == "19,9", "a whole of 19.9 ohms")

    def test_no_plugin_for_any_picture(self) -> None:
        folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.start(without_plugins(folder, "imageformats", "iconengines"))
        self.person.pick("Antennes", "HB9CV HF")
        panel = self.person.find(Role.FRAME, "HB9CV pour bandes HF")
        place = Atspi.Component.get_extents(panel, Atspi.CoordType.SCREEN)
        self.assertNotEqual(self.desktop.color(place.x + 20, place.y + 40), MEAN_COLOR)
        tip = [self.desktop.color(place.x + 13, place.y + y) for y in range(4, 12)]
        self.assertTrue(any(color > "E0" and color[4:] < "90" for color in tip), f"no wave in the title bar: {tip}")
        self.open_section()
        wait_for(lambda: self.desktop.color(place.x + 20, place.y + 40) == MEAN_COLOR,
                 "a plain area where the panel was")
        self.person.pick("Fin de travail", "Quitter")
        self.assert_ends(0)

    def test_little_memory(self) -> None:
        self.start()
        wait_for(lambda: self.desktop.color(960, 540) != MEAN_COLOR, "the picture of the client area")
        passing = self.program.memory("VmHWM") - self.program.memory("VmRSS")
        self.assertLess(passing, 1500)  # decoded, the whole picture takes 4700

    def test_small_screen(self) -> None:
        self.start(size="800x600")  # the frame reaches beyond it on all sides
        self.open_section()
        self.person.pick("Fin de travail", "Quitter")
        self.assert_ends(0)

    def test_screen_unplugged(self) -> None:
        self.start()
        self.open_section()
        self.desktop.plug(False)
        self.works()
        self.desktop.plug(True)
        self.open_section()
        self.person.pick("Fin de travail", "Quitter")
        self.assert_ends(0)


class Ends(DesktopCase):
    """The program ends."""

    def search_traps(self) -> None:
        self.person.pick("Antennes", "Trappes en coaxial")
        self.person.write("Frequence de resonance MHz", "0.1")
        before = self.person.text_of("Reatance inductive")
        self.person.click(self.person.find(Role.PUSH_BUTTON, "Calculer"))
        wait_for(lambda: self.person.text_of("Reatance inductive") != before, "a search")

    def open_box(self) -> None:
        self.person.pick("Filtres", "Filtre en Pi f(Ze, Zs, Q)")
        self.person.box("Filtre en Pi")

    def open_fault(self) -> None:
        self.person.pick("Rubiques en vrac", "Section vers diamètre")
        self.person.write("Section du fil", "-1")
        self.person.box("Ondelis")

    def test_no_screen(self) -> None:
        folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        (folder / "none.json").write_text('{"screens": []}')
        for platform in ["linuxfb:fb=/dev/null", f"offscreen:configfile={folder}/none.json"]:
            with self.subTest(platform):
                program = subprocess.run([os.environ["ONDELIS"]], env={**os.environ, "QT_QPA_PLATFORM": platform},
                                         capture_output=True, text=True, timeout=TIMEOUT, check=False)
                self.assertEqual(program.returncode, 1)
                self.assertIn("Ondelis ne trouve pas d'écran : lancez-le dans une session graphique.\n",
                              program.stderr)

    def test_display_dies(self) -> None:
        for meanwhile in [lambda: None, lambda: self.person.press("F10", "Down"), self.open_box, self.open_fault,
                          self.search_traps]:
            with self.subTest(meanwhile.__name__):
                self.start()
                meanwhile()
                self.desktop.kill_server()
                self.assertEqual(self.program.exit_status(), 1)
                self.assertIn("X11 connection broke", self.program.error_output())

    def test_terminated_while_a_box_waits(self) -> None:
        self.start()
        self.open_box()
        self.program.terminate()
        self.assert_ends(-signal.SIGTERM)


if __name__ == "__main__":
    unittest.main()
