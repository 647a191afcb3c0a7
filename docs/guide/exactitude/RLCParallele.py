"""Circuit RLC parallèle.

Source: complex admittances of the two branches, 1 / (R + jwL) and jwC.
"""

from math import pi

from accuracy import Case

PANEL = "RLCParallele"


def case(name, read, unit, right, values, factor=1.0):
    """`values`: ohms, microhenrys, picofarads, tenths of a megahertz."""
    return Case(name, [f'replace {PANEL}.TxtR "{values[0]}"', f'replace {PANEL}.TxtL "{values[1]}"',
                       f'replace {PANEL}.TxtC "{values[2]}"', f"scroll {PANEL}.HScroll1 {values[3]}"],
                read=f"{PANEL}.{read}", unit=unit, right=right(*values), factor=factor)


def coil(ohms, microhenrys, _, tenths):
    """Impedance of the coil."""
    return abs(ohms + 2j * pi * tenths * 1e5 * microhenrys * 1e-6)


def capacitor(_, __, picofarads, tenths):
    """Current of the capacitor at 1 V, in milliamperes."""
    return 2 * pi * tenths * 1e5 * picofarads * 1e-12 * 1e3


TRAP = (5, 2.2, 47, 141)
TANK = (2, 0.5, 220, 152)

CASES = [
    case("Self de 2,2 µH et 5 Ω, 14,1 MHz", "TxtXl.Text", "Ω", coil, TRAP),
    case("Courant de 47 pF, 14,1 MHz", "Label16.Caption", "mA", capacitor, TRAP),
    case("Courant de 0,5 µH et 2 Ω, 15,2 MHz", "Label13.Caption", "mA", lambda *v: 1e3 / coil(*v), TANK),
    case("Courant de 220 pF, 15,2 MHz", "Label16.Caption", "mA", capacitor, TANK),
]
