"""Coaxiaux courants.

Source: a line without loss: C = 1 / (Z v), with v the velocity factor times the speed of light; so each row of the
catalogue can be held against itself. RG-58 Foam shows the capacitance of the solid cable.
"""

from accuracy import Case

PANEL = "RVListeCoaxiaux"
LIGHT = 299792458


def capacity(impedance, velocity):
    """Picofarads a metre."""
    return 1e12 / (impedance * velocity * LIGHT)


def case(name, criterion, row, impedance, velocity, factor):
    """The capacitance of a cable, found by its impedance."""
    return Case(name, [f"click {PANEL}.OptZ", f"select {PANEL}.LstCritere {criterion}", f"select {PANEL}.LstResultat {row}"],
                read=f"{PANEL}.TxtpF.Text", unit="pF/m", right=capacity(impedance, velocity), factor=factor)


CASES = [
    case("RG-213", 0, 10, 50, 0.66, 1),
    case("RG-6, mousse", 5, 0, 75, 0.75, 1.03),
    case("RG-142, téflon", 0, 6, 50, 0.70, 1.01),
    case("RG-58 Foam", 3, 3, 53.5, 0.79, 1.18),
]
