"""Valeur d'une self.

Source: the cylindrical current sheet of bobine.py beside this script.
"""

from accuracy import Case
from bobine import coil

PANEL = "CalculSelf"


def case(name, diameter, length, turns):
    """A coil whose mean diameter is typed."""
    return Case(name, [f'replace {PANEL}.TxtD "{diameter}"', f'replace {PANEL}.TxtL "{length}"',
                       f'replace {PANEL}.TxtN "{turns}"', f"click {PANEL}.BtnCalculer"],
                read=f"{PANEL}.TxtS.Text", unit="µH", scale=1e6, right=coil(diameter, length, turns), factor=1)


CASES = [
    case("22 spires, 52 mm, longueur 80 mm", 52, 80, 22),
    case("8 spires, 10 mm, longueur 15 mm", 10, 15, 8),
    case("55 spires, 102 mm, longueur 312 mm", 102, 312, 55),
]
