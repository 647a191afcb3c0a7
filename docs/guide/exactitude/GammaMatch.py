"""Gamma match.

Source: D. J. Healey, An Examination of the Gamma Match (QST, April 1969): the rod and the element are a shorted line in
parallel with the antenna's impedance stepped up by their diameters. The length of that line is found here by bisection on
complex impedances, not by the closed formula.
"""

from cmath import tan
from math import acosh, pi

from accuracy import Case

PANEL = "GammaMatch"


def matched(megahertz, antenna, line, element, rod, spacing):
    """Length of the rod in millimetres and series capacitor in picofarads."""
    a = acosh((4 * spacing ** 2 - element ** 2 + rod ** 2) / (4 * spacing * rod))
    b = acosh((4 * spacing ** 2 + element ** 2 - rod ** 2) / (4 * spacing * element))
    step_up = (1 + a / b) ** 2
    characteristic = 60 * acosh((4 * spacing ** 2 - element ** 2 - rod ** 2) / (2 * element * rod))

    def seen(angle):
        stub, stepped = 1j * characteristic * tan(angle), step_up * antenna
        return stub * stepped / (stub + stepped)

    low, high = 1e-6, pi / 2 - 1e-6
    for _ in range(100):
        angle = (low + high) / 2
        low, high = (angle, high) if seen(angle).real < line else (low, angle)
    wave = 299792.458 / megahertz
    return low / (2 * pi) * wave, 1e6 / (2 * pi * megahertz * seen(low).imag)


def case(name, dipole, megahertz, ohms, line, diameters, which, factor):
    """The rod (0) or the capacitor (1)."""
    steps = [f"click {PANEL}.{'OptDipôle' if dipole else 'OptMonopole'}"]
    steps += [f'replace {PANEL}.Txt{field} "{value}"'
              for field, value in (("Freq", megahertz), ("RA", ohms[0]), ("Xa", ohms[1]), ("R0", line),
                                   ("DE", diameters[0]), ("DR", diameters[1]), ("S", diameters[2]))]
    antenna = complex(*ohms) / (2 if dipole else 1)
    return Case(name, [*steps, f"click {PANEL}.BtnCalculer"], read=f"{PANEL}.{('TxtGamma', 'TxtCapa')[which]}.Text",
                unit=("mm", "pF")[which], right=matched(megahertz, antenna, line, *diameters)[which], factor=factor)


YAGI = (True, 14.175, (25, -25), 50, (25, 10, 100))
GROUND_PLANE = (False, 145, (25, -25), 50, (20, 5, 20))

CASES = [
    case("Yagi 20 m, condensateur", *YAGI, 1, 1),
    case("Yagi 20 m, tige (vitesse 0,964 comprise)", *YAGI, 0, 0.964),
    case("Quart d'onde 2 m, condensateur", *GROUND_PLANE, 1, 1),
    Case("Brin d'un quart d'onde, 145 MHz", [f'replace {PANEL}.TxtFreq "145"', f"click {PANEL}.BtnCalculer"],
         read=f"{PANEL}.TxtLongPilote.Text", unit="mm", right=0.97 * 299792.458 / 145 / 4, factor=2),
]
