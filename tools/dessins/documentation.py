#!/usr/bin/env python3
"""Makes the pictures of docs/ from those of a gallery (`./run.sh gallery`).

    documentation.py GALLERY

Needs `rsvg-convert` and ImageMagick.
"""

from __future__ import annotations

import base64
import subprocess
import sys
from pathlib import Path

import dessiner  # noqa: F401  (registers all pictures)
from sheet import DIM, PAPER, PICTURES, THIN, WORD, Point, Sheet, number

TARGET = dessiner.HERE.parent.parent / "docs" / "pictures"
TWIPS_PER_PIXEL = dessiner.TWIPS_PER_PIXEL
FRAME = (3, 24)  # of a panel's window at 96 dots per inch: where its client area begins

# One drawing of each kind, in rows.
SAMPLES = [
    ["lpda-structure", "hb9cv-hf"],
    ["circuit-rlc-parallele", "astable-555", "tore"],
    ["coaxial-rond", "echelle-grenouille", "transformateur"],
]


def write(name: str, *source: str, image: bytes | None = None, shaded: bool = False) -> None:
    """Writes a picture with few colours, but no visible loss."""
    file = TARGET / f"{name}.png"
    colors = ["-colors", "256"] if shaded else ["+dither", "-colors", "128"]
    subprocess.run(["convert", *source, "-strip", *colors, f"PNG8:{file}"], input=image, check=True)
    print(f"{file.stat().st_size // 1024:5} KB  {file}")


def rendered(sheet: Sheet) -> bytes:
    svg = sheet.svg().replace("<g ", '<g font-family="DejaVu Sans" ', 1)  # the font of the gallery
    return subprocess.run(["rsvg-convert", "-b", PAPER], input=svg.encode(),
                          stdout=subprocess.PIPE, check=True).stdout


def drawings() -> Sheet:
    """The sheet of samples, each at its own size."""
    known = {item.name: item for item in PICTURES}
    rows = [[known[name] for name in row] for row in SAMPLES]
    gap = 24
    width = max(sum(item.width + gap for item in row) for row in rows) + gap
    height = sum(max(item.height for item in row) + gap for row in rows) + gap
    sheet = Sheet("dessins", width, height, "Dessins")
    top = gap
    for row in rows:
        tall = max(item.height for item in row)
        space = (width - sum(item.width for item in row)) / (len(row) + 1)
        left = space
        for item in row:
            sample = item.sheet()
            for room in sample.rooms: # the labels of the panel
                sample.text(room.x, room.y, room.text, WORD)
            sheet.items += [f'<g transform="translate({left:.0f} {top + (tall - item.height) / 2:.0f})">',
                            *sample.items, "</g>"]
            left += item.width + space
        top += tall + gap
    return sheet


def grid(gallery: Path) -> Sheet:
    """The measures of the grid, in twips, around a panel that keeps to them."""
    scale = 1.5
    wide, tall, left, top = 670 * scale, 210 * scale, 40, 50
    sheet = Sheet("grille", round(wide) + 2 * left, round(tall) + 2 * top, "Grille")
    panel = base64.b64encode((gallery / "WireInductance-exemple-192.png").read_bytes()).decode()
    sheet.items.append(f'<image x="{left}" y="{top}" width="{number(wide)}" height="{number(tall)}"'
                       f' href="data:image/png;base64,{panel}"/>')

    def at(x: float, y: float) -> Point:
        """A place in the panel's client area, by its twips."""
        return (left + (FRAME[0] + x / TWIPS_PER_PIXEL) * scale, top + (FRAME[1] + y / TWIPS_PER_PIXEL) * scale)

    captions, fields, first, third, result = 240, 2880, 240, 960, 1680
    below = top + tall
    for column in (captions, fields):
        sheet.wire(at(column, 0), (at(column, 0)[0], below), stroke=DIM, width=THIN, dash="2 5")
    above = at(0, first)[1] - top + 22
    sheet.dimension(at(0, first), at(captions, first), "240", offset=above)
    sheet.dimension(at(fields, first), at(fields + 1320, first), "1320", offset=above)
    sheet.dimension(at(fields, result + 315), at(fields + 2040, result + 315), "2040",
                    offset=at(0, result + 315)[1] - below - 22)
    for upper, lower in ((first, first + 360), (first + 360, third), (third, result)):
        sheet.dimension(at(fields + 1320, upper), at(fields + 1320, lower), str(lower - upper), offset=26)
    return sheet


def main() -> None:
    gallery = Path(sys.argv[1])
    write("circuits-oscillants", str(gallery / "CircuitsOscillants-fenetre-96.png"), "-resize", "75%", shaded=True)
    write("high-q-loop", str(gallery / "AntennesHighQLoop-exemple-96.png"))
    write("clair-sombre", str(gallery / "HB9CV_HF-exemple-96.png"), str(gallery / "HB9CV_HF-exemple-sombre-96.png"),
          "-append")
    write("grille", "-", image=rendered(grid(gallery)))
    write("dessins", "-", image=rendered(drawings()))


if __name__ == "__main__":
    main()
