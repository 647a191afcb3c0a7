#!/usr/bin/env python3
"""Writes every picture of the program to resources/, and the table of pictures in README.md."""

from __future__ import annotations

from pathlib import Path

import antennes  # noqa: F401  (each family registers its pictures)
import bobines  # noqa: F401
import circuits  # noqa: F401
import condensateurs  # noqa: F401
import filtres  # noqa: F401
import fond
import icone
import lignes  # noqa: F401
import puissance  # noqa: F401
import timer555  # noqa: F401
from sheet import PICTURES, Sheet

HERE = Path(__file__).resolve().parent
RESOURCES = HERE.parent.parent / "resources"
BEGIN, END = "<!-- table: written by dessiner.py -->", "<!-- end of the table -->"
TWIPS_PER_PIXEL = 15  # at 96 dots per inch


def row(sheet: Sheet) -> str:
    """The line of the table for one picture."""
    rooms = ", ".join(f'`{r.label}` "{r.text}" ({r.x / sheet.width:.3f}, {r.y / sheet.height:.3f})'
                      for r in sheet.rooms)
    twips = f"{sheet.width * TWIPS_PER_PIXEL} x {sheet.height * TWIPS_PER_PIXEL}"
    return f"| `{sheet.name}` | {sheet.width} x {sheet.height} | {twips} | {rooms} |"


def outputs() -> dict[Path, str]:
    """What each file should hold: the pictures, and the README with the table of them."""
    sheets = [item.sheet() for item in PICTURES]
    files = {RESOURCES / "dessins" / f"{sheet.name}.svg": sheet.svg() for sheet in sheets}
    files[RESOURCES / "ondelis.svg"] = icone.svg()
    files[RESOURCES / "fond.svg"] = fond.svg()
    rows = ["| Picture | Pixels | Twips | Labels of the panel: name, text, centre |", "|---|---|---|---|",
            *map(row, sheets)]
    readme = HERE / "README.md"
    text = readme.read_text(encoding="utf-8")
    head, tail = text.split(BEGIN)[0], text.split(END)[1]
    files[readme] = head + BEGIN + "\n" + "\n".join(rows) + "\n" + END + tail
    return files


def main() -> None:
    for file, text in outputs().items():
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, encoding="utf-8")
    print(f"{len(PICTURES)} pictures written to {RESOURCES / 'dessins'}")


if __name__ == "__main__":
    main()
