"""The program's icon: a wavelet, the short train of waves that gives the program its look."""

from __future__ import annotations

import math

from sheet import number

SKY = ("#2d649a", "#1b4068")  # of the tile, from its top to its foot
EDGE = "#3f76ab"  # lighter than the tile, so that it is seen on a dark desktop too
WAVE = "#ffd166"


def wavelet(t: float) -> float:
    """A cosine in a bell: one high crest between two troughs that die away."""
    return math.cos(1.7 * math.pi * t) * math.exp(-1.3 * t * t)


def svg() -> str:
    """The icon, 128 by 128; few strokes, all broad and wide open, so that 16 pixels still show a wave."""
    points = []
    for i in range(0, 97):
        t = -1 + i / 48
        points.append(f"{number(64 + 47 * t)} {number(68 - 44 * wavelet(t))}")
    stops = "".join(f'<stop offset="{at}" stop-color="{colour}"/>' for at, colour in enumerate(SKY))
    return (
        '<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width="128" height="128"'
        ' viewBox="0 0 128 128">\n<title>Ondelis</title>\n'
        f'<defs><linearGradient id="ciel" x1="0" y1="0" x2="0" y2="1">{stops}</linearGradient></defs>\n'
        f'<rect x="2.5" y="2.5" width="123" height="123" rx="28" fill="url(#ciel)" stroke="{EDGE}"'
        ' stroke-width="5"/>\n'
        f'<path d="M{" L".join(points)}" fill="none" stroke="{WAVE}" stroke-width="11" stroke-linecap="round"'
        ' stroke-linejoin="round"/>\n</svg>\n'
    )
