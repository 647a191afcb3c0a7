"""The seven simple circuits, the sweep circuits and the sign of the LC circuit."""

from __future__ import annotations

from sheet import Sheet, picture
from symbols import capacitor, generator, inductor, junction, resistor

LEFT, RIGHT, TOP, BOTTOM = 46.0, 234.0, 56.0, 184.0
MIDST = 140.0


def source(s: Sheet) -> None:
    """The generator on the left, common to all."""
    generator(s, (LEFT, TOP), (LEFT, BOTTOM))


def branches(s: Sheet, *columns: float) -> None:
    """The two rails of a parallel circuit, up to the last branch."""
    for y in (TOP, BOTTOM):
        s.wire((LEFT, y), (columns[-1], y))
        junction(s, *((x, y) for x in columns[:-1]))


@picture("circuit-rc-serie", 284, 234, "Circuit RC série")
def rc_serie(s: Sheet) -> None:
    source(s)
    resistor(s, (LEFT, TOP), (RIGHT, TOP), "R")
    capacitor(s, (RIGHT, TOP), (RIGHT, BOTTOM), "C")
    s.wire((RIGHT, BOTTOM), (LEFT, BOTTOM))


@picture("circuit-rc-parallele", 284, 234, "Circuit RC parallèle")
def rc_parallele(s: Sheet) -> None:
    source(s)
    branches(s, MIDST, RIGHT)
    resistor(s, (MIDST, TOP), (MIDST, BOTTOM), "R")
    capacitor(s, (RIGHT, TOP), (RIGHT, BOTTOM), "C")


@picture("circuit-rl-parallele", 284, 234, "Circuit RL parallèle")
def rl_parallele(s: Sheet) -> None:
    source(s)
    branches(s, MIDST, RIGHT)
    resistor(s, (MIDST, TOP), (MIDST, BOTTOM), "R")
    inductor(s, (RIGHT, TOP), (RIGHT, BOTTOM), "L")


@picture("circuit-rlc-serie", 284, 234, "Circuit RLC série")
def rlc_serie(s: Sheet) -> None:
    source(s)
    resistor(s, (LEFT, TOP), (MIDST, TOP), "R")
    inductor(s, (MIDST, TOP), (RIGHT, TOP), "L")
    capacitor(s, (RIGHT, TOP), (RIGHT, BOTTOM), "C")
    s.wire((RIGHT, BOTTOM), (LEFT, BOTTOM))


@picture("circuit-rlc-parallele", 284, 234, "Circuit RLC parallèle")
def rlc_parallele(s: Sheet) -> None:
    source(s)
    branches(s, 110, 172, RIGHT)
    resistor(s, (110, TOP), (110, BOTTOM), "R")
    inductor(s, (172, TOP), (172, BOTTOM), "L")
    capacitor(s, (RIGHT, TOP), (RIGHT, BOTTOM), "C")


@picture("circuit-rl-serie-c-parallele", 284, 234, "R et L en série, C en parallèle")
def rl_serie_c_parallele(s: Sheet) -> None:
    source(s)
    branches(s, MIDST, RIGHT)
    resistor(s, (MIDST, TOP), (MIDST, 120), "R")
    inductor(s, (MIDST, 120), (MIDST, BOTTOM), "L")
    capacitor(s, (RIGHT, TOP), (RIGHT, BOTTOM), "C")


@picture("circuit-lc-serie", 284, 234, "Circuit LC série")
def lc_serie(s: Sheet) -> None:
    source(s)
    inductor(s, (LEFT, TOP), (RIGHT, TOP), "L")
    capacitor(s, (RIGHT, TOP), (RIGHT, BOTTOM), "C")
    s.wire((RIGHT, BOTTOM), (LEFT, BOTTOM))


@picture("rlc-serie", 251, 172, "R, L et C en série, un courant commun")
def sweep_serie(s: Sheet) -> None:
    left, right, top, bottom = 30.0, 216.0, 40.0, 150.0
    generator(s, (left, top), (left, bottom))
    s.wire((left, top), (70, top))
    s.head((64, top), (1, 0))
    s.text(58, top - 15, "I")
    resistor(s, (70, top), (140, top), "R")
    inductor(s, (140, top), (right, top), "L")
    capacitor(s, (right, top), (right, bottom), "C")
    s.wire((right, bottom), (left, bottom))


@picture("rlc-parallele", 247, 183, "R et L en série, C en parallèle, et leurs courants")
def sweep_parallele(s: Sheet) -> None:
    left, coil, right, top, bottom = 30.0, 122.0, 206.0, 20.0, 164.0
    generator(s, (left, top), (left, bottom))
    for y in (top, bottom):
        s.wire((left, y), (right, y))
    junction(s, (coil, top), (coil, bottom))
    for x, text in ((coil, "I1"), (right, "I2")):
        s.wire((x, top), (x, top + 32))
        s.head((x, top + 22), (0, 1))
        s.text(x + 10, top + 18, text, anchor="start")
    resistor(s, (coil, top + 32), (coil, 108), "R")
    inductor(s, (coil, 108), (coil, bottom), "L")
    capacitor(s, (right, top + 32), (right, bottom), "C")


@picture("thomson-icone", 46, 46, "Circuit oscillant")
def thomson_icone(s: Sheet) -> None:
    """A coil and a capacitor, closed on each other: a small sign, without letters."""
    coil, plates = 9.5, 31.5
    inductor(s, (coil, 6), (coil, 40), side=-1, turns=3)
    capacitor(s, (plates, 6), (plates, 40))
    for y in (6, 40):
        s.wire((coil, y), (plates, y))
