"""Section vers diamètre.

Sources: area of a disc; for the gauges the definition of the American wire gauge (ASTM B258): 36 AWG is 0.005 inch,
each step down is the factor 92 to the power 1/39.
"""

from math import pi, sqrt

from accuracy import Case

PANEL = "SectionDiametre"


def gauge(number):
    """Diameter of an American wire gauge in millimetres."""
    return 0.127 * 92 ** ((36 - number) / 39)


def case(name, section, diameter):
    """The diameter for a section in square millimetres; cut to a hundredth of a millimetre."""
    return Case(name, [f'replace {PANEL}.TxtS "{section}"'], read=f"{PANEL}.TxtD.Text", unit="mm", right=diameter,
                factor=1, tolerance=0.01 / diameter)


CASES = [
    case("Fil de 1,5 mm²", "1.5", 2 * sqrt(1.5 / pi)),
    case("Fil de 6 mm²", "6", 2 * sqrt(6 / pi)),
    case("AWG 14, 2,081 mm²", "2.081", gauge(14)),
    case("AWG 22, 0,3255 mm²", "0.3255", gauge(22)),
]
