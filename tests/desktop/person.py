"""A person at the program, who reads by a screen reader, and acts by the mouse and the keyboard of the desktop."""

from __future__ import annotations

import atexit
import os
import tempfile
from collections.abc import Iterator

import gi

from desktop import Desktop, Program, start_server, stop, wait_for

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

Role, State = Atspi.Role, Atspi.StateType
Accessible = Atspi.Accessible  # what a screen reader sees: a window, a field, an entry of a menu


def listen() -> None:
    """Starts the bus on which programs report to screen readers, for this process and all that it starts."""
    folder = tempfile.TemporaryDirectory()  # unaffected by the settings of whoever runs the test, and by other tests
    atexit.register(folder.cleanup)
    os.environ.update(HOME=folder.name, XDG_RUNTIME_DIR=folder.name)
    bus, address = start_server(lambda end: ["dbus-daemon", "--session", "--nofork", f"--print-address={end}"])
    atexit.register(stop, bus)
    os.environ.update(DBUS_SESSION_BUS_ADDRESS=address, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
    Atspi.init()
    Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)  # look afresh each time


listen()


def children(accessible: Accessible) -> list[Accessible]:
    return [child for index in range(accessible.get_child_count()) if (child := accessible.get_child_at_index(index))]


def has(accessible: Accessible, state: State) -> bool:
    return bool(accessible.get_state_set().contains(state))


def on_screen(accessible: Accessible) -> bool:
    # The toolkit reports a panel that reaches beyond the main window as absent, but not its contents.
    return has(accessible, State.VISIBLE) or (
        accessible.get_role() == Role.FRAME and any(has(part, State.VISIBLE) for part in children(accessible)))


def below(accessible: Accessible) -> Iterator[Accessible]:
    """All that is on screen inside an accessible, in the order in which it was made."""
    for child in children(accessible):
        if on_screen(child):
            yield child
            yield from below(child)


class Person:
    """Opens panels, types, clicks and reads. It waits for everything; what does not come is an AssertionError."""

    def __init__(self, desktop: Desktop, program: Program) -> None:
        self._desktop = desktop
        self._program = program
        self.window: Accessible = wait_for(self._main_window, "the main window of the program")
        wait_for(lambda: has(self.window, State.ACTIVE), "the keyboard in the main window")
        self._menu = self.find(Role.MENU_BAR, "")

    # What the person sees

    def windows(self) -> list[Accessible]:
        """The windows of the program: the main one, and its message boxes."""
        programs = [one for one in children(Atspi.get_desktop(0)) if one.get_process_id() == self._program.id]
        return [window for one in programs for window in children(one) if on_screen(window)]

    def panels(self) -> list[str]:
        """The captions of the open panels."""
        area = self.find(Role.LAYERED_PANE, "")
        return [str(one.get_name()) for one in children(area) if on_screen(one)]

    def highlighted(self) -> list[str]:
        """What is highlighted in the menu: nothing, an entry of the bar, or one with an entry of its drop-down."""
        titles = [title for title in children(self._menu) if has(title, State.FOCUSED)]
        entries = [entry for title in titles for drop_down in children(title) for entry in children(drop_down)]
        return [str(one.get_name()) for one in titles + [entry for entry in entries if has(entry, State.FOCUSED)]]

    def find(self, role: Role, name: str, within: Accessible | None = None) -> Accessible:
        """What is on screen under that name."""
        def look() -> Accessible | None:
            inside = below(within or self.window)
            return next((one for one in inside if one.get_role() == role and one.get_name() == name), None)
        return wait_for(look, f'{role.value_nick} "{name}"')

    def text_of(self, name: str) -> str:
        """The text of the field of that name."""
        return str(Atspi.Text.get_text(self.find(Role.TEXT, name), 0, -1))

    def box(self, title: str) -> Accessible:
        """The message box of that title."""
        def look() -> Accessible | None:
            boxes = (one for one in self.windows() if one.get_role() == Role.ALERT and one.get_name() == title)
            return next(boxes, None)
        return wait_for(look, f'the box "{title}"')

    # What the person does

    def press(self, *keys: str) -> None:
        self._desktop.xdotool("key", *keys)

    def pick(self, menu: str, entry: str) -> None:
        """Picks an entry of the menu with the mouse."""
        title = self.find(Role.MENU_ITEM, menu, self._menu)
        self.click(title)
        self.click(self.find(Role.MENU_ITEM, entry, title))

    def pick_by_key(self, menu: str, entry: str) -> None:
        """Picks an entry of the menu with the keyboard."""
        titles = [str(title.get_name()) for title in children(self._menu)]
        title = children(self._menu)[titles.index(menu)]
        entries = [str(one.get_name()) for drop_down in children(title) for one in children(drop_down)]
        # The key Down opens the first drop-down, on its first entry.
        self.press("F10", "Down", *["Right"] * titles.index(menu), *["Down"] * entries.index(entry))
        wait_for(lambda: self.highlighted() == [menu, entry],
                 lambda: f'a highlight on "{entry}" under "{menu}", not on {self.highlighted()}')
        self.press("Return")

    def click(self, accessible: Accessible, button: str = "1") -> None:
        place = Atspi.Component.get_extents(accessible, Atspi.CoordType.SCREEN)
        self._desktop.xdotool("mousemove", str(place.x + place.width // 2), str(place.y + place.height // 2),
                              "click", button)

    def write(self, name: str, text: str) -> None:
        """Clicks into a field and types over what is there."""
        self.click(self.find(Role.TEXT, name))
        self.press("ctrl+a")
        self._desktop.xdotool("type", "--delay", "1", "--", text)

    def answer(self, title: str, button: str) -> str:
        """Clicks a button of the message box with that title; returns what the box said."""
        box = self.box(title)
        said = "".join(str(one.get_name()) for one in below(box) if one.get_role() == Role.LABEL)
        self.click(self.find(Role.PUSH_BUTTON, button, box))
        return said

    def choose(self, name: str, row: str) -> None:
        """Clicks a row of the list of that name."""
        self.click(self.find(Role.LIST_ITEM, row, self.find(Role.LIST, name)))

    def _main_window(self) -> Accessible | None:
        if not self._program.is_running():
            raise AssertionError(f"the program has ended: {self._program.error_output()}")
        return next((one for one in self.windows() if one.get_role() == Role.FRAME), None)
