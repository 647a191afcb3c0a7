"""Dipôle raccourci.

Source: the method of moments, in antenne.py beside this script.
"""

from math import pi

from accuracy import Case
from antenne import loading_reactance

PANEL = "AntennesDipolesRaccourcis"


def case(length, coil, millimetres, megahertz, factor):
    """The inductance in each arm, in microhenrys."""
    def right(value):
        guess = value(f"{PANEL}.TxtXL.Text") * 1.1
        return loading_reactance(length, coil, millimetres / 1e3, megahertz * 1e6, guess) / (2 * pi * megahertz)

    name = f"{length} m, selfs à {coil} m, {megahertz} MHz".replace(".", ",")
    return Case(name, [f'replace {PANEL}.TxtA "{length}"', f'replace {PANEL}.TxtB "{coil}"',
                       f'replace {PANEL}.TxtDiam "{millimetres}"', f'replace {PANEL}.TxtF "{megahertz}"'],
                read=f"{PANEL}.TxtValSelf.Text", unit="µH", scale=1e6, right=right, factor=factor, tolerance=0.02)


CASES = [case(20, 6, 2, 3.65, 0.90), case(15, 4.5, 3, 3.5, 0.90), case(10, 2.5, 2, 7.05, 0.90)]
