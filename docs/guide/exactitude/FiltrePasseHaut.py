"""Passe-haut.

Source: chain matrices of a series capacitor and a shunt coil between equal impedances; the corner is where half of the
power passes.
"""

from accuracy import Case
from reseau import capacitor, chain, coil, corner, series, shunt, transfer

PANEL = "FiltrePasseHaut"


def case(name, hertz, ohms, unit, scale):
    """The frequency that was typed, beside the corner of the parts that the panel shows."""
    def right(value):
        henrys, farads = value(f"{PANEL}.TxtSelf.Text"), value(f"{PANEL}.TxtCapa.Text")
        return scale * corner(
            lambda f: transfer(chain(series(1 / capacitor(farads, f)), shunt(1 / coil(henrys, f))), ohms, ohms),
            hertz * 100, hertz / 10)

    return Case(name, [f'replace {PANEL}.TxtFreq "{hertz}"', f'replace {PANEL}.TxtZCharge "{ohms}"'],
                read=f"{PANEL}.TxtFreq.Text", unit=unit, scale=scale, right=right, factor=0.71)


CASES = [
    case("Coupure, 1,6 MHz et 50 Ω tapés", 1600000, 50, "MHz", 1e-6),
    case("Coupure, 40 MHz et 75 Ω tapés", 40000000, 75, "MHz", 1e-6),
    case("Coupure, 300 Hz et 600 Ω tapés", 300, 600, "Hz", 1),
]
