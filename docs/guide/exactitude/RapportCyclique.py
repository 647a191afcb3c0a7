"""Rapport cyclique variable.

Source: the thresholds of the 555, a third and two thirds of the supply (data sheet of the NE555, Texas Instruments,
SLFS022), and a silicon diode of 0.6 V in series: the capacitor discharges from 2V/3 to V/3 towards 0.6 V, so that
t = R C ln((2V/3 - 0.6) / (V/3 - 0.6)).
"""

from math import log

from accuracy import Case

PANEL = "RapportCyclique"
SUPPLY, DIODE = 12.0, 0.6


def case(name, frequency, capacitor, percent):
    """P1a for an output that is low for that part of the period."""
    low = (percent - 1) / 100 * 0.99 / frequency[2]
    needed = low / (capacitor[2] * log((2 * SUPPLY / 3 - DIODE) / (SUPPLY / 3 - DIODE)))
    return Case(name, [f"select {PANEL}.LstFreq {frequency[1]}", f"scroll {PANEL}.HScrlFreq {frequency[0]}",
                       f"select {PANEL}.LstCondo {capacitor[1]}", f"scroll {PANEL}.HScrlCondo {capacitor[0]}",
                       f"scroll {PANEL}.HScrlRapportCyclique {percent}"],
                read=f"{PANEL}.LblP1a.Caption", unit="Ω", right=needed, factor=1.12)


CASES = [
    case("120 Hz, 33 nF, 25 %", (120, 0, 120), (33, 1, 33e-9), 25),
    case("1 kHz, 10 nF, 50 %", (1, 1, 1000), (10, 1, 10e-9), 50),
    case("20 kHz, 1 nF, 80 %", (20, 1, 20e3), (1, 1, 1e-9), 80),
]
