"""The main window keeps its size, whatever part of it is in sight: moved and dragged to all sides and back."""

from __future__ import annotations

import time
import unittest

from desktop import Desktop, Program, wait_for
import person  # noqa: F401  it starts the bus that one of the window managers wants

WIDTH, HEIGHT = 1298, 1000  # pixels: the frame at 96 dots per inch


class Window(unittest.TestCase):
    def start(self, size: str, manager: str, **environment: str) -> None:
        self.screen = [int(pixels) for pixels in size.split("x")]
        self.desktop = Desktop(size, manager)
        self.addCleanup(self.desktop.close)
        self.program = Program(self.desktop, **environment)
        self.addCleanup(self.program.close)
        self.window = wait_for(self.find, "the main window")
        before = self.geometry()
        while before != (before := self.rest()):  # the window manager puts its border around it
            pass

    def find(self) -> str:
        self.assertTrue(self.program.is_running())
        return self.desktop.xdotool("search", "--onlyvisible", "--name", "Veloris").stdout.strip()

    def geometry(self) -> dict[str, int]:
        lines = self.desktop.xdotool("getwindowgeometry", "--shell", self.window).stdout.split()
        return {name: int(value) for name, value in (line.split("=") for line in lines)}

    def size(self) -> tuple[int, int]:
        return self.geometry()["WIDTH"], self.geometry()["HEIGHT"]

    def rest(self) -> dict[str, int]:
        """Where the window is after a while."""
        time.sleep(0.4)  # the only way to see that nothing happens
        self.assertTrue(self.program.is_running(), "the program has ended")
        return self.geometry()

    def move(self, x: int, y: int) -> None:
        self.desktop.xdotool("windowmove", self.window, str(x), str(y))

    def point_at_title(self, x: int) -> None:
        """Moves the mouse to the title bar, that far from the left of the window."""
        self.desktop.xdotool("mousemove", "--window", self.window, "--", str(x), "-12")

    def restore(self) -> None:
        """Some window managers shrink a window to the screen; a double click on its title bar restores its size."""
        if self.size()[0] <= self.screen[0]:
            self.point_at_title(300)
            self.desktop.xdotool("click", "--repeat", "2", "--delay", "80", "1")
            self.rest()
            self.assertGreater(self.size()[0], self.screen[0])

    def drag(self, end: tuple[int, int]) -> None:
        """Drags what the mouse points at to another point of the screen."""
        place = dict(line.split("=") for line in self.desktop.xdotool("getmouselocation", "--shell").stdout.split())
        start = int(place["X"]), int(place["Y"])
        self.desktop.xdotool("mousedown", "1")
        for step in range(1, 11):
            place = (a + (b - a) * step // 10 for a, b in zip(start, end))
            self.desktop.xdotool("mousemove", *map(str, place))
        self.desktop.xdotool("mouseup", "1")

    def moves_everywhere(self) -> None:
        size = self.size()
        width, height = self.screen
        for x, y in [(width - 30, 100), (30 - size[0], 100), (100, height - 30), (100, 30 - size[1]), (0, 0)]:
            self.move(x, y)
            self.rest()
            self.assertEqual(self.size(), size, f"after a move to {x}, {y}")

    def drags_everywhere(self) -> None:
        self.restore()
        size = self.size()
        right, bottom = self.screen[0] - 10, self.screen[1] - 10
        left, far = 200, right - 150  # the buttons of the title bar left alone
        for grip, *ends in [(left, (right, 30), (left, 30)), (far, (10, 30), (far, 30)),
                            (left, (left, bottom), (left, 30))]:
            self.move(0, 40)  # with the title bar in sight
            before = self.rest()
            self.point_at_title(grip)
            for end in ends:
                self.drag(end)
                after = self.rest()
                self.assertNotEqual((before["X"], before["Y"]), (after["X"], after["Y"]), "it does not follow the mouse")
                self.assertEqual(self.size(), size, f"after a drag to {end}")
                before = after

    def test_it_keeps_its_size(self) -> None:
        for manager in ["", "openbox", "xfwm4"]:
            for size in ["1280x1024", "1024x768", "640x480"]:
                with self.subTest(manager=manager, size=size):
                    self.start(size, manager)
                    if not manager:
                        self.assertEqual(self.size(), (WIDTH, HEIGHT))
                    self.moves_everywhere()
                    if manager:
                        self.drags_everywhere()
                self.doCleanups()

    def test_it_keeps_its_size_at_any_scale(self) -> None:
        for setting, scale in [({"QT_SCALE_FACTOR": "4"}, 4), ({"QT_FONT_DPI": "480"}, 5)]:
            for manager in ["", "openbox", "xfwm4"]:
                with self.subTest(setting, manager=manager):
                    self.start("640x480", manager, **setting)
                    if not manager:
                        self.assertEqual(self.size(), (scale * WIDTH, scale * HEIGHT))
                    self.moves_everywhere()
                self.doCleanups()

    def test_a_scale_that_is_none(self) -> None:
        for scale in ["-1", "0", "nan", "inf"]:
            with self.subTest(scale):
                self.start("640x480", "", QT_SCALE_FACTOR=scale)
                self.assertEqual(self.size(), (WIDTH, HEIGHT))
                self.moves_everywhere()
            self.doCleanups()


if __name__ == "__main__":
    unittest.main()
