"""Coils, seen from the side, in section and end on."""

from __future__ import annotations

from sheet import COPPER, COPPER_PALE, DIM, THIN, Point, Sheet, number, picture


def helix(s: Sheet, x: float, axis: float, radius: float, pitch: float, turns: int, wire: float = 4.2) -> float:
    """An air coil from the side, its first wire low at x; gives the x of its last wire, low as well.

    Each turn climbs behind, paler, and comes down in front.
    """
    top, bottom, half, bow = axis - radius, axis + radius, pitch / 2, pitch * 0.32
    far, near = [], []
    for i in range(turns):
        left = x + i * pitch
        far.append(f"M{number(left)} {number(bottom)} C{number(left - bow)} {number(bottom)}"
                   f" {number(left + half - bow)} {number(top)} {number(left + half)} {number(top)}")
        near.append(f"M{number(left + half)} {number(top)} C{number(left + half + bow)} {number(top)}"
                    f" {number(left + pitch + bow)} {number(bottom)} {number(left + pitch)} {number(bottom)}")
    for d in far:
        s.path(d, stroke=COPPER_PALE, width=wire)
    for d in near:
        s.path(d, stroke=COPPER, width=wire)
    return x + turns * pitch


def section(s: Sheet, x: float, top: float, bottom: float, wire: float, pitch: float, turns: int) -> None:
    """A winding cut along its axis: two rows of round wires, the lower row half a pitch on."""
    for i in range(turns):
        s.circle((x + i * pitch, top), wire / 2, stroke=COPPER, width=1.4, fill=COPPER_PALE)
        s.circle((x + (i + 0.5) * pitch, bottom), wire / 2, stroke=COPPER, width=1.4, fill=COPPER_PALE)


def axis_line(s: Sheet, a: Point, b: Point) -> None:
    """A chain line along an axis."""
    s.wire(a, b, stroke=DIM, width=THIN, dash="9 3 2 3")


@picture("bobine-vue", 220, 110, "Bobine à une couche")
def bobine_vue(s: Sheet) -> None:
    """The coil as it looks, with its two leads."""
    end = helix(s, 38, 54, 34, 18, 8)
    for foot, outer in ((38, 12), (end, end + 26)):
        s.wire((foot, 88), (outer, 88), stroke=COPPER, width=4.2)


@picture("bobine-cotes", 240, 170, "Bobine à une couche : D et L")
def bobine_cotes(s: Sheet) -> None:
    """The winding in section, with its inner diameter and its length."""
    pitch, wire, turns, x, top, bottom = 17.0, 12.0, 9, 62.0, 42.0, 116.0
    section(s, x, top, bottom, wire, pitch, turns)
    axis_line(s, (48, 79), (224, 79))
    s.dimension((x - wire / 2, bottom + wire / 2), (x + (turns - 0.5) * pitch + wire / 2, bottom + wire / 2), "L", -24)
    s.dimension((x - wire / 2 - 2, bottom - wire / 2), (x - wire / 2 - 2, top + wire / 2), "D", 26)


@picture("bobine-pas", 260, 120, "Diamètre du fil et espacement des spires")
def bobine_pas(s: Sheet) -> None:
    """Three turns close up: the wire's diameter and the space e between turns."""
    wire, space, axis = 44.0, 36.0, 44.0
    xs = [50.0 + i * (wire + space) for i in range(3)]
    for x in xs:
        s.circle((x, axis), wire / 2, stroke=COPPER, width=1.6, fill=COPPER_PALE)
    s.dimension((xs[0] - wire / 2, axis), (xs[0] + wire / 2, axis), "Ø", -36)
    s.dimension((xs[1] + wire / 2, axis), (xs[2] - wire / 2, axis), "e", -36)


@picture("bobine-bout", 220, 170, "Diamètre intérieur et diamètre moyen")
def bobine_bout(s: Sheet) -> None:
    """The coil end on: D inside the wire, D + e as the mean diameter."""
    centre, radius = (92.0, 84.0), 54.0
    s.circle(centre, radius, stroke=COPPER, width=11)
    s.circle(centre, radius, stroke=COPPER_PALE, width=8.4)
    s.circle(centre, radius, stroke=DIM, width=THIN, dash="9 3 2 3")
    s.dimension((centre[0] - radius + 5.5, centre[1]), (centre[0] + radius - 5.5, centre[1]), "D")
    s.dimension((centre[0], centre[1] + radius), (centre[0], centre[1] - radius), "D + e", -84, extend=True)
