"""Condensateur variable.

Source: the capacitance of parallel plates, e0 S / e, summed over the gaps between the blades; a butterfly in series is
two equal capacitors of one sector each in series, in parallel both of them side by side.
"""

from math import pi

from accuracy import Case

PANEL = "CondensateurVariable"
VACUUM = 8.8541878128e-12  # F/m


def sector(degrees, outer, inner, gap):
    """One gap between two blades; millimetres and farads."""
    surface = degrees / 360 * pi * (outer ** 2 - inner ** 2) / 4 * 1e-6
    return VACUUM * surface / (gap * 1e-3)


def case(name, option, blades, gap, degrees, outer, inner, farads):
    """The greatest capacitance, in picofarads."""
    return Case(name, [f"click {PANEL}.{option}", f'replace {PANEL}.TxtMobiles "{blades[0]}"',
                       f'replace {PANEL}.TxtFixes "{blades[1]}"', f'replace {PANEL}.TxtEspacement "{gap}"',
                       f'replace {PANEL}.TxtAngle "{degrees}"', f'replace {PANEL}.TxtRayExt "{outer}"',
                       f'replace {PANEL}.TxtRayInt "{inner}"'],
                read=f"{PANEL}.TxtCapacite.Text", unit="pF", scale=1e12, right=farads * 1e12, factor=1)


HALF = 8 * sector(85, 70, 20, 1)  # one half of a butterfly of 4 and 5 blades

CASES = [
    case("CV de 12 et 13 lames, 1,5 mm d'air", "OptClassique", (12, 13), 1.5, 180, 60, 20, 24 * sector(180, 60, 20, 1.5)),
    case("Papillon série de 4 et 5 lames", "OptPapSer", (4, 5), 1, 85, 70, 20, HALF / 2),
    case("Papillon parallèle, le même", "OptPapPar", (4, 5), 1, 85, 70, 20, HALF * 2),
]
