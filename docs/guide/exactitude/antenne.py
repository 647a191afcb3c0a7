"""A straight wire antenna by the method of moments.

Source: R. F. Harrington, Field Computation by Moment Methods (1968), chapter 4: pulses of current, point matching, and
charges between the pulses; loads are added on the diagonal. A half wave of thin wire gives 79 + j43 ohms with it, where
73 + j42 is the textbook's.
"""

from cmath import exp
from math import log, pi, sqrt

LIGHT = 299792458.0
MU = 4e-7 * pi
EPSILON = 1 / (MU * LIGHT ** 2)


def _potentials(step, radius, wavenumber, count):
    """The mean of exp(-jkr) / 4 pi r over a pulse, for distances of 0 to `count` pulses."""
    result = [(log(step / radius) / (2 * pi * step)) - 1j * wavenumber / (4 * pi)]
    for number in range(1, count + 1):
        total = 0
        for part in range(8):
            distance = sqrt((number * step + ((part + 0.5) / 8 - 0.5) * step) ** 2 + radius ** 2)
            total += exp(-1j * wavenumber * distance) / distance / 8
        result.append(total / (4 * pi))
    return result


def _solved(matrix, right):
    """The solution of a linear system, by elimination with pivots."""
    rows = [row[:] + [value] for row, value in zip(matrix, right)]
    size = len(rows)
    for column in range(size):
        pivot = max(range(column, size), key=lambda row: abs(rows[row][column]))
        rows[column], rows[pivot] = rows[pivot], rows[column]
        for row in range(column + 1, size):
            ratio = rows[row][column] / rows[column][column]
            rows[row] = [a - ratio * b for a, b in zip(rows[row], rows[column])]
    solution = [0] * size
    for row in range(size - 1, -1, -1):
        known = sum(rows[row][column] * solution[column] for column in range(row + 1, size))
        solution[row] = (rows[row][size] - known) / rows[row][row]
    return solution


def dipole(length, diameter, hertz, loads=(), pulses=39):
    """Impedance at the middle of a dipole; metres. `loads` are pairs (distance from the middle, impedance), one in each
    arm; pulses + 1 is a multiple of the length over that distance."""
    wavenumber, omega, step = 2 * pi * hertz / LIGHT, 2 * pi * hertz, length / (pulses + 1)
    potential = _potentials(step, diameter / 2, wavenumber, pulses)

    def element(distance):
        across = 2 * potential[distance] - potential[distance + 1] - potential[abs(distance - 1)]
        return 1j * omega * MU * step ** 2 * potential[distance] + across / (1j * omega * EPSILON)

    elements = [element(distance) for distance in range(pulses)]
    matrix = [[elements[abs(row - column)] for column in range(pulses)] for row in range(pulses)]
    middle = pulses // 2
    for distance, impedance in loads:
        for arm in (-1, 1):
            at = middle + arm * round(distance / step)
            matrix[at][at] += impedance
    driven = [0.0] * pulses
    driven[middle] = 1.0
    return 1 / _solved(matrix, driven)[middle]


def loading_reactance(length, coil, diameter, hertz, guess):
    """The reactance in each arm, at `coil` from the middle, that makes the dipole resonant: by the secant method from a
    guess."""
    first, second = guess, guess * 1.1
    reactance = [dipole(length, diameter, hertz, [(coil, 1j * x)]).imag for x in (first, second)]
    for _ in range(4):
        first, second = second, second - reactance[1] * (second - first) / (reactance[1] - reactance[0])
        reactance = [reactance[1], dipole(length, diameter, hertz, [(coil, 1j * second)]).imag]
    return second
