"""Selfs sur tores.

Source: Ampère's law around a ring of rectangular section: L = mu0 mu N² h ln(outer / inner) / 2 pi. Dimensions,
permeabilities and AL are those that the makers publish (Micrometals for T50-2 and T200-2, Fair-Rite for the 43 ring).
"""

from math import log

from accuracy import Case

PANEL = "CalculSurTores"


def ring(permeability, outer, inner, height, turns):
    """Inductance in henrys; millimetres."""
    return 2e-7 * permeability * turns ** 2 * height * 1e-3 * log(outer / inner)


def case(name, column, factor_of_maker, turns, henrys, unit, scale, factor):
    """A winding on a known core."""
    al, wound, shown = {"fer": ("TxtAlFerPulverise", "TxtSpiresFerPul", "TxtInductanceFerPul"),
                        "ferrite": ("TxtAlFerrite", "TxtSpiresFerrite", "TxtInductanceFerrite")}[column]
    return Case(name, [f'replace {PANEL}.{al} "{factor_of_maker}"', f'replace {PANEL}.{wound} "{turns}"'],
                read=f"{PANEL}.{shown}.Text", unit=unit, scale=scale, right=henrys * scale, factor=factor)


CASES = [
    case("T50-2, AL 49, 12 tours", "fer", 49, 12, ring(10, 12.7, 7.7, 4.83, 12), "µH", 1e6, 1.01),
    case("T200-2, AL 120, 20 tours", "fer", 120, 20, ring(10, 50.8, 31.8, 14.0, 20), "µH", 1e6, 0.91),
    case("FT240-43, AL 1075, 12 tours", "ferrite", 1075, 12, ring(800, 61, 35.55, 12.7, 12), "µH", 1e6, 0.98),
]
