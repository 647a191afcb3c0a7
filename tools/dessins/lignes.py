"""Cables and lines, seen in section or in perspective."""

from __future__ import annotations

from sheet import COPPER, COPPER_PALE, DIELECTRIC, INK, METAL, Sheet, number, picture


@picture("coaxial-icone", 64, 64, "Câble coaxial")
def coaxial_icone(s: Sheet) -> None:
    """A cable stripped in steps: jacket, braid, insulator, inner conductor."""
    axis = 32.0
    layers = ((9, 27, 17, "#5d7085", "#8597a9", INK), (27, 39, 13, METAL, METAL, INK),
              (39, 48, 9.5, DIELECTRIC, DIELECTRIC, INK), (48, 58, 3.2, COPPER_PALE, COPPER_PALE, COPPER))
    for start, end, radius, fill, face, edge in layers:
        flat = radius * 0.34
        s.path(f"M{start} {axis - radius} H{end} V{axis + radius} H{start} A{number(flat)} {radius} 0 0 1"
               f" {start} {axis - radius} Z", stroke=edge, width=1.4, fill=fill)
        s.ellipse((end, axis), flat, radius, stroke=edge, width=1.4, fill=face)
        if fill == METAL:
            for x in (28, 32, 36):  # the braid
                s.wire((x, axis - 12), (x - 5, axis - 1), (x - 1, axis + 12), width=0.8)
