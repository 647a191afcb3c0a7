"""The guide as a whole: test_guide.py, with the driver in the variable PILOTE and the rendered guide in GUIDE."""

import html.parser
import os
import pathlib
import re
import subprocess
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "guide"))

from driver import Session

PAGES = {file.stem for file in (ROOT / "docs" / "guide" / "panneaux").glob("*.md")}
VERBATIM = {"math", "code", "pre"}
RENDERED = sorted(pathlib.Path(os.environ["GUIDE"]).glob("*.html"))


class Links(html.parser.HTMLParser):
    """A page's links, its anchors, what it needs of a browser, and its words without formulas and code."""

    def __init__(self, file):
        super().__init__()
        self.targets, self.places, self.tags, self.words, self._inside = [], set(), [], [], 0
        self.feed(file.read_text(encoding="utf-8"))

    def handle_data(self, data):
        if not self._inside:
            self.words.append(data)

    def handle_endtag(self, tag):
        self._inside -= tag in VERBATIM

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        self._inside += tag in VERBATIM
        self.tags.append(tag)
        self.places.add(attributes.get("id"))
        self.targets += [attributes[name] for name in ("href", "src") if name in attributes]
        self.targets += re.findall(r"[^\s,]+\.png", attributes.get("srcset", ""))


class GuideTest(unittest.TestCase):
    """Pages, links, and plain HTML."""

    def test_has_a_page_for_every_panel_of_the_menu(self):
        panels = set()
        with Session(os.environ["PILOTE"], ".") as session:
            for menu in session.state()["menus"]:
                for entry in menu["Entries"]:
                    if entry["Name"] == "MenuQuitter":
                        continue
                    session.say("menu " + entry["Name"])
                    panels |= set(session.state()["panels"])
        self.assertEqual(PAGES, panels)

    def test_leads_to_every_page_by_need(self):
        needs = (ROOT / "docs" / "guide" / "je-veux.md").read_text(encoding="utf-8")
        self.assertEqual(set(re.findall(r"\((\w+)\.html\)", needs)), PAGES)

    def test_has_no_link_that_leads_nowhere(self):
        pages = {file.name: Links(file) for file in RENDERED}
        self.assertEqual(set(pages), {f"{name}.html" for name in PAGES | {"index", "commencer", "je-veux"}})
        for name, page in pages.items():
            for target in page.targets:
                with self.subTest(page=name, target=target):
                    file, _, place = target.partition("#")
                    self.assertTrue((RENDERED[0].parent / (file or name)).is_file())
                    self.assertTrue(not place or place in pages[file or name].places)

    def test_needs_no_script(self):
        for file in RENDERED:
            with self.subTest(file.name):
                self.assertNotIn("script", Links(file).tags)

    def test_is_plain_html(self):
        for file in RENDERED:
            with self.subTest(file.name):
                said = subprocess.run(["tidy", "-quiet", "-errors", "--drop-empty-elements", "no", file],
                                      capture_output=True, encoding="utf-8", check=False)
                self.assertEqual(said.stderr, "")

    def test_sets_every_formula(self):
        for file in RENDERED:
            with self.subTest(file.name):
                self.assertNotIn('class="math', file.read_text(encoding="utf-8"), "a formula that is left as TeX")

    def test_sets_formulas_one_by_one_with_whole_numbers(self):
        page = (RENDERED[0].parent / "AntennesHighQLoop.html").read_text(encoding="utf-8")
        beside = re.search(r'<span class="formules">(?:(?!</span>).)*</span>', page[page.index("31200") - 2000:], re.DOTALL)
        self.assertEqual(beside.group().count("<math "), 4)
        self.assertIn("<mn>0,2</mn>", page)

    def test_ends_no_line_before_a_mark_or_a_unit(self):
        for file in RENDERED:
            with self.subTest(file.name):
                words = "".join(Links(file).words)
                self.assertEqual(re.findall(r"\S+ [»:;?!].*|.*« .*|\d (?:[kM]?Hz|[kM]?Ω|[µp]F|[µn]H|mm)\b.*|\d %.*", words), [])


if __name__ == "__main__":
    unittest.main()
