"""A person walks through the menu with the keyboard, and opens each panel with the mouse."""

from __future__ import annotations

import unittest

from case import DesktopCase
from desktop import until

COIL = "Calcul du nombre de spires d'une self"  # it opens beside some panels

# Each entry of each drop-down, and the captions of the panels that it opens.
MENU: dict[str, dict[str, list[str]]] = {
    "Fin de travail": {"Quitter": []},
    "Antennes": {
        "Antenne Log Périodique (LPDA)": ["Eléments de base pour le calcul de la LPDA"],
        "Dipôle raccourci": ["Dipoles raccourcis", COIL],
        "Double Quad": ["Double Quad"],
        "Gamma match": ["Gamma Match"],
        "HB9CV HF": ["HB9CV pour bandes HF"],
        "HB9CV VUSHF": ["HB9CV VHF-UHF-SHF"],
        "High Q Loop": ["Calcul des High Q Loop"],
        "Trappes en coaxial": ["Calcul de trappes en coaxial"],
    },
    "Circuits oscillants et Selfs": {
        "Adaptation d'impédance": ["Z1 vers Z2"],
        "Circuits oscillants": ["Circuits résonants"],
        "Circuits RLC Parallèles": ["Resolution graphique RLC parallele"],
        "Circuit RLC Série": ["Résolution graphique RLC série"],
        "Epingle": ["Inductance d'une épingle"],
        "Formule de Thomson": ["Formule de Thomson", COIL],
        "Nombre de spires d'une self": [COIL],
        "Selfs sur tores": ["Calcul des inductances sur tores"],
        "Strip line": ["Strip line"],
        "Valeur d'une self": ["Calcul de la valeur d'une self"],
    },
    "Condensateurs": {
        "Condensateurs CMS": ["Résistances CMS"],
        "Condensateurs Fixes": ["Condensateurs fixes"],
        "Condensateurs Variables": ["Condensateur variable"],
        "Energie emmagasinée": ["Energie emmagasinée dans un condensateur"],
    },
    "Le timer 555": {
        "Astable": ["Montage astable"],
        "Monostable": ["Montage en monostable"],
        "Rapport cyclique variable": ["Le 555 : Rapport Cyclique variable à fréquence constante"],
    },
    "Décibels": {"Décibels": ["Les dB en Puissance et en Tesnsion"]},
    "Filtres": {
        "Filtre à élimination de bande": ["Filtre à élimination de bande", COIL],
        "Filtre en Pi f(Ze, Zs, Q)": ["Filtres Passes Bas en Pi, T ou L", COIL],
        "Filtre en double Pi": ["Filtre en douple Pi", COIL],
        "Filtre passe-bande": ["Filtre passe-bande", COIL],
        "Filtre Passe-bas": ["Filtre passe-bas", COIL],
        "Filtre passe haut": ["Filtre passe haut", COIL],
    },
    "Lignes": {
        "Coaxiaux Section Carrée": ["Coaxial section carrée"],
        "Coaxiale Section Cylindrique": ["Coaxial section cylindrique"],
        "Echelle à grenouille": ["Echelle a grenouille"],
    },
    "Transformateurs": {"Calcul Transfo 500VA maxi": ["Calcul de transformateur à 50Hz"]},
    "Ponts diviseurs": {
        "Calculs de Shunts": ["Calculs des Shunts"],
        "Pont de résistances avec charge": ["1 Calcul de ponts diviseurs"],
    },
    "Rubiques en vrac": {
        "Coaxiaux Courants": ["Caractéristiques des coaxiaux usuels"],
        "Section vers diamètre": ["De la section vers le diamètre !!!"],
        "Unités de Pression": ["Conversions unités de pression"],
    },
    "?": {"A propos": ["Pourquoi et comment ce logiciel"]},
}


class Menu(DesktopCase):
    def test_keys_walk_through_all_entries(self) -> None:
        self.start()
        self.person.press("F10", "Down")
        for title, entries in MENU.items():
            for entry in entries:
                until(lambda: self.person.highlighted() == [title, entry],
                      lambda: f'a highlight on "{entry}", not on {self.person.highlighted()}')
                self.person.press("Down")
            self.person.press("Right")
        until(lambda: self.person.highlighted() == ["Fin de travail", "Quitter"], "the first entry again")
        self.person.press("Escape", "Escape")
        until(lambda: not self.person.highlighted(), "no highlight in the menu")

    def test_clicks_open_all_panels(self) -> None:
        self.start()
        for title, entries in MENU.items():
            for entry, captions in entries.items():
                if entry == "Quitter":
                    continue
                with self.subTest(entry):
                    self.person.pick(title, entry)
                    if entry == "Filtre en Pi f(Ze, Zs, Q)":  # it asks whether to go on
                        self.person.answer("Filtre en Pi", "Oui")
                    until(lambda: self.person.panels() == captions,
                          lambda: f"{captions} on screen, not {self.person.panels()}")


if __name__ == "__main__":
    unittest.main()
