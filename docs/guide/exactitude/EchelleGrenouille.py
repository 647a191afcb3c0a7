"""Échelle à grenouille.

Source: the field of two parallel round wires, Z = (mu0 c / pi) arcosh(D / d), with D between their axes.
"""

from math import acosh, pi

from accuracy import Case

PANEL = "EchelleGrenouille"
VACUUM = 4e-7 * pi * 299792458 / pi  # ohms


def case(name, wire, spacing, factor=1.0):
    """The impedance of a line."""
    return Case(name, [f'replace {PANEL}.TxtDiamBrin "{wire}"', f'replace {PANEL}.TxtEcartBrin "{spacing}"'],
                read=f"{PANEL}.TxtImpedance.Text", unit="Ω", right=VACUUM * acosh(spacing / wire), factor=factor)


CASES = [
    case("Fil de 2 mm à 100 mm", 2, 100),
    case("Fil de 1,5 mm à 32 mm", 1.5, 32),
    case("Fil de 1 mm à 7 mm", 1, 7),
    case("Tubes de 10 mm à 15 mm", 10, 15, 1.14),
]
