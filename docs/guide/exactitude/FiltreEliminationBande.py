"""Élimination de bande.

Source: both branches of a band-stop section resonate at the geometric mean of the band's edges; and the width between the
points of half power, by chain matrices between equal impedances.
"""

from math import pi

from accuracy import Case
from reseau import capacitor, chain, coil, corner, series, shunt, transfer

PANEL = "FiltreEliminationBande"


def steps(low, high, ohms):
    """The higher frequency first, so that the lower one never passes it."""
    return [f'replace {PANEL}.TxtZCharge "{ohms}"', f'replace {PANEL}.TxtFreq2 "{high}"', f'replace {PANEL}.TxtFreq1 "{low}"']


def resonance(name, low, high, ohms, which, unit, scale):
    """A capacitor, beside the one that resonates with the coil of its branch."""
    return Case(name, steps(low, high, ohms), read=f"{PANEL}.TxtCapa{which}.Text", unit=unit, scale=scale, factor=1,
                right=lambda value: scale / (4 * pi ** 2 * low * high * value(f"{PANEL}.TxtSelf{which}.Text")))


def lower_corner(low, high, ohms):
    """Where the section begins to stop, below the band."""
    def right(value):
        l1, c1, l2, c2 = (value(f"{PANEL}.Txt{part}.Text") for part in ("Self1", "Capa1", "Self2", "Capa2"))

        def gain(f):
            trap = 1 / (1 / coil(l2, f) + capacitor(c2, f))
            across = 1 / (coil(l1, f) + 1 / capacitor(c1, f))
            return transfer(chain(series(trap), shunt(across)), ohms, ohms)

        return corner(gain, low / 20, (low * high) ** 0.5 * 0.99999) / 1e6

    return right


CASES = [
    resonance("Capacité1, 88 à 108 MHz, 50 Ω", 88000000, 108000000, 50, 1, "pF", 1e12),
    resonance("Capacité2, 88 à 108 MHz, 50 Ω", 88000000, 108000000, 50, 2, "pF", 1e12),
    Case("Bas de la bande arrêtée, 88 à 108 MHz", steps(88000000, 108000000, 50), read=f"{PANEL}.TxtFreq1.Text", unit="MHz",
         scale=1e-6, right=lower_corner(88e6, 108e6, 50), factor=1.04),
]
