"""Transformateur.

Sources: area of a disc for the wires; for the turns Faraday's law of induction with a sine of 1 tesla,
U = 2 pi f N B S / sqrt 2; for the core the usual rule of one square centimetre for the root of one volt-ampere times 1.1
(1 tesla, 50 Hz).
"""

from math import pi, sqrt

from accuracy import Case

PANEL = "Transformateur"
DENSITY = {40: 4.0, 90: 3.5, 150: 3.0}  # A/mm² that the panel itself takes, by the power of the winding in VA


def steps(volts, amperes, quality):
    """One winding, and the click that computes."""
    return [f'replace {PANEL}.TxtNbreEnrSec "1"', f'replace {PANEL}.TxtUSec(0) "{volts}"',
            f'replace {PANEL}.TxtIsec(0) "{amperes}"', f"select {PANEL}.LstTole {quality}"]


def wire(name, volts, amperes):
    """The wire of a winding."""
    section = amperes / DENSITY[volts * amperes]
    return Case(name, steps(volts, amperes, 1), read=f"{PANEL}.TxtDiamFil(0).Text", unit="mm",
                right=2 * sqrt(section / pi), factor=0.55)


def primary_turns(value):
    """The turns for 220 V around the core that the panel shows."""
    return 220 * sqrt(2) / (2 * pi * 50 * 1.0 * value(f"{PANEL}.TxtSecBrute.Text") * 1e-4)


CASES = [
    wire("Fil pour 8 V, 5 A", 8, 5),
    wire("Fil pour 18 V, 5 A", 18, 5),
    wire("Fil pour 15 V, 10 A", 15, 10),
    Case("Spires du primaire, 18 V 5 A", steps(18, 5, 1), read=f"{PANEL}.TxtSpiresPrimaire.Text", unit="",
         right=primary_turns, factor=1.02, tolerance=0.01),
    Case("Section du noyau, 18 V 5 A", steps(18, 5, 1), read=f"{PANEL}.TxtSec.Text", unit="cm²",
         right=1.1 * sqrt(90 / 0.8933), factor=1, tolerance=0.002),
]
