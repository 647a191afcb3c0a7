"""The drawing sheet: colours, strokes, lettering, and the few shapes that every picture is made of.

A picture is a function that draws on a Sheet; the decorator `picture` gives it its name and its
nominal size in pixels. Only plain SVG Tiny attributes are written, so that every renderer shows
the same picture: no style sheets, markers, masks or clip paths.
"""

from __future__ import annotations

import math
from collections import Counter
from dataclasses import dataclass
from typing import Callable
from xml.sax.saxutils import escape

Point = tuple[float, float]

# Colours, by role.
INK = "#1f2d3d"  # circuits and outlines
COPPER = "#a8561f"  # metal that radiates or is wound: elements, wire, braid
DIM = "#2a4a78"  # dimension lines and what they say
METAL = "#d3dae2"  # fill: sheet metal, blocks
PAPER = "#ffffff"  # fill: what must hide the lines under it
PALE = "#edf2f7"  # fill: the inside of a symbol
DIELECTRIC = "#f6ecd0"  # fill: insulators
COPPER_PALE = "#e9c9ad"  # fill: copper seen in section
DARK = "#8597a9"  # fill: what is dark itself, the outside of a cable and the iron of a core
# The view inverts the colours above on dark windows, and leaves those that are written as below.
BLACK_PART = "rgb(31,45,61)"  # fill: a part that is black on light and dark windows
MARK = "rgb(255,255,255)"  # what is printed on it

# Strokes, in pixels at nominal size.
THIN = 1.0  # dimension lines, hatching
MAIN = 1.6  # circuits and outlines
HEAVY = 2.2  # plates, iron cores, wires and small coils that are drawn as they look
TUBE = 3.4  # tubes and rods, the turns on a core, the short plate of a battery
BROAD = 5.0  # tubes and turns seen closer, a cable
GUIDE = "5 4"  # dashes of a line that only shows how ends lie
AXIS = "9 3 2 3"  # dashes of axes and cuts

# Lettering, in pixels at nominal size.
LETTER = 13
WORD = 11
MARKING = 22  # what is printed on a part seen large

# Arrow heads: length and half width.
ARROW = (7.0, 2.5)


@dataclass(frozen=True)
class Room:
    """A place left free for a label of the panel: its name, its text, its centre."""

    label: str
    text: str
    x: float
    y: float


@dataclass(frozen=True)
class Picture:
    """One picture of the program."""

    name: str
    width: int
    height: int
    title: str
    draw: Callable[["Sheet"], None]

    def sheet(self) -> "Sheet":
        """The picture, drawn."""
        sheet = Sheet(self.name, self.width, self.height, self.title)
        self.draw(sheet)
        return sheet


PICTURES: list[Picture] = []


def picture(name: str, width: int, height: int, title: str):
    """Registers the decorated function as the picture `name`; `title` is what it shows, in French."""

    def register(draw: Callable[[Sheet], None]) -> Callable[[Sheet], None]:
        PICTURES.append(Picture(name, width, height, title, draw))
        return draw

    return register


def number(value: float) -> str:
    """A coordinate with two decimals at most."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def text_width(text: str, size: float, bold: bool = False) -> float:
    """The width of a text in pixels, near enough to leave room for it, in a wide font (DejaVu Sans).

    The pictures name no font: the view letters them in that of the interface.
    """
    narrow, wide = "iIjl1.,:;'()| ", "mwMWΩ@%"
    ems = sum(0.38 if c in narrow else 0.88 if c in wide else 0.64 for c in text)
    return ems * size * (1.1 if bold else 1.0)


def towards(a: Point, b: Point) -> Point:
    """The unit vector from a to b."""
    length = math.dist(a, b)
    return ((b[0] - a[0]) / length, (b[1] - a[1]) / length)


def along(origin: Point, u: Point, t: float, n: float = 0.0) -> Point:
    """The point t along u and n to its left (up for a line that goes right) from origin."""
    return (origin[0] + u[0] * t + u[1] * n, origin[1] + u[1] * t - u[0] * n)


def polar(centre: Point, radius: float, degrees: float) -> Point:
    """The point at an angle, counted from the right and counter-clockwise as seen."""
    a = math.radians(degrees)
    return (centre[0] + radius * math.cos(a), centre[1] - radius * math.sin(a))


def place(point: Point) -> tuple[str, str]:
    """A point as it is written, which is what tells whether two lines meet."""
    return (number(point[0]), number(point[1]))


def line_data(points: list[Point]) -> str:
    """The data of a path through the points."""
    return "M" + " L".join(" ".join(place(point)) for point in points)


def ellipse_data(centre: Point, rx: float, ry: float) -> str:
    """The data of a path along an ellipse with upright axes."""
    x, y = centre
    return (f"M{number(x - rx)} {number(y)} a{number(rx)} {number(ry)} 0 1 1 {number(2 * rx)} 0"
            f" a{number(rx)} {number(ry)} 0 1 1 {number(-2 * rx)} 0 Z")


def join(lines: list[list[Point]]) -> None:
    """Joins two lines that meet where no other line ends; the later one is left empty.

    Two round ends on top of each other would show as a speck, where half-covered pixels are painted twice.
    """
    ends = Counter(place(end) for line in lines for end in (line[0], line[-1]))
    for i, line in enumerate(lines):
        j = i + 1
        while line and j < len(lines):
            other = lines[j]
            for a, b in ((line, other), (line, other[::-1]), (line[::-1], other), (line[::-1], other[::-1])):
                if b and place(a[-1]) == place(b[0]) and ends[place(b[0])] == 2:
                    line[:] = a + b[1:]
                    other.clear()
                    j = i  # the longer line may meet one that came before
                    break
            j += 1


class Sheet:
    """One picture while it is drawn."""

    def __init__(self, name: str, width: int, height: int, title: str) -> None:
        self.name, self.width, self.height, self.title = name, width, height, title
        self.items: list[str | list[Point]] = []  # a plain line is its points until the end
        self.rooms: list[Room] = []

    # Shapes.

    def path(self, d: str, stroke: str | None = INK, width: float = MAIN, fill: str | None = None,
             dash: str | None = None, cap: str | None = None) -> None:
        """A path by its data; a stroke of None leaves the outline out."""
        attributes = [f'd="{d}"']
        if stroke is None:
            attributes.append('stroke="none"')
        else:
            if stroke != INK:
                attributes.append(f'stroke="{stroke}"')
            if width != MAIN:
                attributes.append(f'stroke-width="{number(width)}"')
        if fill:
            attributes.append(f'fill="{fill}"')
        if dash:
            attributes.append(f'stroke-dasharray="{dash}"')
        if cap:
            attributes.append(f'stroke-linecap="{cap}"')
        self.items.append(f"<path {' '.join(attributes)}/>")

    def hollow(self, d: str, across: float, stroke: str = INK, fill: str = PAPER, cap: str | None = None) -> None:
        """A path of something that is `across` wide itself, such as a cable: one stroke within another."""
        self.path(d, stroke=stroke, width=across, cap=cap)
        self.path(d, stroke=fill, width=across - 2 * MAIN, cap=cap)

    def wire(self, *points: Point, **look) -> None:
        """A line through the points; plain ones that meet in pairs become one."""
        if look:
            self.path(line_data(list(points)), **look)
        else:
            self.items.append(list(points))

    def polygon(self, *points: Point, **look) -> None:
        """A closed line through the points."""
        self.path(line_data(list(points)) + " Z", **look)

    def rect(self, x: float, y: float, across: float, down: float, **look) -> None:
        """A rectangle by its upper left corner and its size."""
        self.path(f"M{number(x)} {number(y)} h{number(across)} v{number(down)} h{number(-across)} Z", **look)

    def ellipse(self, centre: Point, rx: float, ry: float, **look) -> None:
        """An ellipse with upright axes."""
        self.path(ellipse_data(centre, rx, ry), **look)

    def circle(self, centre: Point, radius: float, **look) -> None:
        """A circle."""
        self.ellipse(centre, radius, radius, **look)

    def arc(self, centre: Point, radius: float, start: float, end: float, **look) -> None:
        """An arc counter-clockwise between two angles in degrees."""
        (x1, y1), (x2, y2) = polar(centre, radius, start), polar(centre, radius, end)
        large = 1 if (end - start) % 360 > 180 else 0
        self.path(f"M{number(x1)} {number(y1)} A{number(radius)} {number(radius)} 0 {large} 0"
                  f" {number(x2)} {number(y2)}", **look)

    def head(self, tip: Point, u: Point, colour: str = INK) -> None:
        """A filled arrow head that points along u."""
        length, half = ARROW
        self.polygon(tip, along(tip, u, -length, half), along(tip, u, -length, -half), stroke=None, fill=colour)

    def arrow(self, a: Point, b: Point, colour: str = INK, width: float = MAIN) -> None:
        """A line from a to b with a head at b."""
        u = towards(a, b)
        self.wire(a, along(b, u, -ARROW[0] + 1), stroke=colour, width=width)
        self.head(b, u, colour)

    def axis(self, a: Point, b: Point) -> None:
        """A chain line along an axis, or where a section is cut."""
        self.wire(a, b, stroke=DIM, width=THIN, dash=AXIS)

    # Lettering.

    def text(self, x: float, y: float, text: str, size: float = LETTER, anchor: str = "middle",
             colour: str = INK, bold: bool = False) -> None:
        """A text whose middle height is at y; it must stay inside the sheet."""
        width = text_width(text, size, bold)
        left = x - {"start": 0.0, "middle": width / 2, "end": width}[anchor]
        if not (0 <= left and left + width <= self.width and size / 2 <= y <= self.height - size / 2):
            raise ValueError(f'{self.name}: "{text}" leaves the sheet')
        weight = ' font-weight="bold"' if bold else ""
        self.items.append(f'<text x="{number(x)}" y="{number(y + 0.36 * size)}" font-size="{number(size)}"'
                          f' text-anchor="{anchor}"{weight} stroke="none" fill="{colour}">{escape(text)}</text>')

    def room(self, label: str, text: str, x: float, y: float) -> None:
        """Leaves the place around (x, y) to a label of the panel; nothing is drawn."""
        self.rooms.append(Room(label, text, x, y))

    # Dimensions.

    def dimension(self, a: Point, b: Point, text: str = "", offset: float = 0.0,
                  label: str | None = None, extend: bool = True) -> None:
        """A dimension between a and b, drawn `offset` to the left of the way from a to b.

        The text stands in a gap of the line; with `label` the gap is left to that label of the panel. A span too short
        for its heads takes them from outside, and the text then stands beyond b.
        """
        u = towards(a, b)
        p, q = along(a, u, 0, offset), along(b, u, 0, offset)
        if extend and offset:
            side = math.copysign(1, offset)
            for foot, end in ((a, p), (b, q)):
                self.wire(along(foot, u, 0, 3 * side), along(end, u, 0, 3 * side), stroke=DIM, width=THIN)
        length = math.dist(p, q)
        upright = abs(u[1]) > 0.7
        gap = (WORD + 6 if upright else text_width(text, WORD) + 8) if text else 0
        if length >= gap + 2 * ARROW[0] + 4:
            middle = along(p, u, length / 2)
            self.head(p, (-u[0], -u[1]), DIM)
            self.head(q, u, DIM)
            self.wire(along(p, u, ARROW[0] - 1), along(middle, u, -gap / 2), stroke=DIM, width=THIN)
            self.wire(along(middle, u, gap / 2), along(q, u, 1 - ARROW[0]), stroke=DIM, width=THIN)
        else:
            self.arrow(along(p, u, -16), p, DIM, THIN)
            self.arrow(along(q, u, 16), q, DIM, THIN)
            reach = 19 + (WORD / 2 + 2 if upright else text_width(text, WORD) / 2)
            middle = along(q, u, reach)
        if label is not None:
            self.room(label, text, *middle)
        elif text:
            self.text(*middle, text, WORD, colour=DIM)

    def svg(self) -> str:
        """The picture as an SVG document."""
        lines = [item for item in self.items if isinstance(item, list)]
        join(lines)
        body = "\n".join(item if isinstance(item, str) else f'<path d="{line_data(item)}"/>'
                         for item in self.items if item)
        return (f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny"'
                f' width="{self.width}" height="{self.height}" viewBox="0 0 {self.width} {self.height}">\n'
                f"<title>{escape(self.title)}</title>\n"
                f'<g fill="none" stroke="{INK}" stroke-width="{MAIN}" stroke-linecap="round"'
                f' stroke-linejoin="round">\n{body}\n</g>\n</svg>\n')
