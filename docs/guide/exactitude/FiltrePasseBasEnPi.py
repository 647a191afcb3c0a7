"""Filtre en Pi.

Source: chain matrices of the ladder, and the impedance seen at its input with the right load.
"""

from accuracy import Case
from reseau import capacitor, chain, coil, input_impedance, series, shunt

PANEL = "FiltrePasseBasEnPi"


def steps(megahertz, upper, lower, q, row=0):
    """A network of that Q."""
    return [f'replace {PANEL}.TxtFreq "{megahertz}"', f'replace {PANEL}.TxtRin "{upper}"',
            f'replace {PANEL}.TxtRout "{lower}"', f"select {PANEL}.LstType {row}", f"scroll {PANEL}.Qscroll {q}"]


def pi_case(megahertz, upper, lower, q):
    """A conventional Pi."""
    def right(value):
        f = megahertz * 1e6
        c1, c2 = value(f"{PANEL}.TxtC1.Text") * 1e-12, value(f"{PANEL}.TxtC2.Text") * 1e-12
        network = chain(shunt(capacitor(c1, f)), series(coil(value(f"{PANEL}.TxtL1.Text") * 1e-6, f)),
                        shunt(capacitor(c2, f)))
        return abs(input_impedance(network, lower))

    name = f"Pi de {upper} à {lower} Ω, {megahertz} MHz, Q {q // 10}".replace(".", ",")
    return Case(name, steps(megahertz, upper, lower, q), read=f"{PANEL}.TxtRin.Text", unit="Ω", right=right, factor=1)


def tee_coil(value):
    """The first coil of a T, from its reactance; microhenrys."""
    return abs(coil(1, 3.65e6)) ** -1 * value(f"{PANEL}.TxtX1.Text") * 1e6


CASES = [
    pi_case(3.65, 1000, 50, 120),
    pi_case(14.2, 200, 50, 50),
    pi_case(28.5, 2500, 50, 150),
    Case("T de 1000 à 50 Ω : « L1 »", steps(3.65, 1000, 50, 120, row=1), read=f"{PANEL}.TxtC1.Text", unit="µH",
         right=tee_coil, factor=0.25),
]
