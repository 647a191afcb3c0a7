"""The circuit symbols, after IEC 60617: rectangular resistors, half-circle windings.

A part with two ends is drawn between two points, its body in the middle and its leads up to the
points. Its letter stands on the left of the way from a to b: above a part drawn to the right, on
the right of a part drawn downwards; `side=-1` puts it on the other side.
"""

from __future__ import annotations

import math

from sheet import (BROAD, COPPER, COPPER_PALE, HEAVY, INK, LETTER, PALE, PAPER, TUBE, WORD, Point, Sheet, along,
                   line_data, number, text_width, towards)

RESISTOR = (34.0, 12.0)
PLATES = (20.0, 6.0)  # length of the plates, distance between them
TURN = 5.0  # radius of one half circle of a winding


def middle(a: Point, b: Point) -> Point:
    """The point half way from a to b."""
    return ((a[0] + b[0]) / 2, (a[1] + b[1]) / 2)


def letter(s: Sheet, a: Point, b: Point, text: str, clear: float, side: int = 1, label: str | None = None) -> None:
    """The letter of a part that reaches `clear` from its axis; left to the panel when `label` is given."""
    if not text:
        return
    u, m = towards(a, b), middle(a, b)
    upright = abs(u[1]) > 0.7
    if upright:
        x, y = along(m, u, 0, side * (clear + 6))
        anchor = "start" if x > m[0] else "end"
    else:
        x, y = along(m, u, 0, side * (clear + 4 + LETTER / 2))
        anchor = "middle"
    if label is not None:
        half = text_width(text, LETTER) / 2
        s.room(label, text, x + {"start": half, "middle": 0, "end": -half}[anchor], y)
    else:
        s.text(x, y, text, LETTER, anchor)


def leads(s: Sheet, a: Point, b: Point, body: float) -> None:
    """The two leads of a part whose body is `body` long."""
    u, half = towards(a, b), math.dist(a, b) / 2
    if half > body / 2:
        s.wire(a, along(a, u, half - body / 2))
        s.wire(along(b, u, body / 2 - half), b)


def resistor(s: Sheet, a: Point, b: Point, text: str = "", side: int = 1) -> None:
    """A resistor."""
    length, width = RESISTOR
    u, m = towards(a, b), middle(a, b)
    leads(s, a, b, length)
    s.polygon(along(m, u, -length / 2, width / 2), along(m, u, length / 2, width / 2),
              along(m, u, length / 2, -width / 2), along(m, u, -length / 2, -width / 2), fill=PALE)
    letter(s, a, b, text, width / 2, side)


def impedance(s: Sheet, a: Point, b: Point, text: str = "Z", side: int = 1, label: str | None = None) -> None:
    """A load: the resistor's body, wider."""
    length, width = 36.0, 16.0
    u, m = towards(a, b), middle(a, b)
    leads(s, a, b, length)
    s.polygon(along(m, u, -length / 2, width / 2), along(m, u, length / 2, width / 2),
              along(m, u, length / 2, -width / 2), along(m, u, -length / 2, -width / 2), fill=PALE)
    letter(s, a, b, text, width / 2, side, label)


def capacitor(s: Sheet, a: Point, b: Point, text: str = "", side: int = 1, label: str | None = None,
              variable: bool = False) -> None:
    """A capacitor; a variable one is crossed by an arrow."""
    plate, gap = PLATES
    u, m = towards(a, b), middle(a, b)
    leads(s, a, b, gap)
    for t in (-gap / 2, gap / 2):
        s.wire(along(m, u, t, plate / 2), along(m, u, t, -plate / 2), width=HEAVY, cap="butt")
    if variable:
        s.arrow(along(m, u, -12, -12), along(m, u, 12, 12))
    letter(s, a, b, text, plate / 2, side, label)


def inductor(s: Sheet, a: Point, b: Point, text: str = "", side: int = 1, label: str | None = None,
             turns: int = 4) -> None:
    """A winding of half circles that bulge towards its letter."""
    length = 2 * TURN * turns
    u, m = towards(a, b), middle(a, b)
    leads(s, a, b, length)
    x, y = along(m, u, -length / 2)
    d = f"M{number(x)} {number(y)}"
    for i in range(1, turns + 1):
        x, y = along(m, u, -length / 2 + 2 * TURN * i)
        d += f" A{number(TURN)} {number(TURN)} 0 0 {1 if side > 0 else 0} {number(x)} {number(y)}"
    s.path(d)
    letter(s, a, b, text, TURN, side, label)


def diode(s: Sheet, a: Point, b: Point, text: str = "") -> None:
    """A diode that conducts from a to b."""
    half = 5.5
    u, m = towards(a, b), middle(a, b)
    leads(s, a, b, 2 * half)
    s.polygon(along(m, u, -half, half), along(m, u, -half, -half), along(m, u, half), fill=PALE)
    s.wire(along(m, u, half, half), along(m, u, half, -half))
    letter(s, a, b, text, half)


def generator(s: Sheet, a: Point, b: Point) -> None:
    """A source of alternating voltage."""
    radius = 13.0
    x, y = middle(a, b)
    leads(s, a, b, 2 * radius)
    s.circle((x, y), radius, fill=PALE)
    s.path(f"M{number(x - 7)} {number(y)} q3.5 -8 7 0 t7 0")


def meter(s: Sheet, a: Point, b: Point, text: str, label: str) -> None:
    """A measuring instrument; its letter is left to that label of the panel."""
    radius = 13.0
    x, y = middle(a, b)
    leads(s, a, b, 2 * radius)
    s.circle((x, y), radius)
    s.room(label, text, x, y)


def battery(s: Sheet, a: Point, b: Point, text: str = "", side: int = 1) -> None:
    """A DC source, its positive pole towards a."""
    u, m = towards(a, b), middle(a, b)
    leads(s, a, b, 6)
    s.wire(along(m, u, -3, 12), along(m, u, -3, -12), cap="butt")
    s.wire(along(m, u, 3, 6), along(m, u, 3, -6), width=TUBE, cap="butt")
    letter(s, a, b, text, 12, side)


def potentiometer(s: Sheet, a: Point, b: Point, wiper: Point, text: str = "", side: int = 1) -> None:
    """A resistor with a wiper whose arrow comes straight from the point `wiper`."""
    resistor(s, a, b, text, side)
    u, m = towards(a, b), middle(a, b)
    across = (wiper[0] - m[0]) * u[1] - (wiper[1] - m[1]) * u[0]
    foot = along(m, u, (wiper[0] - m[0]) * u[0] + (wiper[1] - m[1]) * u[1],
                 math.copysign(RESISTOR[1] / 2 + 1, across))
    s.arrow(wiper, foot)


def lamp(s: Sheet, a: Point, b: Point) -> None:
    """A lamp."""
    radius = 13.0
    x, y = middle(a, b)
    leads(s, a, b, 2 * radius)
    s.circle((x, y), radius, fill=PALE)
    reach = radius * math.sqrt(0.5)
    s.wire((x - reach, y - reach), (x + reach, y + reach))
    s.wire((x - reach, y + reach), (x + reach, y - reach))


def current_source(s: Sheet, a: Point, b: Point, text: str = "", side: int = 1) -> None:
    """A source of constant current, which leaves it at a: a circle crossed by a line across its leads."""
    radius = 13.0
    u, m = towards(a, b), middle(a, b)
    leads(s, a, b, 2 * radius)
    s.circle(m, radius, fill=PALE)
    s.wire(along(m, u, 0, radius), along(m, u, 0, -radius))
    s.head(along(m, u, -radius - 14), (-u[0], -u[1]))
    letter(s, a, b, text, radius, side)


def switch(s: Sheet, a: Point, b: Point) -> None:
    """An open contact whose blade is hinged towards b."""
    u, m = towards(a, b), middle(a, b)
    leads(s, a, b, 24)
    s.wire(along(m, u, 12), along(m, u, -11, 11))
    s.circle(along(m, u, -12), 2.2, fill=PAPER)


def ground(s: Sheet, at: Point) -> None:
    """The earth, hanging from a point."""
    x, y = at
    s.wire(at, (x, y + 6))
    for i, half in enumerate((9, 6, 3)):
        s.wire((x - half, y + 6 + 4 * i), (x + half, y + 6 + 4 * i))


def junction(s: Sheet, *points: Point) -> None:
    """Dots where wires meet."""
    for point in points:
        s.circle(point, 2.4, stroke=None, fill=INK)


def terminal(s: Sheet, *points: Point) -> None:
    """Open ends that something outside is joined to."""
    for point in points:
        s.circle(point, 3, fill=PAPER)


def pin(s: Sheet, edge: Point, outward: Point, text: str) -> None:
    """The number of a pin, beside its wire and outside the edge of the block."""
    x, y = edge[0] + 7 * outward[0], edge[1] + 8 * outward[1]
    if outward[0]:
        s.text(x, y - 7, text, WORD)
    else:
        s.text(x + 7, y, text, WORD)


def block(s: Sheet, x: float, y: float, width: float, height: float, depth: float, fill: str, edge: str = INK) -> None:
    """A box in oblique view: its front with the upper left corner at (x, y), its depth up to the right."""
    dx, dy = 0.8 * depth, -0.45 * depth
    s.rect(x, y, width, height, stroke=edge, fill=fill)
    s.polygon((x, y), (x + dx, y + dy), (x + width + dx, y + dy), (x + width, y), stroke=edge,
              fill=fill)
    s.polygon((x + width, y), (x + width + dx, y + dy), (x + width + dx, y + height + dy), (x + width, y + height),
              stroke=edge, fill=fill)


def cable(s: Sheet, *points: Point) -> None:
    """A coaxial cable as a double line."""
    s.hollow(line_data(list(points)), BROAD, cap="butt")


def bar(s: Sheet, a: Point, b: Point, diameter: float) -> None:
    """A tube or rod of copper colour that is thick enough to show its diameter."""
    u = towards(a, b)
    half = diameter / 2
    s.polygon(along(a, u, 0, half), along(b, u, 0, half), along(b, u, 0, -half), along(a, u, 0, -half),
              stroke=COPPER, fill=COPPER_PALE)
