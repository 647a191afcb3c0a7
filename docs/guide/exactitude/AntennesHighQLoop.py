"""High Q loop.

Source: the inductance of a ring of round conductor with its current on the surface, mu0 R (ln(8R/a) - 2); the radiation
resistance of a small loop, 20 (2 pi / lambda)^4 S² ohms (any text on antennas); and for the voltage the definition of Q
without load, which for a matched loop is twice that of its bandwidth.
"""

from math import log, pi, sqrt

from accuracy import Case

PANEL = "AntennesHighQLoop"
TUBE = 0.022  # metres


def steps(low, high, fraction):
    """An octagon of the wavelength over `fraction`."""
    return [f'replace {PANEL}.TxtFreqMin "{low}"', f'replace {PANEL}.TxtFreqMax "{high}"',
            f"select {PANEL}.LstNbreCotes 3", f"select {PANEL}.LstLambdaSur {fraction - 1}", f"click {PANEL}.BtnCalculer"]


def ring(value):
    """Inductance of a ring as long as the loop's eight sides, in microhenrys."""
    radius = 8 * value(f"{PANEL}.TxtLongueurCote.Text") / 100 / (2 * pi)
    return 4e-7 * pi * radius * (log(8 * radius / (TUBE / 2)) - 2) * 1e6


def capacitor(megahertz):
    """What tunes that ring, in picofarads."""
    return lambda value: 1e18 / ((2 * pi * megahertz * 1e6) ** 2 * ring(value))


def radiation(megahertz):
    """Radiation resistance of the loop's surface, in milliohms."""
    return lambda value: 20 * (2 * pi * megahertz / 299.792458) ** 4 * value(f"{PANEL}.TxtSurface.Text") ** 2 * 1e3


def peak(value):
    """Peak voltage at 100 W with the panel's own reactance and bandwidth."""
    return sqrt(2 * 100 * value(f"{PANEL}.TxtXL_FreqMin.Text") * 2 * value(f"{PANEL}.TxtQ_FreqMin.Text"))


CASES = [
    Case("Inductance, 7 à 7,2 MHz, λ/10", steps("7", "7,2", 10), read=f"{PANEL}.TxtInductance.Text", unit="µH", right=ring,
         factor=0.54),
    Case("Condensateur à 7 MHz, λ/10", steps("7", "7,2", 10), read=f"{PANEL}.TxtCf_FreqMin.Text", unit="pF", scale=1e12,
         right=capacitor(7), factor=1.86),
    Case("Condensateur à 14 MHz, λ/10", steps("14", "14,35", 10), read=f"{PANEL}.TxtCf_FreqMin.Text", unit="pF", scale=1e12,
         right=capacitor(14), factor=0.78),
    Case("Résistance de rayonnement à 7 MHz", steps("7", "7,2", 10), read=f"{PANEL}.TxtRR_FreqMin.Text", unit="mΩ",
         scale=1e3, right=radiation(7), factor=1),
    Case("Tension de crête à 7 MHz, 100 W", steps("7", "7,2", 10), read=f"{PANEL}.TxtVC_FreqMin.Text", unit="V",
         right=peak, factor=0.5),
]
