"""Nombre de spires.

Source: the cylindrical current sheet of bobine.py beside this script. The turns that are right are found by bisection, at
the mean diameter.
"""

from accuracy import Case
from bobine import coil

PANEL = "CalculNombreSpires"


def turns(microhenrys, former, wire, tenths):
    """The turns that give this inductance, the wire's middle being half a wire outside of the former."""
    low, high = 0.5, 5000.0
    for _ in range(200):
        middle = (low + high) / 2
        enough = coil(former + wire, middle * (wire + tenths / 10), middle) > microhenrys
        low, high = (low, middle) if enough else (middle, high)
    return low


def case(name, microhenrys, former, wire, tenths, factor):
    """A coil on a former."""
    return Case(name, [f'replace {PANEL}.TxtS "{microhenrys}"', f'replace {PANEL}.TxtD "{former}"',
                       f'replace {PANEL}.TxtF "{wire}"', f"scroll {PANEL}.HscrlE {tenths}"],
                read=f"{PANEL}.TxtN.Text", unit="spires", right=turns(microhenrys, former, wire, tenths), factor=factor,
                tolerance=0.02)


CASES = [
    case("25 µH sur 60 mm, fil de 2 mm", 25, 60, 2, 3, 1.02),
    case("5,1 µH sur 20 mm, fil de 1 mm", 5.1, 20, 1, 5, 1.02),
    case("0,3 µH sur 10 mm, fil de 2 mm", 0.3, 10, 2, 10, 1.14),
]
