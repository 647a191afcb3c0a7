"""Coils, seen from the side, in section and end on."""

from __future__ import annotations

from sheet import (AXIS, BROAD, COPPER, COPPER_PALE, DARK, DIELECTRIC, DIM, THIN, TUBE, WORD, Sheet, ellipse_data,
                   line_data, number, picture, polar)
from symbols import inductor, junction, terminal


def helix(s: Sheet, x: float, axis: float, radius: float, pitch: float, turns: int) -> float:
    """An air coil from the side, which starts at the bottom at x; returns the x where it ends, at the bottom too.

    Each turn rises at the back, paler, and comes down at the front.
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
        s.path(d, stroke=COPPER_PALE, width=BROAD)
    for d in near:
        s.path(d, stroke=COPPER, width=BROAD)
    return x + turns * pitch


def section(s: Sheet, x: float, top: float, bottom: float, wire: float, pitch: float, turns: int) -> None:
    """A winding cut along its axis: two rows of round wires, the lower one shifted by half a pitch."""
    for i in range(turns):
        s.circle((x + i * pitch, top), wire / 2, stroke=COPPER, fill=COPPER_PALE)
        s.circle((x + (i + 0.5) * pitch, bottom), wire / 2, stroke=COPPER, fill=COPPER_PALE)


# Four pictures of one size, which stand in a row.


@picture("bobine-vue", 150, 120, "Bobine à une couche")
def bobine_vue(s: Sheet) -> None:
    """The coil as it looks, with its two leads."""
    end = helix(s, 30, 60, 38, 18, 5)
    for foot, outer in ((30, 10), (end, end + 20)):
        s.wire((foot, 98), (outer, 98), stroke=COPPER, width=BROAD)


@picture("bobine-diametre", 150, 120, "Diamètre intérieur et diamètre moyen")
def bobine_diametre(s: Sheet) -> None:
    """The coil end on: D inside the wire, D + e as the mean diameter."""
    x, y, radius = 52.0, 60.0, 41.0
    s.hollow(ellipse_data((x, y), radius, radius), 10, stroke=COPPER, fill=COPPER_PALE)
    s.circle((x, y), radius, stroke=DIM, width=THIN, dash=AXIS)
    s.dimension((x - radius + 5, y), (x + radius - 5, y), "D")
    s.dimension((x, y + radius), (x, y - radius), "D + e", -71)


@picture("bobine-espacement", 150, 120, "Diamètre du fil et espacement des spires")
def bobine_espacement(s: Sheet) -> None:
    """Two turns close up: the wire's diameter and the space between turns, in the words of their fields."""
    wire, space, axis = 48.0, 38.0, 42.0
    left, right = 32.0, 32.0 + wire + space
    for x in (left, right):
        s.circle((x, axis), wire / 2, stroke=COPPER, fill=COPPER_PALE)
    s.dimension((left - wire / 2, axis), (left + wire / 2, axis), "Ø", -44)
    s.dimension((left + wire / 2, axis), (right - wire / 2, axis), offset=-44)
    s.text((left + right) / 2, axis + 58, "Espacement", WORD, colour=DIM)


@picture("bobine-longueur", 150, 120, "Longueur et diamètre de l'enroulement")
def bobine_longueur(s: Sheet) -> None:
    """The winding in section, with its inner diameter and its length."""
    pitch, wire, turns, x, top, bottom = 15.0, 11.0, 6, 50.0, 18.0, 80.0
    section(s, x, top, bottom, wire, pitch, turns)
    s.axis((38, 49), (148, 49))
    right = x + (turns - 0.5) * pitch + wire / 2
    s.dimension((x - wire / 2, bottom + wire / 2), (right, bottom + wire / 2), "L", -24)
    s.dimension((x - wire / 2 - 2, bottom - wire / 2), (x - wire / 2 - 2, top + wire / 2), "D", 26)


# Two pictures of one size, which stand beside one another.


@picture("self-vue", 300, 164, "Bobine sur son mandrin")
def self_vue(s: Sheet) -> None:
    """The coil on its former."""
    top, bottom, left, right = 36.0, 128.0, 24.0, 274.0
    half = (bottom - top) / 2
    s.path(f"M{number(left)} {number(top)} H{number(right)} A14 {number(half)} 0 0 1 {number(right)} {number(bottom)}"
           f" H{number(left)}", fill=DIELECTRIC)
    s.ellipse((left, top + half), 14, half, fill=DIELECTRIC)
    for i in range(9):
        x = 66 + 19 * i
        s.path(f"M{x} {number(top - 2)} C{x + 16} {number(top - 2)} {x + 22} {number(bottom + 2)} {x + 10}"
               f" {number(bottom + 2)}", stroke=COPPER, width=BROAD)
    s.wire((66, top - 2), (66, 14), stroke=COPPER, width=BROAD)
    s.wire((228, bottom + 2), (228, 150), stroke=COPPER, width=BROAD)


@picture("self-cotes", 340, 164, "Cotes de la bobine : 1, 2 et 3")
def self_cotes(s: Sheet) -> None:
    """The numbers are those of the fields: inner diameter, length, turns."""
    pitch, wire, turns, x, top, bottom = 26.0, 15.0, 9, 72.0, 50.0, 118.0
    section(s, x, top, bottom, wire, pitch, turns)
    s.axis((56, 84), (326, 84))
    right = x + (turns - 0.5) * pitch + wire / 2
    s.dimension((x - wire / 2, bottom + wire / 2), (right, bottom + wire / 2), "2", -25)
    s.dimension((x - wire / 2 - 2, bottom - wire / 2), (x - wire / 2 - 2, top + wire / 2), "1", 30)
    for i in range(turns):
        s.wire((x + i * pitch, top - 11), (x + i * pitch, top - 18), stroke=DIM, width=THIN)
    s.wire((x, top - 18), (x + (turns - 1) * pitch, top - 18), stroke=DIM, width=THIN)
    s.wire((x + 4 * pitch, top - 18), (x + 4 * pitch, top - 25), stroke=DIM, width=THIN)
    s.text(x + 4 * pitch, top - 34, "3", WORD, colour=DIM)


@picture("tore", 276, 207, "Bobine sur un tore")
def tore(s: Sheet) -> None:
    """The wound core seen from above, and its thickness seen from the side."""
    centre, outer, inside = (92.0, 94.0), 64.0, 34.0
    first, step, turns = 119.7, 16.7, 19
    # Each turn comes out of the hole and goes over the core. So the wire begins behind it, and ends on its outside.
    for angle in (first + 3, first + step * (turns - 1) - 3):
        hole, foot = polar(centre, inside + 1, angle), polar(centre, outer + 3, angle)
        s.wire(hole, foot, (foot[0], 6), stroke=COPPER, width=TUBE)
    s.path("M28 94 a64 64 0 1 1 128 0 a64 64 0 1 1 -128 0 Z M58 94 a34 34 0 1 0 68 0 a34 34 0 1 0 -68 0 Z", fill=DARK)
    for i in range(turns):
        angle = first + step * i
        a, b = polar(centre, inside + 1, angle + 3), polar(centre, outer + 3, angle - 3)
        s.wire(a, b, stroke=COPPER, width=TUBE)
    left, width = 196.0, 30.0
    s.rect(left, centre[1] - outer, width, 2 * outer, fill=DARK)
    for i in range(9):
        y = centre[1] - outer + 8 + 14 * i
        s.wire((left - 3, y), (left + width + 3, y + 3), stroke=COPPER, width=TUBE)
    foot = centre[1] + outer  # the extension lines start below the turns
    s.dimension((centre[0] - inside, centre[1]), (centre[0] + inside, centre[1]), "Ø int")
    s.dimension((centre[0] - outer, foot), (centre[0] + outer, foot), "Ø ext", -26)
    s.dimension((left, foot), (left + width, foot), "Ep", -26)


@picture("epingle", 300, 150, "Épingle")
def epingle(s: Sheet) -> None:
    """A wire bent into a long U."""
    left, right, top, bottom = 86.0, 258.0, 32.0, 88.0
    s.hollow(line_data([(left, top), (right, top), (right, bottom), (left, bottom)]), 9, stroke=COPPER,
             fill=COPPER_PALE, cap="butt")
    for y in (top, bottom):
        s.wire((left, y - 4.5), (left, y + 4.5), stroke=COPPER)
    s.dimension((left, bottom), (left, top), "Hauteur", 40)
    s.dimension((left, bottom + 4), (right, bottom + 4), "Longueur", -32)
    s.dimension((right - 40, top - 4.5), (right - 40, top + 4.5), "Ø", extend=False)


@picture("autotransformateur", 240, 150, "Autotransformateur")
def autotransformateur(s: Sheet) -> None:
    """One winding; Z1 sees a part of it, Z2 the whole."""
    coil, top, tap, bottom, left, right = 120.0, 16.0, 46.0, 134.0, 34.0, 206.0
    inductor(s, (coil, top), (coil, bottom), turns=11)
    s.wire((left, tap), (coil, tap))
    s.wire((coil, top), (right, top))
    s.wire((left, bottom), (right, bottom))
    junction(s, (coil, tap), (coil, bottom))
    terminal(s, (left, tap), (left, bottom), (right, top), (right, bottom))
    for x, upper, text in ((left, tap, "Z1"), (right, top, "Z2")):
        middle = (upper + bottom) / 2
        s.text(x, middle, text)
        s.arrow((x, middle - 11), (x, upper + 7), DIM, THIN)
        s.arrow((x, middle + 11), (x, bottom - 7), DIM, THIN)


@picture("section-diametre", 48, 48, "Section d'un fil et son diamètre")
def section_diametre(s: Sheet) -> None:
    """A round wire in section, crossed by its diameter."""
    centre, radius = (24, 24), 22
    s.circle(centre, radius, stroke=COPPER, fill=COPPER_PALE)
    for angle in (45, 225):
        s.arrow(centre, polar(centre, radius - 0.8, angle), DIM, THIN)
