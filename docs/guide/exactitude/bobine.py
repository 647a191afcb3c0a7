"""A single-layer coil.

Source: L. Lorenz, 1879: the inductance of a cylindrical current sheet, in complete elliptic integrals; those are computed
by the arithmetic-geometric mean (Gauss).
"""

from math import pi, sqrt


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
