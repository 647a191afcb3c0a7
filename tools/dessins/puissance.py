"""The mains transformer, the meters and the loaded divider."""

from __future__ import annotations

from sheet import HEAVY, METAL, THIN, Sheet, picture
from symbols import battery, ground, impedance, inductor, junction, meter, potentiometer, resistor, terminal


@picture("transformateur", 430, 232, "Transformateur et tôles en E et I")
def transformateur(s: Sheet) -> None:
    """Windings on the left, lamination in the middle, section of the core on the right."""
    windings(s)
    lamination(s, 142, 48, 26)
    core(s, 350, 87, 26)


def windings(s: Sheet) -> None:
    """One primary and four secondaries on one core."""
    top, bottom, primary, secondary, right = 22.0, 204.0, 36.0, 80.0, 100.0
    inductor(s, (primary, top), (primary, bottom), turns=16, side=1)
    for y in (top, bottom):
        s.wire((14, y), (primary, y))
        terminal(s, (14, y))
    for x in (55, 61):
        s.wire((x, top - 6), (x, bottom + 6), width=HEAVY, cap="butt")
    for i in range(4):
        y = top + 48 * i
        inductor(s, (secondary, y), (secondary, y + 38), turns=3, side=-1)
        for end in (y, y + 38):
            s.wire((secondary, end), (right, end))
            terminal(s, (right, end))


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
    s.rect(x, y, 2 * a, 2 * a, fill=METAL)
    for i in range(1, 13):
        s.wire((x + i * 2 * a / 13, y), (x + i * 2 * a / 13, y + 2 * a), width=THIN, cap="butt")
    s.dimension((x, y + 2 * a), (x + 2 * a, y + 2 * a), "2a", -16, label="Label14")
    s.dimension((x + 2 * a, y + 2 * a), (x + 2 * a, y), "2a", -16, label="Label20")


@picture("shunt-amperemetre", 240, 96, "Galvanomètre et résistance en parallèle")
def shunt_amperemetre(s: Sheet) -> None:
    left, right, top, bottom, axis = 62.0, 178.0, 24.0, 68.0, 46.0
    meter(s, (left, top), (right, top), "A", "LblACourant")
    resistor(s, (left, bottom), (right, bottom), "R", side=-1)
    for x, end in ((left, 22), (right, 218)):
        s.wire((x, top), (x, bottom))
        s.wire((x, axis), (end, axis))
        junction(s, (x, axis))
        terminal(s, (end, axis))
    s.text(22, axis - 16, "+")
    s.text(218, axis - 16, "−")


@picture("shunt-voltmetre", 240, 68, "Galvanomètre et résistance en série")
def shunt_voltmetre(s: Sheet) -> None:
    y = 42.0
    resistor(s, (22, y), (110, y), "R")
    meter(s, (110, y), (218, y), "A", "LblATension")
    terminal(s, (22, y), (218, y))
    s.text(22, y - 16, "+")
    s.text(218, y - 16, "−")


@picture("pont-potentiometre", 320, 236, "Pont diviseur chargé")
def pont_potentiometre(s: Sheet) -> None:
    """The load Rc hangs on the wiper; at the top of its travel the wiper has the whole track below it."""
    supply, divider, out, top, bottom = 62.0, 158.0, 262.0, 24.0, 212.0
    battery(s, (supply, top), (supply, bottom), "Alim", side=-1)
    s.wire((supply, top), (divider, top))
    s.head(((supply + divider) / 2 + 4, top), (1, 0))
    s.text((supply + divider) / 2, top - 13, "Ip")
    resistor(s, (divider, top), (divider, 86), "R1", side=-1)
    potentiometer(s, (divider, 86), (divider, 150), (out - 50, 118), "Pot", side=-1)
    resistor(s, (divider, 150), (divider, bottom), "R2", side=-1)
    s.wire((out - 50, 118), (out, 118))
    s.head((out - 22, 118), (1, 0))
    s.text(out - 26, 105, "Ic")
    impedance(s, (out, 118), (out, bottom), "Rc", side=-1)
    s.wire((supply, bottom), (out, bottom))
    junction(s, (divider, bottom))
    ground(s, (divider, bottom))
    s.dimension((out, bottom), (out, 118), "Us", -30)
