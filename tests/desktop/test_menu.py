"""A person walks through the menu with the keyboard, and opens each panel with the mouse."""

from __future__ import annotations

import os
import sys
import unittest
from pathlib import Path
from typing import Any

from case import DesktopCase
from desktop import until

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools" / "guide"))

from driver import Session  # noqa: E402

# The entries of each drop-down, by their captions, and their names: as the program without a window has them, which
# tests/scenarios/shell/Menu.scn compares with what must stand there.
Menus = dict[str, dict[str, str]]


def menus() -> Menus:
    with Session(os.environ["PILOTE"], ".") as session:
        return {menu["Caption"]: {entry["Caption"]: entry["Name"] for entry in menu["Entries"]}
                for menu in session.state()["menus"]}


def picked(name: str) -> dict[str, Any]:
    """What the program without a window answers to the pick of an entry; under "panels" the captions of the panels that
    are open then."""
    with Session(os.environ["PILOTE"], ".") as session:
        answer = session.say(f"menu {name}")
        if not answer["ended"]:
            panels = session.state()["panels"].values()
            answer["panels"] = [panel["Caption"] for panel in panels if panel["visible"]]
        return answer


class Menu(DesktopCase):
    def test_keys_walk_through_all_entries(self) -> None:
        self.start()
        self.person.press("F10", "Down")
        tree = menus()
        for title, entries in tree.items():
            for entry in entries:
                until(lambda: self.person.highlighted() == [title, entry],
                      lambda: f'a highlight on "{entry}", not on {self.person.highlighted()}')
                self.person.press("Down")
            self.person.press("Right")
        first = next([title, *entries][:2] for title, entries in tree.items())
        until(lambda: self.person.highlighted() == first, "the first entry again")
        self.person.press("Escape", "Escape")
        until(lambda: not self.person.highlighted(), "no highlight in the menu")

    def test_clicks_open_all_panels(self) -> None:
        self.start()
        for title, entries in menus().items():
            for entry, name in entries.items():
                answer = picked(name)
                if answer["ended"]:
                    continue
                with self.subTest(entry):
                    self.person.pick(title, entry)
                    for box in answer["messages"]:  # one panel asks whether to go on
                        self.person.answer(box["title"], "Oui")
                    until(lambda: self.person.panels() == answer["panels"],
                          lambda: f"{answer['panels']} on screen, not {self.person.panels()}")


if __name__ == "__main__":
    unittest.main()
