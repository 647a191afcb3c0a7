"""Épingle.

Source: Neumann's formula. The hairpin is three straight wires; the partial self-inductance of each (current on the
surface) and the mutual inductance of the two parallel ones, which carry opposite currents, add up to its inductance.
"""

from math import asinh, log, pi, sqrt

from accuracy import Case

PANEL = "WireInductance"
MU = 4e-7 * pi  # H/m


def wire(length, radius):
    """Partial inductance of a straight wire."""
    return MU * length / (2 * pi) * (log(2 * length / radius) - 1)


def mutual(length, distance):
    """Mutual inductance of two parallel wires."""
    return MU * length / (2 * pi) * (asinh(length / distance) - sqrt(1 + (distance / length) ** 2) + distance / length)


def hairpin(diameter, height, length):
    """Inductance of the three wires; millimetres, microhenrys."""
    diameter, height, length = diameter / 1e3, height / 1e3, length / 1e3
    legs = 2 * wire(length, diameter / 2) - 2 * mutual(length, height)
    return (legs + wire(height, diameter / 2)) * 1e6


def case(diameter, height, length, factor):
    """The panel's figure as microhenrys."""
    return Case(f"Fil de {diameter} mm, {length} mm sur {height}",
                [f'replace {PANEL}.TxtDiam "{diameter}"', f'replace {PANEL}.TxtHaut "{height}"',
                 f'replace {PANEL}.TxtLong "{length}"'],
                read=f"{PANEL}.TxtInductance.Text", unit="µH", right=hairpin(diameter, height, length), factor=factor)


CASES = [case(4, 40, 100, 0.52), case(6, 50, 300, 0.60), case(3, 20, 400, 0.66), case(10, 100, 1000, 0.62)]
