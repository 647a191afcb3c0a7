"""Ligne coaxiale carrée.

Source: conformal mapping. The square of side D maps onto a disc of radius 4 sqrt(pi) / Gamma(1/4)^2 D = 0.5394 D about
its centre, so that a wire of diameter d in its middle has the impedance of a round line of 1.0787 D over d; exact for a
thin wire, and within a fifth of an ohm up to d = D/2.
"""

from math import gamma, log, pi, sqrt

from accuracy import Case

PANEL = "CoaxSectCarree"
VACUUM = 4e-7 * pi * 299792458 / (2 * pi)  # ohms
ROUND = 2 * 4 * sqrt(pi) / gamma(0.25) ** 2  # diameter of the round line over the side of the square


def case(name, side, wire):
    """The impedance of a line."""
    return Case(name, [f"click {PANEL}.OptZ", f'replace {PANEL}.TxtCote "{side}"', f'replace {PANEL}.TxtDiamAme "{wire}"'],
                read=f"{PANEL}.TxtZ.Text", unit="Ω", right=VACUUM * log(ROUND * side / wire), factor=0.99)


CASES = [
    case("Fil de 9 mm dans 20 mm", 20, 9),
    case("Fil de 4 mm dans 13 mm", 13, 4),
    case("Fil de 12 mm dans 27 mm", 27, 12),
]
