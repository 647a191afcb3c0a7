"""High Q loop.

Source: for the inductance Neumann's integral along the eight sides of the loop, with the current on the surface of a round
conductor, as for an antenna; the radiation resistance of a small loop, 20 (2 pi / lambda)^4 S² ohms (any text on antennas);
and for the voltage the definition of Q without load, which for a matched loop is twice that of its bandwidth.
"""

from cmath import exp
from math import asinh, pi, sin, sqrt

from accuracy import Case

PANEL = "AntennesHighQLoop"
TUBE = 0.022  # metres


def steps(low, high, fraction):
    """An octagon of the wavelength over `fraction`."""
    return [f'replace {PANEL}.TxtFreqMin "{low}"', f'replace {PANEL}.TxtFreqMax "{high}"',
            f"select {PANEL}.LstNbreCotes 3", f"select {PANEL}.LstLambdaSur {fraction - 1}", f"click {PANEL}.BtnCalculer"]


def neumann(sides, perimeter, radius, parts=100):
    """Inductance of a regular polygon of round conductor in henrys; metres. A side by itself in closed form, and its mutual
    inductance with the others by midpoints."""
    side, corners = perimeter / sides, perimeter / sides / (2 * sin(pi / sides))
    points = [corners * exp(2j * pi * number / sides) for number in range(sides + 1)]
    steps = [(number + 0.5) / parts for number in range(parts)]
    ratio = side / radius
    total = 2e-7 * side * (asinh(ratio) - sqrt(1 + 1 / ratio ** 2) + 1 / ratio)
    along = points[1] - points[0]
    for other in range(1, sides):
        away = points[other + 1] - points[other]
        sums = sum(1 / sqrt(abs(points[0] + u * along - points[other] - v * away) ** 2 + radius ** 2)
                   for u in steps for v in steps)
        total += 1e-7 * (along * away.conjugate()).real * sums / parts ** 2
    return sides * total


def octagon(value):
    """Inductance of the panel's eight sides in tube, in microhenrys."""
    return neumann(8, 8 * value(f"{PANEL}.TxtLongueurCote.Text") / 100, TUBE / 2) * 1e6


def capacitor(megahertz):
    """What tunes it, in picofarads."""
    return lambda value: 1e18 / ((2 * pi * megahertz * 1e6) ** 2 * octagon(value))


def radiation(megahertz):
    """Radiation resistance of the loop's surface, in milliohms."""
    return lambda value: 20 * (2 * pi * megahertz / 299.792458) ** 4 * value(f"{PANEL}.TxtSurface.Text") ** 2 * 1e3


def peak(value):
    """Peak voltage at 100 W with the panel's own reactance and bandwidth."""
    return sqrt(2 * 100 * value(f"{PANEL}.TxtXL_FreqMin.Text") * 2 * value(f"{PANEL}.TxtQ_FreqMin.Text"))


CASES = [
    Case("Inductance, 7 à 7,2 MHz, λ/10", steps("7", "7,2", 10), read=f"{PANEL}.TxtInductance.Text", unit="µH", right=octagon,
         factor=0.55),
    Case("Condensateur à 7 MHz, λ/10", steps("7", "7,2", 10), read=f"{PANEL}.TxtCf_FreqMin.Text", unit="pF", scale=1e12,
         right=capacitor(7), factor=1.81),
    Case("Condensateur à 14 MHz, λ/10", steps("14", "14,35", 10), read=f"{PANEL}.TxtCf_FreqMin.Text", unit="pF", scale=1e12,
         right=capacitor(14), factor=0.76),
    Case("Résistance de rayonnement à 7 MHz", steps("7", "7,2", 10), read=f"{PANEL}.TxtRR_FreqMin.Text", unit="mΩ",
         scale=1e3, right=radiation(7), factor=1),
    Case("Tension de crête à 7 MHz, 100 W", steps("7", "7,2", 10), read=f"{PANEL}.TxtVC_FreqMin.Text", unit="V",
         right=peak, factor=0.5),
]
