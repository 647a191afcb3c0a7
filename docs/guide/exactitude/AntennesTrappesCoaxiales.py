"""Trappes coaxiales.

Source: the cylindrical current sheet of bobine.py beside this script. The capacitance is that of the length of cable, and
both make the resonance.
"""

from math import pi, sqrt

from accuracy import Case
from bobine import coil

PANEL = "AntennesTrappesCoaxiales"


def case(name, cable, picofarads, former, megahertz):
    """The frequency that was typed, beside the resonance of the winding that the panel shows."""
    def right(value):
        turns = value(f"{PANEL}.TxtNombreTours.Text")
        inductance = coil(former + cable, turns * cable, turns) * 1e-6
        capacity = picofarads * 1e-12 * value(f"{PANEL}.TxtLongueurCoaxial.Text") * 1e-3
        return 1e-6 / (2 * pi * sqrt(inductance * capacity))

    return Case(name, [f'replace {PANEL}.TxtDiamCoax "{cable}"', f'replace {PANEL}.TxtCapacitParMetre "{picofarads}"',
                       f'replace {PANEL}.TxtDiamMandrin "{former}"', f'replace {PANEL}.TxtFrequence "{megahertz}"',
                       f"click {PANEL}.BtnCalculer"],
                read=f"{PANEL}.TxtFrequence.Text", unit="MHz", right=right, factor=1)


CASES = [
    case("RG-58 sur 50 mm, 7,05 MHz", 4.95, 93.5, 50, 7.05),
    case("RG-213 sur 100 mm, 3,6 MHz", 10.29, 101, 100, 3.6),
    case("RG-174 sur 32 mm, 14,2 MHz", 2.54, 101, 32, 14.2),
]
