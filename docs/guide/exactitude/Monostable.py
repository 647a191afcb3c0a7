"""Monostable.

Source: data sheet of the NE555 (Texas Instruments, SLFS022), "Monostable operation": the capacitor charges through R
from zero to two thirds of the supply, V (1 - exp(-t / RC)) = 2 V / 3, so that T = RC ln 3, 1.1 RC in round figures.
"""

from math import log

from accuracy import Case


def case(name, resistor, capacitor, unit, scale):
    """`resistor` and `capacitor`: position of the bar, row of the list, value in ohms or farads."""
    return Case(name, [f"scroll Monostable.HscrRes {resistor[0]}", f"select Monostable.LstRes {resistor[1]}",
                       f"scroll Monostable.HscrCapa {capacitor[0]}", f"select Monostable.LstCapa {capacitor[1]}"],
                read="Monostable.LblDuree.Caption", unit=unit, right=resistor[2] * capacitor[2] * log(3) / scale,
                factor=0.631)


CASES = [
    case("470 kΩ et 100 µF", (470, 1, 470e3), (100, 0, 100e-6), "s", 1),
    case("100 kΩ et 100 nF", (100, 1, 100e3), (100, 1, 100e-9), "ms", 1e-3),
    case("10 kΩ et 680 pF", (10, 1, 10e3), (680, 2, 680e-12), "µs", 1e-6),
]
