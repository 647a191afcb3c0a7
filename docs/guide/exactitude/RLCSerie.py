"""Circuit RLC série.

Source: complex impedances in series: Z = R + jwL + 1 / jwC.
"""

from math import pi

from accuracy import Case

PANEL = "RLCSerie"


def case(name, read, unit, typed, right, factor, tolerance=0.01):
    """R of 5 ohms, L of 2.2 µH and C of 47 pF at 14.1 MHz; `typed` is what stands in the field of L."""
    return Case(name, [f'replace {PANEL}.TxtR "5"', f'replace {PANEL}.TxtL "{typed}"', f'replace {PANEL}.TxtC "47"',
                       f"scroll {PANEL}.HScroll1 141"],
                read=f"{PANEL}.{read}", unit=unit, right=right, factor=factor, tolerance=tolerance)


OMEGA = 2 * pi * 14.1e6
COIL = OMEGA * 2.2e-6
CAPACITOR = 1 / (OMEGA * 47e-12)
TOTAL = abs(5 + 1j * (COIL - CAPACITOR))

CASES = [
    case("Xl, 2,2 µH tapés", "TxtXl.Text", "Ω", "2.2", COIL, 6.28),
    case("Xc, 47 pF", "TxtXc.Text", "Ω", "2.2", CAPACITOR, 1),
    case("Z, 2,2 µH tapés", "TxtZ.Text", "Ω", "2.2", TOTAL, 21.6),
    case("Xl, 0,3501 tapé", "TxtXl.Text", "Ω", "0.3501", COIL, 1),
    case("Z, 0,3501 tapé", "TxtZ.Text", "Ω", "0.3501", TOTAL, 1),
    case("Courant sous 1 V, 0,3501 tapé", "Label19.Caption", "A", "0.3501", 1 / TOTAL, 1),
]
