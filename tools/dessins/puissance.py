"""The mains transformer, the meters and the loaded divider."""

from __future__ import annotations

from sheet import METAL, Sheet, picture
from symbols import battery, ground, impedance, inductor, junction, meter, potentiometer, resistor, terminal


@picture("transformateur", 430, 210, "Transformateur et tôles en E et I")
def transformateur(s: Sheet) -> None:
    """Windings on the left, lamination in the middle, section of the core on the right."""
    windings(s)
    lamination(s, 152, 44, 22)
    core(s, 344, 72, 22)


def windings(s: Sheet) -> None:
    """One primary and four secondaries on one core."""
    top, bottom, primary, secondary = 34.0, 178.0, 34.0, 84.0
    inductor(s, (primary, top), (primary, bottom), turns=9, side=1)
    s.wire((14, top), (primary, top))
    s.wire((14, bottom), (primary, bottom))
    for x in (56, 62):
        s.wire((x, top - 4), (x, bottom + 4), width=2.2, cap="butt")
    for i in range(4):
        y = top + 38 * i
        inductor(s, (secondary, y), (secondary, y + 30), turns=3, side=-1)
        s.wire((secondary, y), (102, y))
        s.wire((secondary, y + 30), (102, y + 30))


def lamination(s: Sheet, x: float, y: float, a: float) -> None:
    """An I above an E: 6a wide, 5a high, two windows of a by 3a."""
    s.polygon((x, y), (x + 6 * a, y), (x + 6 * a, y + a), (x, y + a), fill=METAL)
    y1, y2 = y + a, y + 5 * a
    s.polygon((x, y1), (x + a, y1), (x + a, y1 + 3 * a), (x + 2 * a, y1 + 3 * a), (x + 2 * a, y1), (x + 4 * a, y1),
              (x + 4 * a, y1 + 3 * a), (x + 5 * a, y1 + 3 * a), (x + 5 * a, y1), (x + 6 * a, y1), (x + 6 * a, y2),
              (x, y2), fill=METAL)
    s.dimension((x + a, y), (x, y), "a", -14, label="Label11")
    s.dimension((x + 2 * a, y), (x + 4 * a, y), "2a", 14, label="Label12")
    s.dimension((x + 4.5 * a, y1 + 3 * a), (x + 4.5 * a, y1), "3a", label="Label10")
    s.dimension((x + 6 * a, y2), (x + 6 * a, y), "5a", -16, label="Label13")
    s.dimension((x, y2), (x + 6 * a, y2), "6a", -16, label="Label21")


def core(s: Sheet, x: float, y: float, a: float) -> None:
    """The middle leg in section, a square of stacked sheets."""
    for i in range(1, 11):
        s.wire((x + i * 2 * a / 11, y), (x + i * 2 * a / 11, y + 2 * a), width=0.6, cap="butt")
    s.rect(x, y, 2 * a, 2 * a)
    s.dimension((x, y + 2 * a), (x + 2 * a, y + 2 * a), "2a", -16, label="Label14")
    s.dimension((x + 2 * a, y + 2 * a), (x + 2 * a, y), "2a", -16, label="Label20")


@picture("shunt-amperemetre", 240, 120, "Galvanomètre et résistance en parallèle")
def shunt_amperemetre(s: Sheet) -> None:
    left, right, top, bottom = 62.0, 178.0, 38.0, 86.0
    meter(s, (left, top), (right, top), "A")
    resistor(s, (left, bottom), (right, bottom), "R", side=-1)
    for x, end in ((left, 22), (right, 218)):
        s.wire((x, top), (x, bottom))
        s.wire((x, 62), (end, 62))
        junction(s, (x, 62))
        terminal(s, (end, 62))
    s.text(22, 46, "+")
    s.text(218, 46, "−")


@picture("shunt-voltmetre", 240, 84, "Galvanomètre et résistance en série")
def shunt_voltmetre(s: Sheet) -> None:
    y = 44.0
    resistor(s, (22, y), (110, y), "R")
    meter(s, (110, y), (218, y), "A")
    terminal(s, (22, y), (218, y))
    s.text(22, 28, "+")
    s.text(218, 28, "−")


@picture("pont-potentiometre", 320, 250, "Pont diviseur chargé")
def pont_potentiometre(s: Sheet) -> None:
    """The load Rc hangs on the wiper; at the top of its travel the wiper has the whole track below it."""
    supply, divider, out, top, bottom = 62.0, 158.0, 262.0, 28.0, 216.0
    battery(s, (supply, top), (supply, bottom), "Alim", side=-1)
    s.wire((supply, top), (divider, top))
    s.head(((supply + divider) / 2 + 4, top), (1, 0))
    s.text((supply + divider) / 2, top - 13, "Ip")
    resistor(s, (divider, top), (divider, 90), "R1", side=-1)
    potentiometer(s, (divider, 90), (divider, 154), (out - 50, 122), "Pot", side=-1)
    resistor(s, (divider, 154), (divider, bottom), "R2", side=-1)
    s.wire((out - 50, 122), (out, 122))
    s.head((out - 22, 122), (1, 0))
    s.text(out - 26, 109, "Ic")
    impedance(s, (out, 122), (out, bottom), "Rc", side=-1)
    s.wire((supply, bottom), (out, bottom))
    junction(s, (divider, bottom))
    ground(s, (divider, bottom))
    s.dimension((out, bottom), (out, 122), "Us", -30)
