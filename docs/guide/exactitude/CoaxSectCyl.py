"""Ligne coaxiale ronde.

Source: the field between two coaxial cylinders, Z = (mu0 c / 2 pi) ln(D / d) / sqrt(er); relative permittivities at radio
frequencies 2.1 for PTFE and 2.26 for polyethylene.
"""

from math import log, pi, sqrt

from accuracy import Case

PANEL = "CoaxSectCyl"
VACUUM = 4e-7 * pi * 299792458 / (2 * pi)  # ohms


def case(name, row, permittivity, inner, outer, factor):
    """The impedance of a line."""
    return Case(name, [f"select {PANEL}.LstEpsilon {row}", f'replace {PANEL}.TxtDiamAme "{inner}"',
                       f'replace {PANEL}.TxtDiamCorps "{outer}"'],
                read=f"{PANEL}.TxtZ.Text", unit="Ω", right=VACUUM * log(outer / inner) / sqrt(permittivity), factor=factor)


CASES = [
    case("Air, 3 mm dans 7 mm", 0, 1, 3, 7, 1),
    case("Air, 6 mm dans 21 mm", 0, 1, 6, 21, 1),
    case("PTFE, 0,94 mm dans 2,98 mm (RG-400)", 1, 2.1, 0.94, 2.98, 0.72),
    case("Polyéthylène, 2,26 mm dans 7,25 mm (RG-213)", 2, 2.26, 2.26, 7.25, 0.58),
]
