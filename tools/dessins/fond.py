"""The picture behind the client area: a beam antenna on its mast at dusk, above hills and calm water.

Its tones are close to each other and darker than any panel, so that a panel in front always stands out.
"""

from __future__ import annotations

import math
import random

from sheet import number

WIDTH, HEIGHT = 1280, 942
HORIZON = 700
MAST = 1016  # x of the mast
BEAM = 338  # y of the boom
SILHOUETTE = "#1b2733"
SKY = ((0, "#24344a"), (0.45, "#35485e"), (0.78, "#525f70"), (0.93, "#6e6a70"), (1, "#7d6f6b"))
WATER = ((0, "#5d6069"), (0.18, "#43505f"), (1, "#1f2c3a"))
GLOW = 372  # x of the place where the sun has gone down
AFTERGLOW = ((0, "#d59a76", 0.34), (0.45, "#b07f74", 0.16), (1, "#8a6f78", 0))
HILLS = (("#4b586a", 62, 0.0051, 0.4), ("#3a4858", 40, 0.0073, 2.1), ("#2a3745", 20, 0.0094, 4.0))


def stops(colours: tuple[tuple[float, str], ...]) -> str:
    return "".join(f'<stop offset="{at}" stop-color="{colour}"/>' for at, colour in colours)


def afterglow() -> str:
    """The light that is left of the sun: it fades away from its place on the horizon."""
    return "".join(f'<stop offset="{at}" stop-color="{colour}" stop-opacity="{opacity}"/>'
                   for at, colour, opacity in AFTERGLOW)


def stars() -> list[str]:
    """The first stars, the fewer and fainter the nearer to the horizon; the same ones at each run."""
    sky = random.Random(42)
    dots = []
    for _ in range(70):
        x, depth = sky.uniform(0, WIDTH), sky.uniform(0, 1) ** 1.6
        radius, light = sky.uniform(0.6, 1.2), sky.uniform(0.12, 0.4)
        dots.append(f'<circle cx="{number(x)}" cy="{number(8 + 420 * depth)}" r="{number(radius)}"'
                    f' fill="#dfe6ee" fill-opacity="{number(light * (1 - 0.8 * depth))}"/>')
    return dots


def ridge(height: float, pace: float, phase: float) -> str:
    """One line of hills, from the left edge to the right one and down to the horizon."""
    points = []
    for x in range(0, WIDTH + 16, 16):
        swell = math.sin(pace * x + phase) + 0.45 * math.sin(2.3 * pace * x + 2 * phase)
        points.append(f"{x} {number(HORIZON - height * (0.72 + 0.5 * swell))}")
    return f"M0 {HORIZON} L{' L'.join(points)} V{HORIZON} Z"


def ripples() -> list[str]:
    """Long waves on the water: closer, broader and more open towards the eye."""
    lines = []
    for i in range(11):
        depth = (i + 1) / 11
        y = HORIZON + 232 * depth ** 1.5
        length, height = 90 + 250 * depth, 0.8 + 7 * depth ** 1.4
        d = f"M-8 {number(y)}"
        for x in range(0, WIDTH + 16, 8):
            d += f" L{x} {number(y - height * math.sin(2 * math.pi * x / length + 1.7 * i))}"
        opacity = 0.05 + 0.09 * depth
        lines.append(f'<path d="{d}" stroke="#b9c4d0" stroke-opacity="{number(opacity)}"'
                     f' stroke-width="{number(0.8 + 1.6 * depth)}"/>')
    return lines


def radiation() -> list[str]:
    """The waves that leave the antenna to the left."""
    lines = []
    tip = MAST - 150
    for i in range(1, 13):
        radius = 46.0 * i + 20
        reach = math.radians(34)
        x, dy = tip - radius * math.cos(reach), radius * math.sin(reach)
        lines.append(f'<path d="M{number(x)} {number(BEAM - dy)} A{number(radius)} {number(radius)} 0 0 0'
                     f' {number(x)} {number(BEAM + dy)}" stroke="#dfe6ee"'
                     f' stroke-opacity="{number(0.15 * (1 - i / 13.5))}" stroke-width="2"/>')
    return lines


def antenna() -> list[str]:
    """A lattice mast that carries a beam of six elements, seen in slight perspective."""
    foot, top = HORIZON - 20, BEAM - 26
    lines = []
    left, right, narrow = MAST - 17, MAST + 17, 5
    lines.append(f'<path d="M{left} {foot} L{MAST - narrow} {BEAM + 20} M{right} {foot} L{MAST + narrow} {BEAM + 20}"'
                 f' stroke-width="3"/>')
    steps = 15
    zigzag = []
    for i in range(steps + 1):
        t = i / steps
        half = 17 + (narrow - 17) * t
        zigzag.append(f"{number(MAST + half * (1 if i % 2 else -1))} {number(foot + (BEAM + 20 - foot) * t)}")
    lines.append(f'<path d="M{" L".join(zigzag)}" stroke-width="1.6"/>')
    lines.append(f'<path d="M{MAST} {BEAM + 24} V{top}" stroke-width="4"/>')
    lines.append(f'<path d="M{MAST - 150} {BEAM} H{MAST + 122}" stroke-width="4"/>')
    # Directors shorten towards the front, the reflector at the back is the longest.
    for x, half in ((-146, 47), (-98, 50), (-50, 53), (-2, 56), (46, 60), (116, 69)):
        slant = number(half * 0.34)
        lines.append(f'<path d="M{MAST + x} {BEAM} m{slant} {-half} L{number(MAST + x - half * 0.34)} {BEAM + half}"'
                     ' stroke-width="2.6"/>')
    # The boom hangs on the top of the mast by two stays.
    lines.append(f'<path d="M{MAST - 104} {BEAM} L{MAST} {top} L{MAST + 86} {BEAM}" stroke-width="1.1"/>')
    for side in (-1, 1):
        lines.append(f'<path d="M{MAST} {BEAM + 96} L{MAST + side * 190} {foot + 12}" stroke-width="0.9"/>')
    return lines


def svg() -> str:
    """The picture's source, 1280 by 942."""
    hills = "\n".join(f'<path d="{ridge(height, pace, phase)}" fill="{colour}"/>'
                      for colour, height, pace, phase in HILLS)
    shore = f"M0 {HORIZON - 4} C300 {HORIZON - 12} 520 {HORIZON - 2} 760 {HORIZON - 4}" \
            f" S940 {HORIZON - 26} 1040 {HORIZON - 26} S1200 {HORIZON - 6} {WIDTH} {HORIZON - 12} V{HORIZON + 8} H0 Z"
    glow = f'cx="{GLOW}" cy="{HORIZON}" rx="640" ry="250" fill="url(#lueur)"'
    return "\n".join([
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" viewBox="0 0 {WIDTH} {HEIGHT}">',
        "<title>Antenne au crépuscule</title>",
        f'<defs><linearGradient id="ciel" x1="0" y1="0" x2="0" y2="1">{stops(SKY)}</linearGradient>',
        f'<linearGradient id="eau" x1="0" y1="0" x2="0" y2="1">{stops(WATER)}</linearGradient>',
        f'<radialGradient id="lueur" cx="0.5" cy="0.5" r="0.5">{afterglow()}</radialGradient>',
        f'<linearGradient id="ombre" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="{SILHOUETTE}"'
        f' stop-opacity="0.75"/><stop offset="1" stop-color="{SILHOUETTE}" stop-opacity="0"/></linearGradient></defs>',
        f'<rect width="{WIDTH}" height="{HORIZON}" fill="url(#ciel)"/>',
        *stars(),
        f'<rect y="{HORIZON}" width="{WIDTH}" height="{HEIGHT - HORIZON}" fill="url(#eau)"/>',
        f"<ellipse {glow}/>",
        '<g fill="none" stroke-linecap="round">', *radiation(), "</g>",
        hills,
        f'<rect y="{HORIZON}" width="{WIDTH}" height="46" fill="url(#ombre)"/>',
        '<g fill="none" stroke-linecap="round">', *ripples(), "</g>",
        f'<path d="{shore}" fill="{SILHOUETTE}"/>',
        f'<g fill="none" stroke="{SILHOUETTE}" stroke-linecap="round">', *antenna(), "</g>",
        "</svg>", ""])
