"""Z1 vers Z2.

Source: the ideal transformer: voltages go with the turns, currents inversely, impedances with the square of the turns.
The cases are the usual ratios of ununs and baluns on a toroid, whose turns are known: 4 to 1 is twice, 9 to 1 three times,
and 49 to 1 seven times the turns.
"""

from accuracy import Case


def case(name, first, second, turns, right):
    """The turns across the second impedance."""
    return Case(name, [f'replace Z1Z2.TxtZ1 "{first}"', f'replace Z1Z2.TxtZ2 "{second}"',
                       f'replace Z1Z2.TxtNbSpZ1 "{turns}"'],
                read="Z1Z2.TxtNbSpZ2.Text", unit="spires", right=right, factor=1, tolerance=0.1 / right)


CASES = [
    case("Unun 1 vers 4, 5 spires", 50, 200, 5, 10),
    case("Unun 1 vers 9, 4 spires", 50, 450, 4, 12),
    case("Antenne demi-onde, 1 vers 49, 2 spires", 50, 2450, 2, 14),
    case("75 vers 50 Ω, 11 spires", 75, 50, 11, 8.98),
]
