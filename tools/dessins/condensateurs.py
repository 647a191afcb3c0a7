"""Capacitors and surface-mount parts."""

from __future__ import annotations

from sheet import (BLACK_PART, COPPER, COPPER_PALE, DIELECTRIC, DIM, HEAVY, MARK, MARKING, METAL, PAPER, THIN, WORD,
                   Point, Sheet, number, picture, polar)
from symbols import block, capacitor, current_source, junction, lamp, switch


@picture("condensateur-plan", 230, 140, "Condensateur plan")
def condensateur_plan(s: Sheet) -> None:
    """Two plates with a dielectric between them; the leads leave them at their far corner."""
    x, y, width, depth, plate, thickness = 80.0, 48.0, 92.0, 44.0, 8.0, 46.0
    block(s, x, y + plate + thickness, width, plate, depth, COPPER_PALE, COPPER)
    block(s, x, y + plate, width, thickness, depth, DIELECTRIC)
    block(s, x, y, width, plate, depth, COPPER_PALE, COPPER)
    corner = (x + width + 0.8 * depth, y - 0.45 * depth + plate / 2)
    for below in (0, plate + thickness):
        s.wire((corner[0], corner[1] + below), (corner[0] + 14, corner[1] + below), stroke=COPPER, width=HEAVY)
    s.text(x + (width + 0.8 * depth) / 2, y - 0.225 * depth, "Surface", WORD)
    s.dimension((x, y + plate + thickness), (x, y + plate), "Epaisseur", 40)


@picture("cms", 220, 116, "Résistance à monter en surface")
def cms(s: Sheet) -> None:
    """A chip resistor from above, with its marking, its length and its width."""
    x, y, length, width, end = 22.0, 14.0, 116.0, 64.0, 20.0
    s.rect(x, y, length, width, fill=METAL)
    s.rect(x + end, y, length - 2 * end, width, fill=BLACK_PART)
    s.text(x + length / 2, y + width / 2, "103", MARKING, colour=MARK)
    s.dimension((x, y + width), (x + length, y + width), "Longueur", -24)
    s.dimension((x + length, y + width), (x + length, y), "Largeur", -40)


def blade(s: Sheet, centre: Point, outer: float, inner: float, start: float, end: float, fill: str) -> None:
    """A blade: the sector of a ring between two angles."""
    (x1, y1), (x2, y2) = polar(centre, outer, start), polar(centre, outer, end)
    (x3, y3), (x4, y4) = polar(centre, inner, end), polar(centre, inner, start)
    s.path(f"M{number(x1)} {number(y1)} A{outer} {outer} 0 0 0 {number(x2)} {number(y2)} L{number(x3)} {number(y3)}"
           f" A{inner} {inner} 0 0 1 {number(x4)} {number(y4)} Z", fill=fill)


@picture("condensateur-variable", 240, 220, "Lames d'un condensateur variable")
def condensateur_variable(s: Sheet) -> None:
    """A moving blade turned halfway out of a fixed one, with its two diameters and its angle."""
    centre, outer, inner = (108.0, 106.0), 76.0, 20.0
    blade(s, centre, outer, inner, 180.5, 359.5, METAL)
    blade(s, centre, outer, inner, 40.5, 219.5, COPPER_PALE)
    s.circle(centre, 7, fill=PAPER)
    reach = 48.0
    tip, tail = polar(centre, reach, 219), polar(centre, reach, 41)
    s.arc(centre, reach, 46, 105, stroke=DIM, width=THIN)
    s.arc(centre, reach, 158, 214, stroke=DIM, width=THIN)
    s.head(tip, (0.69, 0.72), DIM)
    s.head(tail, (0.72, 0.69), DIM)
    s.text(*polar(centre, reach, 131), "Angle", WORD)
    s.dimension((centre[0] - outer, centre[1]), (centre[0] + outer, centre[1]), "Ø ext", -100)
    s.dimension((centre[0], centre[1] + inner), (centre[0], centre[1] - inner), "Ø int", -98)


@picture("energie-condensateur", 280, 130, "Charge et décharge d'un condensateur")
def energie_condensateur(s: Sheet) -> None:
    """A constant current charges C to U; the contact discharges it into the flash lamp."""
    left, middle, right, top, bottom = 48.0, 134.0, 236.0, 24.0, 120.0
    current_source(s, (left, top), (left, bottom), "I", side=-1)
    s.wire((left, top), (middle, top))
    s.wire((left, bottom), (right, bottom))
    capacitor(s, (middle, top), (middle, bottom), "C", side=-1)
    switch(s, (middle, top), (right, top))
    lamp(s, (right, top), (right, bottom))
    junction(s, (middle, top), (middle, bottom))
    s.dimension((middle, bottom), (middle, top), "U", -34, extend=False)
