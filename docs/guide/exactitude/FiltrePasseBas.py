"""Passe-bas.

Source: chain matrices of a series coil and a shunt capacitor between equal impedances; the corner is where half of the
power passes.
"""

from accuracy import Case
from reseau import capacitor, chain, coil, corner, series, shunt, transfer

PANEL = "FiltrePasseBas"


def case(name, hertz, ohms, unit, scale):
    """The frequency that was typed, beside the corner of the parts that the panel shows."""
    def right(value):
        henrys, farads = value(f"{PANEL}.TxtSelf.Text"), value(f"{PANEL}.TxtCapa.Text")
        return scale * corner(lambda f: transfer(chain(series(coil(henrys, f)), shunt(capacitor(farads, f))), ohms, ohms),
                              hertz / 100, hertz * 10)

    return Case(name, [f'replace {PANEL}.TxtFreq "{hertz}"', f'replace {PANEL}.TxtZCharge "{ohms}"'],
                read=f"{PANEL}.TxtFreq.Text", unit=unit, scale=scale, right=right, factor=1.41)


CASES = [
    case("Coupure, 30 MHz et 50 Ω tapés", 30000000, 50, "MHz", 1e-6),
    case("Coupure, 3 kHz et 600 Ω tapés", 3000, 600, "kHz", 1e-3),
    case("Coupure, 150 MHz et 75 Ω tapés", 150000000, 75, "MHz", 1e-6),
]
