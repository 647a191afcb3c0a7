"""Formule de Thomson.

Source: resonance is where the reactances are equal, 2 pi F L = 1 / (2 pi F C); found here by bisection on that equality,
not by the closed formula.
"""

from math import pi

from accuracy import Case

PANEL = "FormuleDeThomson"


def solved(reactances, low, high):
    """Where the first reactance comes to exceed the second, by bisection."""
    for _ in range(200):
        middle = (low * high) ** 0.5
        first, second = reactances(middle)
        low, high = (low, middle) if first > second else (middle, high)
    return low


def case(name, option, typed, read, unit, reactances, scale):
    """One of the three quantities."""
    steps = [f"click {PANEL}.{option}"] + [f'replace {PANEL}.{field} "{text}"' for field, text in typed]
    return Case(name, steps, read=f"{PANEL}.{read}.Text", unit=unit,
                right=solved(reactances, 1e-15, 1e12) * scale, factor=1, tolerance=1e-6)


CASES = [
    case("10 µH et 47 pF", "OptF", [("TxtSelf", "10"), ("TxtCapa", "47")], "TxtFreq", "MHz",
         lambda f: (2 * pi * f * 10e-6, 1 / (2 * pi * f * 47e-12)), 1e-6),
    case("7,05 MHz et 100 pF", "OptL", [("TxtFreq", "7.05"), ("TxtCapa", "100")], "TxtSelf", "µH",
         lambda inductance: (2 * pi * 7.05e6 * inductance, 1 / (2 * pi * 7.05e6 * 100e-12)), 1e6),
    case("3,65 MHz et 12 µH", "OptC", [("TxtFreq", "3.65"), ("TxtSelf", "12")], "TxtCapa", "pF",
         lambda capacity: (2 * pi * 3.65e6 * 12e-6, 1 / (2 * pi * 3.65e6 * capacity)), 1e12),
]
