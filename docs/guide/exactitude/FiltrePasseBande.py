"""Passe-bande.

Source: both branches of a band-pass section resonate at the geometric mean of the band's edges, f0² = F1 F2; that gives
each capacitor from its coil. The corner is where half of the power passes, by chain matrices between equal impedances.
"""

from math import pi

from accuracy import Case
from reseau import capacitor, chain, coil, corner, series, shunt, transfer

PANEL = "FiltrePasseBande"


def steps(low, high, ohms):
    """With no lower frequency first, so that the higher one never meets it."""
    return [f'replace {PANEL}.TxtZCharge "{ohms}"', f'replace {PANEL}.TxtFreq1 "0"',
            f'replace {PANEL}.TxtFreq2 "{high}"', f'replace {PANEL}.TxtFreq1 "{low}"']


def lower_corner(low, high, ohms):
    """Where the section begins to pass, its series branch tuned to the middle of the band; hertz."""
    def right(value):
        l1, c1, l2 = (value(f"{PANEL}.Txt{part}.Text") for part in ("Self1", "Capa1", "Self2"))
        c2 = 1 / (4 * pi ** 2 * low * high * l2)

        def gain(f):
            branch = coil(l2, f) + 1 / capacitor(c2, f)
            return transfer(chain(series(branch), shunt(capacitor(c1, f) + 1 / coil(l1, f))), ohms, ohms)

        return corner(gain, (low * high) ** 0.5, low / 20)

    return right


def case(name, low, high, ohms, which, unit, scale, factor):
    """A capacitor, beside the one that resonates with the coil of its branch."""
    return Case(name, steps(low, high, ohms), read=f"{PANEL}.TxtCapa{which}.Text", unit=unit, scale=scale, factor=factor,
                right=lambda value: scale / (4 * pi ** 2 * low * high * value(f"{PANEL}.TxtSelf{which}.Text")))


CASES = [
    case("Capacité1, 300 à 3000 Hz, 600 Ω", 300, 3000, 600, 1, "nF", 1e9, 1),
    case("Capacité2, 300 à 3000 Hz, 600 Ω", 300, 3000, 600, 2, "nF", 1e9, 333.3),
    case("Capacité1, 7 à 7,2 MHz, 50 Ω", 7000000, 7200000, 50, 1, "pF", 1e12, 1),
    case("Capacité2, 7 à 7,2 MHz, 50 Ω", 7000000, 7200000, 50, 2, "pF", 1e12, 252000000),
    Case("Bas de la bande, 223 à 4041 Hz, 600 Ω", steps(223, 4041, 600), read=f"{PANEL}.TxtFreq1.Text", unit="Hz",
         right=lower_corner(223, 4041, 600), factor=0.743),
]
