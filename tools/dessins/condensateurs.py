"""Capacitors and surface-mount parts."""

from __future__ import annotations

import math

from sheet import (ARROW, BLACK_PART, COPPER, COPPER_PALE, DIELECTRIC, DIM, HEAVY, MARK, MARKING, METAL, PAPER, THIN,
                   WORD, Point, Sheet, number, picture, polar, towards)
from symbols import block, capacitor, current_source, junction, lamp, switch, terminal


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


# The three constructions of a variable capacitor, in pictures of one size: the panel shows one at a time.

BLADES, BLADE, HUB = (108.0, 106.0), 76.0, 20.0  # centre, outer and inner radius


def angle_of_blade(s: Sheet, start: float, end: float, reach: float, gap: float) -> None:
    """The angle between the edges of a blade, its word in a gap of the arc that wide, in degrees."""
    head = math.degrees(ARROW[0] / reach)
    middle = (start + end) / 2
    s.arc(BLADES, reach, start + head, middle - gap / 2, stroke=DIM, width=THIN)
    s.arc(BLADES, reach, middle + gap / 2, end - head, stroke=DIM, width=THIN)
    for angle, back in ((start, head / 2), (end, -head / 2)):
        tip, behind = polar(BLADES, reach, angle), polar(BLADES, reach, angle + 2 * back)
        s.head(tip, towards(behind, tip), DIM)
    s.text(*polar(BLADES, reach, middle), "Angle", WORD)


def diameters(s: Sheet) -> None:
    """The shaft, and the two diameters of the blades."""
    x, y = BLADES
    s.circle(BLADES, 7, fill=PAPER)
    s.dimension((x - BLADE, y), (x + BLADE, y), "Ø ext", -100)
    s.dimension((x, y + HUB), (x, y - HUB), "Ø int", -98)


@picture("condensateur-variable", 240, 220, "Lames d'un condensateur variable")
def condensateur_variable(s: Sheet) -> None:
    """A moving blade turned halfway out of a fixed one."""
    blade(s, BLADES, BLADE, HUB, 180.5, 359.5, METAL)
    blade(s, BLADES, BLADE, HUB, 40.5, 219.5, COPPER_PALE)
    angle_of_blade(s, 40.5, 219.5, 48, 52)
    diameters(s)


def butterfly(s: Sheet) -> None:
    """Two moving blades on one shaft, turned halfway out of two fixed ones that face each other."""
    for half in (0, 180):
        blade(s, BLADES, BLADE, HUB, 180.5 + half, 269.5 + half, METAL)
    for half in (0, 180):
        blade(s, BLADES, BLADE, HUB, 135.5 + half, 224.5 + half, COPPER_PALE)
    angle_of_blade(s, 135.5, 224.5, 48, 24)
    diameters(s)


@picture("papillon-serie", 240, 220, "Condensateur papillon en série")
def papillon_serie(s: Sheet) -> None:
    """The two fixed blades are the two poles: the current crosses the moving ones on its way."""
    butterfly(s)
    first, second = polar(BLADES, BLADE, 67), polar(BLADES, BLADE, 247)
    ends = ((228, first[1]), (8, second[1]))
    s.wire(first, ends[0])
    s.wire(second, ends[1])
    terminal(s, *ends)


@picture("papillon-parallele", 240, 220, "Condensateur papillon en parallèle")
def papillon_parallele(s: Sheet) -> None:
    """The two fixed blades are one pole, the moving ones the other."""
    butterfly(s)
    first, second, moving = polar(BLADES, BLADE, 67), polar(BLADES, BLADE, 247), polar(BLADES, BLADE, -36)
    corner, ends = (20.0, 12.0), ((6.0, 12.0), (228.0, moving[1]))
    s.wire(first, (first[0], corner[1]), corner, (corner[0], second[1]), second)
    s.wire(corner, ends[0])
    s.wire(moving, ends[1])
    junction(s, corner)
    terminal(s, *ends)


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
