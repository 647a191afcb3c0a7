"""Nombre de spires.

Source: L. Lorenz, 1879: the inductance of a cylindrical current sheet, in complete elliptic integrals; those are computed
by the arithmetic-geometric mean (Gauss). The turns that are right are found by bisection, at the mean diameter.
"""

from math import pi, sqrt

from accuracy import Case

PANEL = "CalculNombreSpires"


def elliptic(k):
    """The complete elliptic integrals K and E of modulus k, by the arithmetic-geometric mean."""
    a, b, c, total, power = 1.0, sqrt(1 - k * k), k, k * k / 2, 0.5
    while abs(c) > 1e-15:
        a, b, c = (a + b) / 2, sqrt(a * b), (a - b) / 2
        power *= 2
        total += power * c * c
    return pi / (2 * a), pi / (2 * a) * (1 - total)


def coil(diameter, length, turns):
    """Inductance of a current sheet; millimetres, microhenrys."""
    radius, length = diameter / 2e3, length / 1e3
    k = 2 * radius / sqrt(4 * radius ** 2 + length ** 2)
    first, second = elliptic(k)
    shape = (2 * k * k - 1) / k ** 3 * second + (1 - k * k) / k ** 3 * first - 1
    return 4e-7 * pi * turns ** 2 * 8 * radius ** 3 / (3 * length ** 2) * shape * 1e6


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
