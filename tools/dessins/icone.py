"""The program's icon: a wavelet, the short train of waves that gives the program its look."""

from __future__ import annotations

import math

from sheet import number

TILE = "#23507c"
TILE_EDGE = "#173754"
WAVE = "#f6c667"


def wavelet(t: float) -> float:
    """A cosine in a bell: one high crest between two troughs that die away."""
    return math.cos(2.1 * math.pi * t) * math.exp(-2.5 * t * t)


def svg() -> str:
    """The icon, 128 by 128; few strokes, all broad, so that 16 pixels still show a wave."""
    points = []
    for i in range(0, 97):
        t = -1 + i / 48
        points.append(f"{number(64 + 47 * t)} {number(70 - 44 * wavelet(t))}")
    return (
        '<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width="128" height="128"'
        ' viewBox="0 0 128 128">\n<title>Ondelis</title>\n'
        f'<rect x="2" y="2" width="124" height="124" rx="26" fill="{TILE}" stroke="{TILE_EDGE}" stroke-width="4"/>\n'
        f'<path d="M{" L".join(points)}" fill="none" stroke="{WAVE}" stroke-width="12" stroke-linecap="round"'
        ' stroke-linejoin="round"/>\n</svg>\n'
    )
