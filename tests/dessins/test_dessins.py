"""The stored drawings are those that tools/dessins draws, and each panel letters its drawings where they leave room."""

from __future__ import annotations

import json
import os
import subprocess
import sys
import unittest
from collections.abc import Iterator
from pathlib import Path
from typing import Any

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools" / "dessins"))

import dessiner  # noqa: E402
from sheet import COPPER, DIM, INK, PICTURES, Sheet  # noqa: E402

Control = dict[str, Any]  # as dump_forms writes it
Point = tuple[float, float]

SHEETS = {item.name: item.sheet() for item in PICTURES}
FRAME_TITLE = 255.0  # twips above the drawing in a frame
LINES = {"CondensateurVariable": {COPPER, INK}, "RapportCyclique": {INK}}  # that go on with what is drawn
NEAR = 15.0  # twips, one pixel: places are rounded, and the title of a frame is as high as the style makes it


def forms() -> dict[str, list[Control]]:
    """The controls of each panel, in twips."""
    text = subprocess.run([os.environ["DUMP_FORMS"]], check=True, capture_output=True, encoding="utf-8").stdout
    panels: dict[str, list[Control]] = {}
    while text:
        name, _, rest = text.partition(" ")
        form, end = json.JSONDecoder().raw_decode(rest)
        panels[name] = form["controls"]
        text = rest[end:].lstrip()
    return panels


def centre(control: Control) -> Point:
    left, top, width, height = control["box"]
    return left + width / 2, top + height / 2


def hexadecimal(colour: int) -> str:
    """A colour of a form as the drawings write it: there blue comes first."""
    return "#" + colour.to_bytes(3, "little").hex()


class Drawing:
    """A drawing in a control: where it stands on the panel, or in the frame that shows it."""

    def __init__(self, control: Control) -> None:
        self.sheet: Sheet = SHEETS[control["Picture"]]
        left, top, width, height = control["box"]
        self.frame = control["Frame"]
        if control["kind"] == "Frame":
            self.frame, left, top, height = control["name"], 0.0, FRAME_TITLE, height - FRAME_TITLE
        self.across = self.sheet.width * float(dessiner.TWIPS_PER_PIXEL)
        self.down = self.sheet.height * float(dessiner.TWIPS_PER_PIXEL)
        self.left, self.top = left + (width - self.across) / 2, top + (height - self.down) / 2

    def rooms(self) -> dict[str, tuple[str, Point]]:
        """By the name of the label, what stands in each room and the centre of it."""
        pixel = dessiner.TWIPS_PER_PIXEL
        return {room.label: (room.text, (self.left + room.x * pixel, self.top + room.y * pixel))
                for room in self.sheet.rooms}

    def is_lettered_by(self, control: Control) -> bool:
        """Whether a control is a letter on the drawing: a centred label, and not one that stands in for the drawing."""
        x, y = centre(control)
        return (control["kind"] == "Label" and control["Alignment"] == "center" and control["Visible"] and
                control["Frame"] == self.frame and
                self.left <= x <= self.left + self.across and self.top <= y <= self.top + self.down)


def drawings(controls: list[Control]) -> Iterator[Drawing]:
    return (Drawing(control) for control in controls if control.get("Picture"))


class Dessins(unittest.TestCase):
    panels: dict[str, list[Control]]

    @classmethod
    def setUpClass(cls) -> None:
        cls.panels = forms()

    def test_the_stored_drawings_are_the_drawn_ones(self) -> None:
        for file, text in dessiner.outputs().items():
            with self.subTest(file.name):
                self.assertEqual(file.read_text(encoding="utf-8"), text, "run tools/dessins/dessiner.py")

    def test_labels_stand_in_the_rooms_left_to_them(self) -> None:
        lettered = set()
        for panel, controls in self.panels.items():
            named = {control["name"]: control for control in controls}
            for drawing in drawings(controls):
                for name, (text, place) in drawing.rooms().items():
                    lettered.add(drawing.sheet.name)
                    with self.subTest(f"{panel}.{name}"):
                        self.assertEqual(named[name]["Caption"], text)
                        for stands, room in zip(centre(named[name]), place):
                            self.assertAlmostEqual(stands, room, delta=NEAR)
        self.assertEqual(lettered, {name for name, sheet in SHEETS.items() if sheet.rooms})

    def test_each_letter_on_a_drawing_has_a_room(self) -> None:
        for panel, controls in self.panels.items():
            for drawing in drawings(controls):
                for control in filter(drawing.is_lettered_by, controls):
                    with self.subTest(f"{panel}.{control['name']}"):
                        self.assertIn(control["name"], drawing.rooms())

    def test_panels_go_on_in_the_colours_of_the_drawings(self) -> None:
        letters = {hexadecimal(control["ForeColor"]) for controls in self.panels.values()
                   for drawing in drawings(controls) for control in filter(drawing.is_lettered_by, controls)}
        self.assertEqual(letters, {hexadecimal(0), DIM})
        for panel, colours in LINES.items():
            with self.subTest(panel):
                lines = filter(lambda control: control["kind"] == "Line", self.panels[panel])
                self.assertEqual({hexadecimal(line["BorderColor"]) for line in lines}, colours)


if __name__ == "__main__":
    unittest.main()
