"""Cables and lines, seen in section or in perspective."""

from __future__ import annotations

from sheet import COPPER, COPPER_PALE, DARK, DIELECTRIC, DIM, INK, METAL, THIN, WORD, Sheet, number, picture
from symbols import bar, block


@picture("coaxial-icone", 64, 64, "Câble coaxial")
def coaxial_icone(s: Sheet) -> None:
    """A cable stripped in steps: jacket, braid, insulator, inner conductor."""
    axis = 32.0
    layers = ((9, 27, 17, DARK, INK), (27, 39, 13, METAL, INK), (39, 48, 9.5, DIELECTRIC, INK),
              (48, 58, 4, COPPER_PALE, COPPER))
    for start, end, radius, fill, edge in layers:
        flat = radius * 0.34
        s.path(f"M{start} {axis - radius} H{end} V{axis + radius} H{start} A{number(flat)} {radius} 0 0 1"
               f" {start} {axis - radius} Z", stroke=edge, fill=fill)
        s.ellipse((end, axis), flat, radius, stroke=edge, fill=fill)
        if fill == METAL:
            for x in (30, 35):  # the braid
                s.wire((x, axis - 12), (x - 5, axis - 1), (x - 1, axis + 12), width=THIN)


@picture("coaxial-rond", 184, 172, "Ligne coaxiale ronde, en coupe")
def coaxial_rond(s: Sheet) -> None:
    """d over the inner conductor, D inside the outer one."""
    centre, inside = (92.0, 70.0), 60.0
    s.circle(centre, inside + 9, fill=METAL)
    s.circle(centre, inside, fill=DIELECTRIC)
    inner(s, centre, 19, 36)
    x, y = centre
    s.dimension((x - inside, y), (x + inside, y), "D", -94)


@picture("coaxial-carre", 284, 156, "Ligne coaxiale carrée, en coupe")
def coaxial_carre(s: Sheet) -> None:
    """The same with a square outer conductor and air inside."""
    centre, inside, wall = (142.0, 60.0), 50.0, 8.0
    (x, y), outside = centre, inside + wall
    s.path(f"M{number(x - outside)} {number(y - outside)} h{number(2 * outside)} v{number(2 * outside)}"
           f" h{number(-2 * outside)} Z M{number(x - inside)} {number(y - inside)} v{number(2 * inside)}"
           f" h{number(2 * inside)} v{number(-2 * inside)} Z", fill=METAL)
    inner(s, centre, 20, 34)
    s.dimension((x - inside, y + inside), (x + inside, y + inside), "D", -wall - 26)


def inner(s: Sheet, centre: tuple[float, float], radius: float, below: float) -> None:
    """The inner conductor and its diameter d, so far below its axis."""
    x, y = centre
    s.circle(centre, radius, stroke=COPPER, fill=COPPER_PALE)
    s.dimension((x - radius, y), (x + radius, y), "d", -below)


@picture("echelle-grenouille", 300, 143, "Ligne à deux fils")
def echelle_grenouille(s: Sheet) -> None:
    """Two wires kept apart by spreaders: D between their axes, d over one of them."""
    top, bottom, left, right = 36.0, 106.0, 50.0, 254.0
    for y in (top, bottom):
        bar(s, (left, y), (right, y), 8)
    for x in (86, 152, 218):
        s.rect(x - 5, top - 10, 10, bottom - top + 20, fill=DIELECTRIC)
    s.dimension((left, bottom), (left, top), "D", 26)
    s.dimension((right, top + 4), (right, top - 4), "d", -16)


@picture("ruban", 300, 146, "Ruban sur son support")
def ruban(s: Sheet) -> None:
    """A flat strip on a support that stands: its width and height, and the thickness of the support."""
    x, y, width, height, depth, strip = 78.0, 12.0, 128.0, 100.0, 24.0, 36.0
    block(s, x, y, width, height, depth, DIELECTRIC)
    left, right, foot = x + (width - strip) / 2, x + width, y + height
    s.rect(left, y, strip, height, stroke=COPPER, fill=COPPER_PALE)
    s.dimension((left, foot), (left + strip, foot), "Largeur", -25)
    s.dimension((x, foot), (x, y), "Hauteur", 38)
    across, up = 0.8 * depth, 0.45 * depth
    s.dimension((right, foot), (right + across, foot - up), offset=-14)
    s.text(right + across / 2 + 20, foot - up / 2 + 12, "Epaisseur", WORD, "start", DIM)
