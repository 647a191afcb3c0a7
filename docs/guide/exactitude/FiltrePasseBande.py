"""Passe-bande.

Source: both branches of a band-pass section resonate at the geometric mean of the band's edges, f0² = F1 F2; that gives
each capacitor from its coil.
"""

from math import pi

from accuracy import Case

PANEL = "FiltrePasseBande"


def case(name, low, high, ohms, which, unit, scale, factor):
    """A capacitor, beside the one that resonates with the coil of its branch."""
    return Case(name, [f'replace {PANEL}.TxtZCharge "{ohms}"', f'replace {PANEL}.TxtFreq1 "1"',
                       f'replace {PANEL}.TxtFreq2 "{high}"', f'replace {PANEL}.TxtFreq1 "{low}"'],
                read=f"{PANEL}.TxtCapa{which}.Text", unit=unit, scale=scale, factor=factor,
                right=lambda value: scale / (4 * pi ** 2 * low * high * value(f"{PANEL}.TxtSelf{which}.Text")))


CASES = [
    case("Capacité1, 300 à 3000 Hz, 600 Ω", 300, 3000, 600, 1, "nF", 1e9, 1),
    case("Capacité2, 300 à 3000 Hz, 600 Ω", 300, 3000, 600, 2, "nF", 1e9, 333.3),
    case("Capacité1, 7 à 7,2 MHz, 50 Ω", 7000000, 7200000, 50, 1, "pF", 1e12, 1),
    case("Capacité2, 7 à 7,2 MHz, 50 Ω", 7000000, 7200000, 50, 2, "pF", 1e12, 252000000),
]
