"""The antennas: what is metal and radiates is in copper, what feeds it is in ink."""

from __future__ import annotations

from sheet import COPPER, DIM, INK, PALE, THIN, TUBE, Sheet, picture


@picture("lpda-structure", 340, 270, "Structure de l'antenne log-périodique")
def lpda_structure(s: Sheet) -> None:
    """Elements of falling length on two booms; the feed crosses between successive elements."""
    axis, half_gap = 132.0, 9.0
    x, reach, step = 76.0, 100.0, 42.0
    places = []
    for _ in range(6):
        places.append((x, reach))
        x, reach, step = x + step, reach * 0.85, step * 0.85
    # The tips lie on two straight lines that meet beyond the shortest element.
    (x0, y0), (x1, y1) = places[0], places[-1]
    slope = (y0 - y1) / (x1 - x0)
    for side in (-1, 1):
        s.wire((x0 - 10, axis + side * (y0 + half_gap + 10 * slope)),
               (x1 + 14, axis + side * (y1 + half_gap - 14 * slope)), stroke=DIM, width=THIN, dash="5 4")
    for x, reach in places:
        for side in (-1, 1):
            s.wire((x, axis + side * half_gap), (x, axis + side * (half_gap + reach)), stroke=COPPER, width=TUBE,
                   cap="butt")
    # Each span of the feed runs straight, crosses in its middle, and runs straight again.
    for (xa, _), (xb, _) in zip(places, places[1:]):
        middle = (xa + xb) / 2
        for side in (-1, 1):
            s.wire((xa, axis + side * half_gap), (middle - 7, axis + side * half_gap),
                   (middle + 7, axis - side * half_gap), (xb, axis - side * half_gap))
    first, last = places[0][0], places[-1][0]
    s.wire((first, axis - half_gap), (22, axis - half_gap), (22, axis + half_gap), (first, axis + half_gap))
    s.room("", "Stub Zt", 40, axis + half_gap + 18)
    s.rect(last + 22, axis - 17, 38, 34, fill=PALE)
    for side in (-1, 1):
        s.wire((last, axis + side * half_gap), (last + 22, axis + side * half_gap))
    s.room("", "Balun", last + 41, axis + 31)
    s.wire((last + 60, axis), (s.width - 6, axis), width=4.5, cap="butt")
    s.wire((last + 60, axis), (s.width - 6, axis), stroke=PALE, width=1.4, cap="butt")
    for x, _ in places:
        for side in (-1, 1):
            s.circle((x, axis + side * half_gap), 2.4, stroke=None, fill=INK)
