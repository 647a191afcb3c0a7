"""A page of the guide as its author writes it: `docs/guide/panneaux/PANEL.md`.

    ---
    titre: Astable à 555 : les deux résistances
    entree: MenuAstable
    ---
    Markdown; and three kinds of blocks between fences:

    ```champs
    # Entrées
    HscrFreq, LstFreq | Hz ou kHz | La fréquence voulue.
    TxtX "Nom" | mm | A control that has no caption on the panel is given a name.
    ```

    ```exemple
    # A sentence of the author's.
    scroll Astable.HscrFreq 440
    expect Astable.LblR1.Caption "..."
    ```

    ```exactitude
    ```

An example is played in both regions; `exemple point` and `exemple virgule` in one of them, where they differ.
"""

import dataclasses
import pathlib
import re

SECTIONS = ["Champs et résultats", "Formules", "Exemple", "À savoir", "Exactitude"]
REGIONS = {"point": ".", "virgule": ","}


class Malformed(Exception):
    """A page that does not follow the format."""


@dataclasses.dataclass
class Block:
    """What stands between two fences: `kind` and the word after it, and the lines."""

    kind: str
    word: str
    lines: list

    @property
    def decimals(self):
        """The separators of the regions in which an example is played."""
        return [REGIONS[self.word]] if self.word else list(REGIONS.values())


@dataclasses.dataclass
class Field:
    """A row of the table of fields: the controls that it describes, a name if the panel gives none, unit, text."""

    controls: list
    name: str
    unit: str
    text: str


class Page:
    """A page of a panel; raises Malformed if it does not follow the format."""

    def __init__(self, file):
        self.panel = pathlib.Path(file).stem
        text = pathlib.Path(file).read_text(encoding="utf-8")
        head = re.match(r"---\n(.*?)\n---\n", text, re.DOTALL)
        if head is None:
            raise Malformed(f"{file}: no head between two lines ---")
        keys = dict(line.split(": ", 1) for line in head.group(1).splitlines())
        try:
            self.title, self.entry = keys["titre"], keys["entree"]
        except KeyError as missing:
            raise Malformed(f"{file}: the head has no {missing}") from None
        self.parts = split(text[head.end():])
        self.sections = re.findall(r"^## (.*)$", "\n".join(p for p in self.parts if isinstance(p, str)), re.MULTILINE)

    def blocks(self, kind):
        """Its blocks of that kind, in their order."""
        return [part for part in self.parts if isinstance(part, Block) and part.kind == kind]

    def fields(self):
        """The rows of its tables of fields."""
        return [row for block in self.blocks("champs") for row in rows(block) if isinstance(row, Field)]

    def names(self):
        """The names that it gives to single controls."""
        return {field.controls[0]: field.name for field in self.fields() if field.name and len(field.controls) == 1}


def split(text):
    """The body as alternating Markdown and blocks."""
    parts, end = [], 0
    for found in re.finditer(r"^```(champs|exemple|exactitude)(?: (\w+))?\n(.*?)^```$\n?", text, re.DOTALL | re.MULTILINE):
        parts.append(text[end:found.start()])
        parts.append(Block(found.group(1), found.group(2) or "", found.group(3).splitlines()))
        end = found.end()
    return [*parts, text[end:]]


def rows(block):
    """The rows of a block of fields: a Field, or the words of a heading."""
    result = []
    for line in block.lines:
        if line.startswith("#"):
            result.append(line.lstrip("# "))
            continue
        cells = [cell.strip() for cell in line.split("|", 2)]
        if len(cells) != 3:
            raise Malformed(f"not three cells: {line}")
        name = re.search(r'"(.*)"', cells[0])
        controls = re.sub(r'".*"', "", cells[0]).replace(",", " ").split()
        result.append(Field(controls, name.group(1) if name else "", cells[1], cells[2]))
    return result
