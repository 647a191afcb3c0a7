"""Astable.

Source: data sheet of the NE555 (Texas Instruments, SLFS022), "Astable operation": the capacitor charges through
R1 + R2 from a third to two thirds of the supply and discharges through R2, so that
T = ln 2 (R1 + 2 R2) C.
"""

from math import log

from accuracy import Case


def resistor(frequency, capacity):
    """R1 in ohms for a wanted frequency in hertz, with R2 = 3 R1."""
    return 1 / (frequency * capacity * log(2) * 7)


def case(name, unit, position, row, capacity, frequency):
    """R1 that the panel offers, beside the one that gives this frequency."""
    return Case(name, [f"select Astable.LstFreq {unit}", f"scroll Astable.HscrFreq {position}",
                       f"select Astable.LstCapa {row}", f"scroll Astable.HscrCapa {capacity[0]}"],
                read="Astable.LblR1.Caption", unit="Ω", right=resistor(frequency, capacity[1]), factor=1.75)


CASES = [
    case("R1 pour 440 Hz, 33 nF", 0, 440, 1, (33, 33e-9), 440),
    case("R1 pour 2 Hz, 10 µF", 0, 2, 0, (10, 10e-6), 2),
    case("R1 pour 38 kHz, 470 pF", 1, 38, 2, (470, 470e-12), 38e3),
]
