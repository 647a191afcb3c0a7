"""Diviseur chargé.

Source: Thévenin's theorem. Seen from the load the divider is its open voltage behind the two branches in parallel.
"""

from accuracy import Case

PANEL = "PDResitancesParalleles"


def solve(supply, upper, lower, load):
    """Output voltage and load current."""
    opened = supply * lower / (upper + lower)
    inner = upper * lower / (upper + lower)
    current = opened / (inner + load)
    return current * load, current


def case(name, supply, r1, pot, r2, load, percent, which, factor=1.0, tolerance=0.01):
    """The output voltage (0) or the load current (1)."""
    steps = [f'replace {PANEL}.Txt{field} "{value}"'
             for field, value in (("Alim", supply), ("R1", r1), ("Pot", pot), ("R2", r2), ("Rc", load))]
    solution = solve(supply, r1 + pot * (1 - percent / 100), r2 + pot * percent / 100, load)
    return Case(name, [*steps, f"scroll {PANEL}.VScrollPot {percent}"],
                read=f"{PANEL}.{('MebUs', 'MebIc')[which]}.Display", unit=("V", "A")[which], right=solution[which],
                factor=factor, tolerance=tolerance)


CASES = [
    case("Sortie, 100 Ω à 40 % et 150 Ω", 13.8, 10, 100, 22, 150, 40, 0),
    case("Sortie, 1 kΩ à 75 % et 10 kΩ", 12, 100, 1000, 100, 10000, 75, 0),
    case("Courant de 8 Ω, 10 Ω à 60 %", 12, 1, 10, 1, 8, 60, 1, tolerance=0.02),
    case("Courant de 150 Ω, 100 Ω à 40 %", 13.8, 10, 100, 22, 150, 40, 1, factor=0.85),
]
