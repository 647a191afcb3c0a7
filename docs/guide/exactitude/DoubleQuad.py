"""Double quad.

Source: speed of light; and the rule for a resonant full-wave loop of wire, 1005 feet over the frequency in megahertz (The
ARRL Antenna Book, quad antennas).
"""

from accuracy import Case

PANEL = "DoubleQuad"


def case(name, megahertz, read, right, factor):
    """A dimension, in millimetres."""
    return Case(name, [f'replace {PANEL}.TxtFreq "{megahertz}"'], read=f"{PANEL}.{read}.Text", unit="mm", right=right,
                factor=factor)


CASES = [
    case("Longueur d'onde, 1296 MHz", 1296, "TxtLambda", 299792.458 / 1296, 1),
    case("Côté d'une boucle, 1296 MHz", 1296, "TxtL4", 1005 * 304.8 / 1296 / 4, 0.98),
    case("Côté d'une boucle, 434 MHz", 434, "TxtL4", 1005 * 304.8 / 434 / 4, 0.98),
]
