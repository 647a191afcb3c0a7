"""Énergie emmagasinée.

Source: W = C U² / 2 and Q = C U, the definitions of the capacitance and of the energy stored in it.
"""

from math import sqrt

from accuracy import Case

PANEL = "CondensateurEnergie"


def case(name, joules, microfarads, read, unit, right, factor):
    """A flash, charged at 0.1 A and discharged in 1 ms."""
    return Case(name, [f'replace {PANEL}.TxtJoules "{joules}"', f'replace {PANEL}.TxtCapa "{microfarads}"',
                       f'replace {PANEL}.TxtCourant "0.1"', f'replace {PANEL}.TxtDecharge "1"'],
                read=f"{PANEL}.{read}.Text", unit=unit, right=right, factor=factor)


def volts(joules, microfarads):
    """Of a capacitor that stores so much."""
    return sqrt(2 * joules / (microfarads * 1e-6))


def coulombs(joules, microfarads):
    """In a capacitor that stores so much."""
    return sqrt(2 * joules * microfarads * 1e-6)


CASES = [
    case("Tension, 40 J dans 1000 µF", 40, 1000, "TxtTension", "V", volts(40, 1000), 1),
    case("Charge, 40 J dans 1000 µF", 40, 1000, "TxtCoulombs", "C", coulombs(40, 1000), 0.99),
    case("Temps, 300 J dans 10 000 µF", 300, 10000, "TxtTemps", "s", coulombs(300, 10000) / 0.1, 1),
    case("Charge, 10 J dans 100 µF", 10, 100, "TxtCoulombs", "C", coulombs(10, 100), 0.89),
    case("Décharge, 10 J dans 100 µF", 10, 100, "TxTCD", "A", coulombs(10, 100) / 1e-3, 0.89),
]
