"""Capacitors and surface-mount parts."""

from __future__ import annotations

from sheet import COPPER, COPPER_PALE, DIELECTRIC, METAL, Sheet, picture
from symbols import block


@picture("condensateur-plan", 230, 140, "Condensateur plan")
def condensateur_plan(s: Sheet) -> None:
    """Two plates of surface S with a dielectric of thickness e between them."""
    x, y, width, depth = 62.0, 54.0, 100.0, 44.0
    s.wire((24, 112), (x, 112), stroke=COPPER, width=2.2)
    block(s, x, y + 54, width, 8, depth, COPPER_PALE, COPPER)
    block(s, x, y + 8, width, 46, depth, DIELECTRIC)
    block(s, x, y, width, 8, depth, COPPER_PALE, COPPER)
    s.wire((x + width + 18, y - 6), (222, y - 6), stroke=COPPER, width=2.2)
    s.text(x + width / 2 + 17, y - 10, "S")
    s.dimension((x, y + 54), (x, y + 8), "e", 20)


@picture("cms", 220, 140, "Résistance à monter en surface")
def cms(s: Sheet) -> None:
    """A chip resistor from above, with its marking, its length and its width."""
    x, y, length, width, end = 26.0, 22.0, 116.0, 64.0, 20.0
    s.rect(x, y, length, width, fill=METAL)
    s.rect(x + end, y, length - 2 * end, width, fill="#2b3846")
    s.text(x + length / 2, y + width / 2, "103", 22, colour="#ffffff")
    s.dimension((x, y + width), (x + length, y + width), "Longueur", -24)
    s.dimension((x + length, y + width), (x + length, y), "Largeur", -40)
