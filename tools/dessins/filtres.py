"""The matching networks in Pi, T and L, and the LC sections."""

from __future__ import annotations

from sheet import DIM, LETTER, THIN, Sheet, picture
from symbols import capacitor, impedance, inductor, junction, terminal

# The frame of the five matching networks.
LEFT, RIGHT, TOP, BOTTOM = 22.0, 246.0, 56.0, 130.0
FIRST, SECOND = 56.0, 212.0  # the two shunt branches of a Pi
MIDST = 134.0


def network(s: Sheet, heading: str) -> None:
    """Heading, terminals and lower rail; R on the input side, r on the output side."""
    s.text(s.width / 2, 18, heading, LETTER, bold=True)
    s.wire((LEFT, BOTTOM), (RIGHT, BOTTOM))
    middle = (TOP + BOTTOM) / 2
    for x, letter in ((LEFT, "R"), (RIGHT, "r")):
        s.text(x, middle, letter)
        s.arrow((x, middle - 11), (x, TOP + 7), DIM, THIN)
        s.arrow((x, middle + 11), (x, BOTTOM - 7), DIM, THIN)


def finish(s: Sheet, *branches: float) -> None:
    """Dots of the shunt branches, and the terminals on top of the wires."""
    for x in branches:
        junction(s, (x, TOP), (x, BOTTOM))
    terminal(s, (LEFT, TOP), (LEFT, BOTTOM), (RIGHT, TOP), (RIGHT, BOTTOM))


def pi(s: Sheet, heading: str, a: str, b: str, c: str, last) -> None:
    """A Pi: capacitor at the input, coil in series, `last` at the output."""
    network(s, heading)
    s.wire((LEFT, TOP), (FIRST, TOP))
    s.wire((SECOND, TOP), (RIGHT, TOP))
    capacitor(s, (FIRST, TOP), (FIRST, BOTTOM), a)
    inductor(s, (FIRST, TOP), (SECOND, TOP), b)
    last(s, (SECOND, TOP), (SECOND, BOTTOM), c, side=-1)
    finish(s, FIRST, SECOND)


def tee(s: Sheet, heading: str, a: str, b: str, c: str, first) -> None:
    """A T: `first` in series at the input, capacitor across, coil in series at the output."""
    network(s, heading)
    first(s, (LEFT, TOP), (MIDST, TOP), a)
    capacitor(s, (MIDST, TOP), (MIDST, BOTTOM), b)
    inductor(s, (MIDST, TOP), (RIGHT, TOP), c)
    finish(s, MIDST)


@picture("conv-pi", 268, 143, "Pi conventionnel")
def conv_pi(s: Sheet) -> None:
    pi(s, "Conv Pi", "C1 = Xa", "L = Xb", "C2 = Xc", capacitor)


@picture("unconv-pi", 268, 143, "Pi non conventionnel")
def unconv_pi(s: Sheet) -> None:
    pi(s, "Unconv Pi", "C = Xa", "L1 = Xb", "L2 = Xc", inductor)


@picture("conv-t", 268, 143, "T conventionnel")
def conv_t(s: Sheet) -> None:
    tee(s, "Conv T", "L1 = X1", "C = X2", "L2 = X3", inductor)


@picture("unconv-t", 268, 143, "T non conventionnel")
def unconv_t(s: Sheet) -> None:
    tee(s, "Unconv T", "C1 = X1", "C2 = X2", "L2 = X3", capacitor)


@picture("filtre-l", 268, 143, "Filtre en L")
def filtre_l(s: Sheet) -> None:
    network(s, "Filtre en L")
    x = 84.0
    s.wire((LEFT, TOP), (x, TOP))
    capacitor(s, (x, TOP), (x, BOTTOM), "C = Xa")
    inductor(s, (x, TOP), (RIGHT, TOP), "L = Xb")
    finish(s, x)


# The sections between a line and a load Z. The letters are labels of the panels.
IN, OUT, HIGH, LOW = 26.0, 262.0, 44.0, 134.0
SHUNT = 172.0


def load(s: Sheet) -> None:
    """The load on the right, the lower rail and the input terminals."""
    impedance(s, (OUT, HIGH), (OUT, LOW), "Z", label="Label4")
    s.wire((IN, LOW), (OUT, LOW))
    terminal(s, (IN, HIGH), (IN, LOW))


@picture("passe-bas", 300, 148, "Filtre passe-bas")
def passe_bas(s: Sheet) -> None:
    inductor(s, (IN, HIGH), (SHUNT, HIGH), "L", label="Label1")
    s.wire((SHUNT, HIGH), (OUT, HIGH))
    capacitor(s, (SHUNT, HIGH), (SHUNT, LOW), "C", label="Label5")
    junction(s, (SHUNT, HIGH), (SHUNT, LOW))
    load(s)


@picture("passe-haut", 300, 148, "Filtre passe-haut")
def passe_haut(s: Sheet) -> None:
    capacitor(s, (IN, HIGH), (SHUNT, HIGH), "C", label="Label5")
    s.wire((SHUNT, HIGH), (OUT, HIGH))
    inductor(s, (SHUNT, HIGH), (SHUNT, LOW), "L", label="Label1")
    junction(s, (SHUNT, HIGH), (SHUNT, LOW))
    load(s)


@picture("passe-bande", 300, 172, "Filtre passe-bande")
def passe_bande(s: Sheet) -> None:
    """Series arm L2 C2, tuned circuit L1 C1 across the line: the arms that the formulas size."""
    low = LOW + 24
    inductor(s, (IN, HIGH), (94, HIGH), "L2", label="Label10")
    capacitor(s, (94, HIGH), (150, HIGH), "C2", label="Label11")
    s.wire((150, HIGH), (OUT, HIGH))
    for x, part, letter, label in ((136, inductor, "L1", "Label1"), (198, capacitor, "C1", "Label5")):
        part(s, (x, HIGH + 20), (x, low - 20), letter, label=label)
    s.wire((136, HIGH + 20), (198, HIGH + 20))
    s.wire((136, low - 20), (198, low - 20))
    s.wire((167, HIGH), (167, HIGH + 20))
    s.wire((167, low - 20), (167, low))
    junction(s, (167, HIGH), (167, HIGH + 20), (167, low - 20), (167, low))
    impedance(s, (OUT, HIGH), (OUT, low), "Z", label="Label4")
    s.wire((IN, low), (OUT, low))
    terminal(s, (IN, HIGH), (IN, low))


@picture("elimination-bande", 300, 172, "Filtre à élimination de bande")
def elimination_bande(s: Sheet) -> None:
    """Tuned circuit L2 C2 in the line, series arm L1 C1 across it: the arms that the formulas size."""
    top, low = HIGH + 8, LOW + 24
    for y, part, letter, label, side in ((top - 18, inductor, "L2", "Label10", 1),
                                         (top + 18, capacitor, "C2", "Label11", -1)):
        part(s, (66, y), (134, y), letter, label=label, side=side)
    for x in (66, 134):
        s.wire((x, top - 18), (x, top + 18))
    s.wire((IN, top), (66, top))
    s.wire((134, top), (OUT, top))
    inductor(s, (SHUNT, top), (SHUNT, 106), "L1", label="Label1")
    capacitor(s, (SHUNT, 106), (SHUNT, low), "C1", label="Label5")
    junction(s, (66, top), (134, top), (SHUNT, top), (SHUNT, low))
    impedance(s, (OUT, top), (OUT, low), "Z", label="Label4")
    s.wire((IN, low), (OUT, low))
    terminal(s, (IN, top), (IN, low))


@picture("double-pi", 558, 120, "Filtre en double Pi")
def double_pi(s: Sheet) -> None:
    """Two Pi in cascade, each drawn whole: C1 L1 C2, then C3 L2 C4. Each part stands over or under its field."""
    first, step, end, high, low = 66.0, 142.0, 548.0, 24.0, 112.0
    columns = [first + i * step for i in range(4)]
    for x, letter, label in zip(columns, ("C1", "C2", "C3", "C4"), ("Label2", "Label3", "Label6", "Label12")):
        capacitor(s, (x, high), (x, low), letter, label=label)
        junction(s, (x, high), (x, low))
    inductor(s, (columns[0], high), (columns[1], high), "L1", label="Label4")
    inductor(s, (columns[2], high), (columns[3], high), "L2", label="Label5")
    s.wire((10, high), (columns[0], high))
    s.wire((columns[1], high), (columns[2], high))
    s.wire((columns[3], high), (end, high))
    s.wire((10, low), (end, low))
    terminal(s, (10, high), (10, low), (end, high), (end, low))
