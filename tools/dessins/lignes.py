"""Cables and lines, seen in section or in perspective."""

from __future__ import annotations

from sheet import COPPER, COPPER_PALE, DIELECTRIC, INK, JACKET, METAL, Sheet, number, picture
from symbols import bar, block


@picture("coaxial-icone", 64, 64, "Câble coaxial")
def coaxial_icone(s: Sheet) -> None:
    """A cable stripped in steps: jacket, braid, insulator, inner conductor."""
    axis = 32.0
    layers = ((9, 27, 17, "#5d7085", JACKET, INK), (27, 39, 13, METAL, METAL, INK),
              (39, 48, 9.5, DIELECTRIC, DIELECTRIC, INK), (48, 58, 3.2, COPPER_PALE, COPPER_PALE, COPPER))
    for start, end, radius, fill, face, edge in layers:
        flat = radius * 0.34
        s.path(f"M{start} {axis - radius} H{end} V{axis + radius} H{start} A{number(flat)} {radius} 0 0 1"
               f" {start} {axis - radius} Z", stroke=edge, width=1.4, fill=fill)
        s.ellipse((end, axis), flat, radius, stroke=edge, width=1.4, fill=face)
        if fill == METAL:
            for x in (28, 32, 36):  # the braid
                s.wire((x, axis - 12), (x - 5, axis - 1), (x - 1, axis + 12), width=0.8)


@picture("coaxial-rond", 200, 200, "Ligne coaxiale ronde, en coupe")
def coaxial_rond(s: Sheet) -> None:
    """d over the inner conductor, D inside the outer one."""
    centre = (100.0, 82.0)
    s.circle(centre, 72, fill=METAL)
    s.circle(centre, 62, fill=DIELECTRIC)
    inner(s, centre)
    s.dimension((38, 82), (162, 82), "D", -102)


@picture("coaxial-carre", 200, 200, "Ligne coaxiale carrée, en coupe")
def coaxial_carre(s: Sheet) -> None:
    """The same with a square outer conductor and air inside."""
    centre = (100.0, 82.0)
    s.path("M28 10 h144 v144 h-144 Z M38 20 v124 h124 v-124 Z", fill=METAL)
    inner(s, centre)
    s.dimension((38, 144), (162, 144), "D", -40)


def inner(s: Sheet, centre: tuple[float, float]) -> None:
    """The inner conductor and its diameter d."""
    x, y = centre
    s.circle(centre, 20, stroke=COPPER, fill=COPPER_PALE)
    s.dimension((x - 20, y), (x + 20, y), "d", -38)


@picture("echelle-grenouille", 300, 150, "Ligne à deux fils")
def echelle_grenouille(s: Sheet) -> None:
    """Two wires kept apart by spreaders: D between their axes, d over one of them."""
    top, bottom, left, right = 40.0, 106.0, 58.0, 252.0
    for y in (top, bottom):
        bar(s, (left, y), (right, y), 8)
    for x in (92, 156, 220):
        s.rect(x - 5, top - 10, 10, bottom - top + 20, width=1.3, fill=DIELECTRIC)
    s.dimension((left, bottom), (left, top), "D", 26)
    s.dimension((right, top + 4), (right, top - 4), "d", -14)


@picture("ruban", 330, 170, "Ruban sur son support")
def ruban(s: Sheet) -> None:
    """A flat strip of width W and length B on a support of thickness H."""
    x, y, length, thick, depth = 56.0, 76.0, 190.0, 26.0, 70.0
    block(s, x, y, length, thick, depth, DIELECTRIC)
    near, far = 0.3 * depth, 0.75 * depth
    corners = [(x + 0.8 * near, y - 0.45 * near), (x + 0.8 * far, y - 0.45 * far)]
    corners += [(cx + length, cy) for cx, cy in reversed(corners)]
    s.polygon(*corners, stroke=COPPER, width=1.3, fill=COPPER_PALE)
    s.dimension((x, y + thick), (x + length, y + thick), "B", -26)
    s.dimension((x, y), (x, y + thick), "H", -22)
    s.dimension(corners[0], corners[1], "W", 20)
