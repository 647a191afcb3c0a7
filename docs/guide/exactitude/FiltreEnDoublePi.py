"""Double Pi.

Source: chain matrices of the ladder that the panel draws (C1, L1, C2 and C3 side by side, L2, C4), and the impedance seen
at its input with the right load.
"""

from accuracy import Case
from reseau import capacitor, chain, coil, input_impedance, series, shunt

PANEL = "FiltreEnDoublePi"


def case(name, megahertz, band, ohms, factor):
    """The input impedance that was asked for, beside the one that there is."""
    def right(value):
        c1, l1, c2, c3, l2, c4 = (value(f"{PANEL}.Txt{part}.Text") for part in ("C1", "L1", "C2", "C3", "L2", "C4"))
        f = megahertz * 1e6
        network = chain(shunt(capacitor(c1, f)), series(coil(l1, f)), shunt(capacitor(c2 + c3, f)), series(coil(l2, f)),
                        shunt(capacitor(c4, f)))
        return abs(input_impedance(network, ohms))

    return Case(name, [f'replace {PANEL}.TxtF0 "{megahertz}"', f'replace {PANEL}.TxtBP "{band}"',
                       f'replace {PANEL}.TxtZin "{ohms}"', f'replace {PANEL}.TxtZout "{ohms}"'],
                read=f"{PANEL}.TxtZin.Text", unit="Ω", right=right, factor=factor)


CASES = [
    case("Z d'entrée, 7,1 MHz, bande de 1 MHz", 7.1, 1, 50, 0.43),
    case("Z d'entrée, 14,2 MHz, bande de 0,35 MHz", 14.2, 0.35, 50, 0.49),
    case("Z d'entrée, 3,65 MHz, bande de 0,3 MHz", 3.65, 0.3, 50, 0.46),
]
