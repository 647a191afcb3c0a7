"""A page of the guide matches its panel: test_page.py PANEL, with the driver in the variable PILOTE."""

import os
import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "guide"))

import accuracy
import example
from driver import Session
from page import SECTIONS, Page

PILOTE = os.environ["PILOTE"]
GUIDE = ROOT / "docs" / "guide"
PANEL = sys.argv.pop(1) if len(sys.argv) > 1 else ""
#: What a person types in, picks, moves, clicks, or reads a figure from.
FIELDS = {"TextBox", "ListBox", "OptionButton", "CommandButton", "HScrollBar", "VScrollBar", "MaskEdBox"}


class PageTest(unittest.TestCase):
    """The page of PANEL."""

    @classmethod
    def setUpClass(cls):
        cls.page = Page(GUIDE / "panneaux" / f"{PANEL}.md")
        with Session(PILOTE, ".") as session:
            session.say("menu " + cls.page.entry)
            cls.controls = session.controls(PANEL)

    def test_has_all_sections_in_their_order(self):
        wanted = SECTIONS if self.has_fields() else ["Exemple", "À savoir"]
        self.assertEqual(self.page.sections, wanted)

    def test_describes_every_field(self):
        described = {name for field in self.page.fields() for name in field.controls}
        fields = {plain(name) for name, control in self.controls.items() if control["kind"] in FIELDS}
        self.assertEqual(fields - described, set(), "fields that the page does not describe")
        self.assertEqual(described - {plain(name) for name in self.controls}, set(), "what the panel has not")

    def test_examples_hold_in_both_regions(self):
        examples = self.page.blocks("exemple")
        self.assertEqual({decimal for block in examples for decimal in block.decimals}, {".", ","})
        for block in examples:
            self.assertTrue(any(line.startswith("expect ") for line in block.lines), "an example that shows nothing")
            for decimal in block.decimals:
                with self.subTest(decimal=decimal):
                    example.play(PILOTE, self.page, block.lines, decimal)

    def test_figures_are_as_exact_as_stated(self):
        if not self.has_fields():
            return
        self.assertEqual(len(self.page.blocks("exactitude")), 1)
        cases = accuracy.cases(GUIDE / "exactitude" / f"{PANEL}.py")
        self.assertGreaterEqual(len(cases), 3)
        for case in cases:
            with self.subTest(case.name):
                outcome = accuracy.play(PILOTE, self.page.entry, case)
                self.assertTrue(outcome.holds, f"{outcome.panel} / {outcome.right} = {outcome.factor}, not {case.factor}")

    def has_fields(self):
        """A panel that only shows words has no figures to check."""
        return any(control["kind"] in {"TextBox", "ListBox", "HScrollBar"} for control in self.controls.values())


def plain(name):
    """The name of a control, or of all those that share it: "TxtUSec" of "TxtUSec(0)"."""
    return re.sub(r"\(\d+\)$", "", name)


if __name__ == "__main__":
    unittest.main()
