"""Ladder networks, for the filters: chain matrices of series and shunt elements (any text on two-port networks)."""

from math import pi


def series(impedance):
    """A series element."""
    return (1, impedance), (0, 1)


def shunt(admittance):
    """An element across the line."""
    return (1, 0), (admittance, 1)


def coil(henrys, hertz):
    """Impedance of a coil."""
    return 2j * pi * hertz * henrys


def capacitor(farads, hertz):
    """Admittance of a capacitor."""
    return 2j * pi * hertz * farads


def chain(*elements):
    """The elements one behind the other."""
    (a, b), (c, d) = (1, 0), (0, 1)
    for (e, f), (g, h) in elements:
        a, b, c, d = a * e + b * g, a * f + b * h, c * e + d * g, c * f + d * h
    return (a, b), (c, d)


def input_impedance(network, load):
    """What a source sees."""
    (a, b), (c, d) = network
    return (a * load + b) / (c * load + d)


def transfer(network, source, load):
    """Voltage ratio to that of a perfect match, between a source and a load."""
    (a, b), (c, d) = network
    return abs(2 * (source * load) ** 0.5 / (a * load + b + c * source * load + d * source))


def corner(gain, low, high):
    """Where a gain that falls from `low` to `high` hertz passes half of the power, by bisection."""
    for _ in range(100):
        middle = (low * high) ** 0.5
        low, high = (middle, high) if gain(middle) > 0.5 ** 0.5 else (low, middle)
    return low
