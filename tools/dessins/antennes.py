"""The antennas: what is metal and radiates is in copper, what feeds it is in ink."""

from __future__ import annotations

import math

from sheet import (BROAD, COPPER, COPPER_PALE, DARK, DIELECTRIC, DIM, GUIDE, HEAVY, INK, METAL, PALE, THIN, TUBE, WORD,
                   Point, Sheet, along, line_data, number, picture, polar, towards)
from symbols import bar, cable, capacitor, junction


@picture("lpda-structure", 356, 306, "Structure de l'antenne log-périodique")
def lpda_structure(s: Sheet) -> None:
    """Elements of falling length on two booms; the feed between them crosses from element to element."""
    axis, feed, boom = 146.0, 9.0, 25.0
    x, tip, step = 96.0, 122.0, 46.0
    places = []
    for _ in range(6):
        places.append((x, tip))
        x, tip, step = x + step, tip * 0.85, step * 0.85
    (first, long), (last, short) = places[0], places[-1]
    # The tips lie on two straight lines that meet beyond the shortest element.
    slope = (long - short) / (last - first)
    for side in (-1, 1):
        s.wire((first - 10, axis + side * (long + 10 * slope)), (last + 14, axis + side * (short - 14 * slope)),
               stroke=DIM, width=THIN, dash=GUIDE)
        s.rect(first - 16, axis + side * boom - 3.5, last - first + 32, 7, fill=METAL)
    # Each half element stands on its boom in an insulator and reaches to the feed.
    for x, tip in places:
        for side in (-1, 1):
            s.rect(x - 5.5, axis + side * boom - 6.5, 11, 13, fill=DIELECTRIC)
            s.wire((x, axis + side * feed), (x, axis + side * tip), stroke=COPPER, width=TUBE, cap="butt")
    for (xa, _), (xb, _) in zip(places, places[1:]):
        middle, reach = (xa + xb) / 2, 0.3 * (xb - xa)
        for side in (-1, 1):
            s.wire((xa, axis + side * feed), (middle - reach, axis + side * feed),
                   (middle + reach, axis - side * feed), (xb, axis - side * feed))
    s.wire((first, axis - feed), (30, axis - feed), (30, axis + feed), (first, axis + feed))
    s.room("LblFrameZt", "Stub Zt", 46, axis + feed + 18)
    s.rect(last + 24, axis - 18, 40, 36, fill=PALE)
    for side in (-1, 1):
        s.wire((last, axis + side * feed), (last + 24, axis + side * feed))
    s.room("LblFrameBalun", "Balun", last + 44, axis + 32)
    cable(s, (last + 64, axis), (s.width - 4, axis))
    for x, _ in places:
        junction(s, (x, axis - feed), (x, axis + feed))
    # The extension lines reach up to the tips, which lie at different heights.
    foot = axis + long + 20
    for x, tip in (places[0], places[-1]):
        s.wire((x, axis + tip + 3), (x, foot + 3), stroke=DIM, width=THIN)
    s.dimension((first, foot), (last, foot), "Longueur du boom")


@picture("high-q-loop", 312, 271, "Boucle accordée à grand coefficient de qualité")
def high_q_loop(s: Sheet) -> None:
    """A polygon of thick tube, tuned by a capacitor, with its coupling loop opposite."""
    centre, radius = (150.0, 138.0), 104.0
    corners = [polar(centre, radius, 67.5 - 45 * i) for i in range(8)]
    (right, top), left = corners[0], corners[-1][0]
    middle = (left + right) / 2
    s.wire((middle + 14, top), *corners, (middle - 14, top), stroke=COPPER, width=BROAD, cap="butt")
    capacitor(s, (middle - 15, top), (middle + 15, top), "C", variable=True)
    s.circle(centre, 1.8, stroke=None, fill=DIM)
    s.dimension(centre, corners[1], "Rayon")
    s.dimension(corners[2], corners[3], "Côté", 20)
    floor = corners[4][1]
    s.path(f"M{number(middle - 4)} {number(floor - 12)} A21 21 0 1 1 {number(middle + 4)} {number(floor - 12)}")
    cable(s, (middle, floor - 14), (middle, 264))


def earth_line(s: Sheet, y: float, x1: float, x2: float) -> None:
    """The ground under a vertical antenna."""
    s.wire((x1, y), (x2, y))
    for i in range(int((x2 - x1) / 12)):
        x = x1 + 12 * i + 10
        s.wire((x, y), (x - 6, y + 7), width=THIN)


def gamma_section(s: Sheet, element: Point, rod: Point) -> None:
    """The element and the rod cut across, with their strap behind: their diameters and the distance between them."""
    u = towards(rod, element)
    reach = math.dist(rod, element)
    s.polygon(along(rod, u, -16, 6), along(rod, u, reach, 6), along(rod, u, reach, -6), along(rod, u, -16, -6),
              fill=METAL)
    s.circle(element, 28, stroke=COPPER, fill=COPPER_PALE)
    s.circle(rod, 9, stroke=COPPER, fill=COPPER_PALE)
    for centre, radius in ((element, 28), (rod, 9)):
        for cross in (u, (u[1], -u[0])):
            s.axis(along(centre, cross, -radius - 5), along(centre, cross, radius + 5))


SECTION = "A-A"  # the heading of what the cut below shows


def cut(s: Sheet, a: Point, b: Point) -> None:
    """The line A-A along which a section is taken, seen to the left of the way from a to b, as the arrows point."""
    u = towards(a, b)
    s.axis(a, b)
    for end, out in ((a, -10), (b, 10)):
        s.arrow(end, along(end, u, 0, 14), DIM, THIN)
        s.text(*along(end, u, out, 7), "A", WORD, colour=DIM)


@picture("gamma-monopole", 420, 440, "Gamma match d'un monopôle")
def gamma_monopole(s: Sheet) -> None:
    """The element stands on the ground; the rod, in series with C, joins it by a strap. Below, both are cut."""
    mast, rod, top, strap, foot, cap = 236.0, 156.0, 20.0, 120.0, 290.0, 262.0
    bar(s, (mast, foot), (mast, top), 16)
    bar(s, (rod, cap - 14), (rod, strap - 5), 7)
    s.rect(rod - 8, strap - 5, mast - rod + 18, 10, fill=METAL)
    capacitor(s, (rod, cap - 14), (rod, foot), "C", side=-1)
    earth_line(s, foot, 70, 324)
    cable(s, (rod, foot + 2), (rod, 326))
    cut(s, (rod - 24, 190), (mast + 30, 190))
    s.dimension((mast + 8, foot), (mast + 8, top), "Brin piloté", -58)
    s.dimension((rod - 8, strap), (rod - 8, foot), "Gamma", -52)
    y = 386.0
    gamma_section(s, (mast, y), (rod, y))
    s.text(80, y, SECTION, colour=DIM)
    s.dimension((mast, y + 28), (mast, y - 28), "DE", -48)
    s.dimension((rod, y + 9), (rod, y - 9), "DR", 38)
    s.dimension((rod, y + 17), (mast, y + 17), "S", -26)


@picture("gamma-dipole", 420, 440, "Gamma match d'un dipôle")
def gamma_dipole(s: Sheet) -> None:
    """The element is whole; the rod, in series with C, joins one half of it by a strap. Below, both are cut."""
    axis, rod, left, right, middle, strap = 76.0, 156.0, 18.0, 402.0, 210.0, 340.0
    bar(s, (left, axis), (right, axis), 16)
    bar(s, (middle + 44, rod), (strap + 5, rod), 7)
    s.rect(strap - 5, axis - 10, 10, rod - axis + 18, fill=METAL)
    s.rect(middle - 7, axis - 12, 14, 24, fill=METAL)
    capacitor(s, (middle, rod), (middle + 44, rod), "C", side=1)
    # The braid to the middle of the element, the inner conductor to C.
    s.wire((middle, axis + 12), (middle, rod - 18), (middle - 22, rod - 18), (middle - 22, rod - 2.5))
    s.wire((middle - 16, rod), (middle, rod))
    cable(s, (18, rod), (middle - 16, rod))
    cut(s, (300, axis - 26), (300, rod + 20))
    s.dimension((left, axis - 8), (right, axis - 8), "Brin piloté", 44)
    s.dimension((middle, rod), (strap, rod), "Gamma", -46)
    x = 196.0
    gamma_section(s, (x, axis + 208), (x, rod + 208))
    s.text(120, axis + 208, SECTION, colour=DIM)
    s.dimension((x - 28, axis + 208), (x + 28, axis + 208), "DE", 46)
    s.dimension((x - 9, rod + 208), (x + 9, rod + 208), "DR", -36)
    s.dimension((x + 33, rod + 208), (x + 33, axis + 208), "S", -26)


@picture("trappe-coaxiale", 368, 237, "Trappe en coaxial")
def trappe_coaxiale(s: Sheet) -> None:
    """Coax wound on a former: the inner conductor of one end is joined to the braid of the other."""
    x, top, bottom, pitch, coax, turns = 126.0, 88.0, 160.0, 16.0, 15.5, 8
    s.rect(x - 26, top, turns * pitch + 52, bottom - top, fill=DIELECTRIC)
    for i in range(turns):
        a, b = (x + (i + 0.5) * pitch - 3, top - 5), (x + (i + 0.5) * pitch + 3, bottom + 5)
        s.hollow(line_data([a, b]), coax, fill=DARK)
    first, last = x + 5, x + turns * pitch - 11
    for end, inner in ((first, 34.0), (last, 46.0)):
        s.hollow(line_data([(end, top - 6), (end, 74)]), coax, fill=DARK)
        s.rect(end - 4.5, 55, 9, 13, fill=METAL)
        s.wire((end, 55), (end, inner), stroke=COPPER, width=HEAVY)
    # Inner of the first end to the braid of the last one; the other two carry the wires of the antenna.
    s.wire((first, 34), (last - 18, 34), (last - 18, 61), (last - 4.5, 61), stroke=COPPER, width=HEAVY)
    s.wire((12, 61), (first - 4.5, 61), stroke=COPPER, width=HEAVY)
    s.wire((last, 46), (356, 46), stroke=COPPER, width=HEAVY)
    s.dimension((x - 26, bottom), (x - 26, top), "Ø mandrin", 42)
    s.dimension((x, bottom + 13), (x + turns * pitch, bottom + 13), "Longueur", -44)
    s.dimension((x + 6 * pitch, bottom + 13), (x + 7 * pitch, bottom + 13), "Ø coaxial", -18)


def insulator(s: Sheet, x: float, y: float) -> None:
    """A strain insulator in a wire."""
    s.ellipse((x, y), 7, 4.5, fill=DIELECTRIC)


def coil(s: Sheet, x: float, y: float, stroke: str) -> None:
    """A coil on a former, in a horizontal wire."""
    s.rect(x - 15, y - 9, 30, 18, fill=DIELECTRIC)
    for i in range(5):
        s.wire((x - 11 + 5 * i, y - 9), (x - 9 + 5 * i, y + 9), stroke=stroke, width=HEAVY)


@picture("trappe-antenne", 512, 106, "Dipôle à trappes")
def trappe_antenne(s: Sheet) -> None:
    """On either side of the feed: a wire, a trap, a wire."""
    axis, middle, trap, end = 42.0, 256.0, 118.0, 236.0
    insulator(s, middle, axis)
    for side in (-1, 1):
        s.wire((middle + 7 * side, axis), (middle + end * side, axis), stroke=COPPER, width=HEAVY)
        s.wire((middle + 8 * side, axis), (middle + 2 * side, axis + 20))
        insulator(s, middle + (end + 6) * side, axis)
        coil(s, middle + trap * side, axis, INK)
        s.text(middle + trap * side, axis - 20, "Trappe", WORD, colour=DIM)
        s.text(middle + (trap / 2 + 2) * side, axis + 20, "Brin en amont", WORD, colour=DIM)
        s.text(middle + (trap + end + 8) / 2 * side, axis + 20, "Brin suivant", WORD, colour=DIM)
    cable(s, (middle, axis + 20), (middle, 102))


@picture("hb9cv-hf", 430, 281, "HB9CV à deux éléments et adaptations en T")
def hb9cv_hf(s: Sheet) -> None:
    """The crossed line feeds both elements through symmetric T matches; the balun is at the front one."""
    middle, back, front, half, gap = 222.0, 84.0, 184.0, 164.0, 14.0
    s.rect(middle - 5, back - 12, 10, front - back + 24, fill=METAL)
    elements = ((back, half, back - gap), (front, 0.92 * half, front + gap))
    for y, reach, rod in elements:
        bar(s, (middle - reach, y), (middle + reach, y), 7)
        for side in (-1, 1):
            s.wire((middle + 10 * side, rod), (middle + 74 * side, rod), stroke=COPPER, width=TUBE, cap="butt")
            s.rect(middle + 74 * side - 3, min(y, rod) - 5, 6, gap + 10, fill=METAL)
    for side in (-1, 1):
        s.wire((middle + 10 * side, back - gap), (middle + 10 * side, 122), (middle - 10 * side, 146),
               (middle - 10 * side, front + 30))
    for _, _, rod in elements:
        junction(s, (middle - 10, rod), (middle + 10, rod))
    s.rect(middle - 28, front + 30, 56, 24, fill=PALE)
    s.text(middle, front + 42, "Balun", WORD)
    cable(s, (middle + 28, front + 42), (middle + 136, front + 42))
    s.dimension((middle - half, back - 4), (middle + half, back - 4), "λ/2", 66)
    s.dimension((middle - 74, back - gap - 5), (middle + 74, back - gap - 5), "0.25 ou 0.30 λ/2", 25)
    s.dimension((middle - 0.92 * half, front + 4), (middle + 0.92 * half, front + 4), "0.92 λ/2", -80)
    s.dimension((middle - half, front), (middle - half, back), "λ/8", 26)
    s.dimension((middle + 77, back - gap), (middle + 77, back), "λ/200", 36)
    s.dimension((middle + 0.92 * half, front - 3.5), (middle + 0.92 * half, front + 3.5), "Ø", 14)


@picture("hb9cv-vushf", 430, 281, "HB9CV à deux éléments et gammas")
def hb9cv_vushf(s: Sheet) -> None:
    """The elements stand on the boom; one line feeds their gammas, which lie on opposite sides of it."""
    middle, back, front, half, gap, feed = 222.0, 76.0, 202.0, 164.0, 14.0, 156.0
    s.rect(middle - 5, back - 12, 10, front - back + 24, fill=METAL)
    bar(s, (middle - half, back), (middle + half, back), 7)
    bar(s, (middle - 0.92 * half, front), (middle + 0.92 * half, front), 7)
    for side, y, rod in ((-1, back, back + gap), (1, front, front - gap)):
        s.wire((middle + 14 * side, rod), (middle + 78 * side, rod), stroke=COPPER, width=TUBE, cap="butt")
        s.rect(middle + 78 * side - 3, min(y, rod) - 5, 6, gap + 10, fill=METAL)
    s.wire((middle - 14, back + gap), (middle - 14, 96), (middle + 14, 116), (middle + 14, front - gap))
    # The inner conductor through C to the gamma of the front element, the braid to the boom.
    capacitor(s, (middle + 14, feed), (middle + 78, feed), "C", variable=True)
    s.wire((middle + 78, feed - 2.5), (middle + 78, feed - 34), (middle + 5, feed - 34))
    cable(s, (middle + 78, feed), (424, feed))
    junction(s, (middle - 14, back + gap), (middle + 14, front - gap), (middle + 14, feed))
    s.dimension((middle - half, back - 4), (middle + half, back - 4), "λ/2", 54)
    s.dimension((middle - 78, back - 4), (middle, back - 4), "λ/16", 28)
    s.dimension((middle, front + 4), (middle + 78, front + 4), "λ/16", -28)
    s.dimension((middle - 0.92 * half, front + 4), (middle + 0.92 * half, front + 4), "0.92 λ/2", -58)
    s.dimension((middle - half, front), (middle - half, back), "λ/8", 26)
    s.dimension((middle + 0.92 * half, front - 3.5), (middle + 0.92 * half, front + 3.5), "Ø", 14)


@picture("double-quad", 400, 173, "Double quad et son réflecteur")
def double_quad(s: Sheet) -> None:
    """Two quarter-wave squares that share their feed, in front of a reflector; on the right, from the side."""
    x, y, quarter = 150.0, 72.0, 40.0
    width, height = 4.5 * quarter, 3 * quarter
    left, top = x - width / 2, y - height / 2
    s.rect(left, top, width, height, fill=METAL)
    half = quarter * 0.5 ** 0.5
    for side in (-1, 1):
        s.wire((x + 2 * side, y - 4), (x + half * side, y - half), (x + 2 * half * side, y),
               (x + half * side, y + half), (x + 2 * side, y + 4), stroke=COPPER, width=TUBE)
    for dy in (-4, 4):
        s.wire((x - 2, y + dy), (x + 2, y + dy), stroke=COPPER, width=TUBE)
        junction(s, (x, y + dy))
    s.dimension((left, y + height / 2), (left + width, y + height / 2), "4.5 λ/4", -26)
    s.dimension((left, y + height / 2), (left, top), "3 λ/4", 26)
    s.dimension((x + half, y - half), (x + 2 * half, y), offset=12)
    s.text(x + 1.5 * half + 22, y - half / 2 - 18, "λ/4", WORD, colour=DIM)
    # From the side: the reflector, the squares in front of it, the cable behind.
    panel, front = 330.0, 330.0 - 0.136 * 4 * quarter
    s.rect(panel, top, 5, height, fill=METAL)
    s.wire((front, y - half), (front, y + half), stroke=COPPER, width=TUBE, cap="butt")
    cable(s, (front, y), (386, y))
    s.dimension((front, top + height), (panel, top + height), "0.136 λ", -26)


@picture("dipole-raccourci", 348, 112, "Dipôle raccourci par deux selfs")
def dipole_raccourci(s: Sheet) -> None:
    """A is the whole length, B the distance from the middle to a coil."""
    axis, middle, place, end = 66.0, 174.0, 88.0, 164.0
    for side in (-1, 1):
        s.wire((middle + 7 * side, axis), (middle + end * side, axis), stroke=COPPER, width=HEAVY)
        coil(s, middle + place * side, axis, COPPER)
        s.wire((middle + 8 * side, axis), (middle + 2 * side, axis + 20))
    insulator(s, middle, axis)
    cable(s, (middle, axis + 20), (middle, 110))
    s.dimension((middle - end, axis), (middle + end, axis), "A", 52, label="LblA")
    s.dimension((middle, axis - 9), (middle + place, axis - 9), "B", 17, label="LblB")
