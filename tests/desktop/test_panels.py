"""A person works with panels, once where numbers have a decimal point and once where they have a comma.

Beside each expected text stands the formula that gives it. Most panels read a field up to its first character that is
no part of a number with a point, so that "5,5" is 5, and write their results as the region does; results with a
multiplier word always have a point.
"""

from __future__ import annotations

import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, Program, french_settings, wait_for
from person import Person, Role


class Panels:
    """What a person does, and what then shows."""

    comma: bool
    person: Person

    @classmethod
    def setUpClass(cls) -> None:
        scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(scratch.cleanup)
        desktop = Desktop()
        cls.addClassCleanup(desktop.close)
        program = Program(desktop, **(french_settings(Path(scratch.name)) if cls.comma else {}))
        cls.addClassCleanup(program.close)
        cls.person = Person(desktop, program)

    def open(self, menu: str, entry: str, caption: str) -> None:
        """Opens a panel: by the keyboard in the region with the comma, by the mouse in the other one."""
        pick = self.person.pick_by_key if self.comma else self.person.pick
        pick(menu, entry)
        wait_for(lambda: caption in self.person.panels(), f'the panel "{caption}"')

    def write(self, field: str, text: str) -> None:
        self.person.write(field, text)

    def local(self, number: str) -> str:
        """A number as the region writes it."""
        return number.replace(".", ",") if self.comma else number

    def shows(self, field: str, expected: str) -> None:
        wait_for(lambda: self.person.text_of(field) == expected,
                 lambda: f'"{expected}" in the field "{field}", which shows "{self.person.text_of(field)}"')

    def says(self, label: str) -> None:
        self.person.find(Role.LABEL, label)

    def test_oscillating_circuits(self) -> None:
        self.open("Circuits oscillants et Selfs", "Circuits oscillants", "Circuits résonants")
        self.write("Fréquence en ...", "1")
        self.write("Résitance en ...", "1000")
        self.write("Capacite en ...", "1")
        self.person.choose("Capacite en ...", "nF")
        self.shows("Impédance", " 1.012585 Kilo")  # sqrt(1 / (w C)² + R²), w = 2 pi 10⁶
        self.shows("Résonance", self.local("1449275.36"))  # 1 / (0.69 R C)

    def test_thomson_formula(self) -> None:
        self.open("Circuits oscillants et Selfs", "Formule de Thomson", "Formule de Thomson")
        self.write("Inductance en µH", "10")
        self.write("Capacitance en pF", "100")
        self.shows("Fréquence en MHz", self.local("5.032921"))  # 1 / (2 pi sqrt(L C)) in whole hertz

    def test_impedance_match(self) -> None:
        self.open("Circuits oscillants et Selfs", "Adaptation d'impédance", "Z1 vers Z2")
        # N1 sqrt(Z2 / Z1), cut to one decimal: 5.5 turns, or the 5 that are read of "5,5".
        self.shows("Nombre de spires pour Z2", "6,1" if self.comma else "6.7")
        self.write("Nombre de spires pour Z1", "5.5")
        self.shows("Nombre de spires pour Z2", self.local("6.7"))
        self.write("Z2 en Ohms", "200")
        self.shows("Nombre de spires pour Z2", "11")

    def test_hairpin(self) -> None:
        self.open("Circuits oscillants et Selfs", "Epingle", "Inductance d'une épingle")
        # Wheeler's formula in inches. With the comma 4 by 39 by 99 mm are read of the first values.
        self.shows("Inductance en H", " 65.176562 mili" if self.comma else " 66.176862 mili")
        self.write("Diamètre du fil en mm", "2")
        self.write("Hauteur en mm", "30")
        self.write("Longueur en mm", "80")
        self.shows("Inductance en H", " 59.839958 mili")

    def test_double_quad(self) -> None:
        self.open("Antennes", "Double Quad", "Double Quad")
        self.write("Frequence (MHz", "144")
        self.shows("Lambda (mm)", self.local("2083.33333333333"))  # 300 / 144 m
        self.shows("4.5 * Lambda / 4 (mm)", self.local("2343.75"))
        self.shows("0.136 * Lambda  (mm)", self.local("283.33"))

    def test_round_coaxial_line(self) -> None:
        self.open("Lignes", "Coaxiale Section Cylindrique", "Coaxial section cylindrique")
        self.write("d (mm)", "1")
        self.write("D (mm)", "3.5")
        self.shows("Impédance carecteristique", self.local("75.081390120338"))  # 138 log(D / d)
        self.write("D (mm)", "10")
        self.person.choose("Dielectrique", "PTFE")
        self.shows("Impédance carecteristique", "69")  # 138 / 2

    def test_ladder_line(self) -> None:
        self.open("Lignes", "Echelle à grenouille", "Echelle a grenouille")
        self.write("d (mm)", "2")
        self.write("D (mm)", "20")
        self.shows("Impédance", self.local("359.084278803259"))  # 276 log(2 D / d)
        self.person.click(self.person.find(Role.RADIO_BUTTON, "Calcul de l'écartement"))
        self.write("Impédance carecteristique", "552")
        self.write("d (mm)", "1.5")
        self.shows("D  (mm)", "75")  # d 10 ^ (552 / 276) / 2

    def test_stored_energy(self) -> None:
        self.open("Condensateurs", "Energie emmagasinée", "Energie emmagasinée dans un condensateur")
        self.write("Pour obtenir un éclat de", "1")
        self.write("Il faut charger un condensateur de", "1000000")
        self.write("Sous un courant constant de ", "2")
        self.shows("La tension atteinte est de ", " 1.41 ")  # sqrt(2 J / C), cut to two decimals
        self.shows("La quantité de coulombs est", " 1.41 ")  # U C
        self.shows("Pendant", " 699.999999 mili")  # 0.7 of 0.705 s are left by the cut

    def test_shunts(self) -> None:
        self.open("Ponts diviseurs", "Calculs de Shunts", "Calculs des Shunts")
        self.write("Courant max à mesurer (A)", "0.1")
        self.shows("Valeur du shunt", " 500.250125 mili")  # 50 µA 1000 ohms / (0.1 A - 50 µA)
        self.person.click(self.person.find(Role.RADIO_BUTTON, "Calcul  Résitance Série"))
        self.write("Tension max à mesurer (V)", "10")
        self.shows("Valeur du shunt", " 199 Kilo")  # (10 V - 0.05 V) / 50 µA

    def test_loaded_divider(self) -> None:
        self.open("Ponts diviseurs", "Pont de résistances avec charge", "1 Calcul de ponts diviseurs")
        self.write("Valeur R1", self.local("10.5"))  # this panel reads the region's own separator
        self.shows("Résitance vue de l'alimentation", self.local("20.4"))  # 10.5 + 1100 // 10
        self.person.click(self.person.find(Role.SCROLL_BAR, "Valeur Pot"))
        self.person.press("Home", "Next")  # from 100 % at the top a page down
        self.shows("Résitance vue de l'alimentation", self.local("120.4"))  # 10.5 + 100 + 1000 // 10

    def test_section_to_diameter(self) -> None:
        self.open("Rubiques en vrac", "Section vers diamètre", "De la section vers le diamètre !!!")
        self.write("Section du fil", "12")
        self.shows("Diametre du fil", self.local("3.9"))  # 2 sqrt(12 / pi) = 3.9088, cut to two decimals

    def test_decibels(self) -> None:
        self.open("Décibels", "Décibels", "Les dB en Puissance et en Tesnsion")
        self.write("Puissance en entrée", "2")
        self.write("Puissance en sortie", "4")
        self.shows("Gain en Db Puissance", self.local("3.01029995663981"))  # 10 log 2
        # Computed from the text beside it: with the comma, from 3 dB.
        self.shows("Gain en puissance", "1,99526231496888" if self.comma else "2")

    def test_pressure_units(self) -> None:
        self.open("Rubiques en vrac", "Unités de Pression", "Conversions unités de pression")
        self.person.choose("De", "mm Hg")
        self.write("Valeur mm Hg", "760")
        self.person.choose("Vers", "hPa")
        self.shows("hPa", self.local("1013.249"))  # 760 * 1.333223684 = 1013.24999984, cut to three decimals

    def test_astable(self) -> None:
        self.open("Le timer 555", "Astable", "Montage astable")
        self.says("Résistance R1 =  721.5 Ohms")  # a quarter of 1 / (50 Hz * 10 µF * 0.693)
        self.person.click(self.person.find(Role.SCROLL_BAR, "Fréquence :  50 Hz"))
        self.person.press("End")
        self.says("Fréquence :  1000 Hz")
        self.says("Résistance R1 =  36.07 Ohms")
        self.says("Résistance R2 =  108.22 Ohms")  # three quarters


class WithPoint(Panels, unittest.TestCase):
    comma = False


class WithComma(Panels, unittest.TestCase):
    comma = True


if __name__ == "__main__":
    unittest.main()
