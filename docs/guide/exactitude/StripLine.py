"""Strip line.

Source: Neumann's formula for the mutual inductance of two parallel filaments, averaged over the width of a thin strip
(the mean of 1/distance along the strip, integrated numerically); no handbook formula is used.
"""

from math import asinh, sqrt

from accuracy import Case

PANEL = "StripLine"


def filaments(length, distance):
    """Mutual inductance of two parallel filaments of that length, metres, in henrys."""
    ratio = length / distance
    return 2e-7 * length * (asinh(ratio) - sqrt(1 + 1 / ratio ** 2) + 1 / ratio)


def strip(width, length, parts=4000):
    """Inductance of a thin strip: the mean over all pairs of filaments, which are 2 (1 - x) dx apart by x of the width."""
    total = 0.0
    for part in range(parts):
        x = (part + 0.5) / parts
        total += 2 * (1 - x) / parts * filaments(length, x * width)
    return total


def case(name, width, length, thickness):
    """The inductance of a strip of copper."""
    return Case(name, [f'replace {PANEL}.TxtW "{width}"', f'replace {PANEL}.TxtB "{length}"',
                       f'replace {PANEL}.TxtH "{thickness}"'],
                read=f"{PANEL}.TxtL.Text", unit="µH", right=strip(width / 1000, length / 1000) * 1e6, factor=1,
                tolerance=0.02)


CASES = [
    case("Piste de 5 mm, 60 mm de long", 5, 60, 0.035),
    case("Piste de 1 mm, 20 mm de long", 1, 20, 0.035),
    case("Clinquant de 10 mm, 100 mm de long", 10, 100, 0.1),
]
