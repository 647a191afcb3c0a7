"""The seven simple circuits, the sweep circuits and the LC circuit."""

from __future__ import annotations

from sheet import Sheet, picture
from symbols import capacitor, generator, inductor, junction, resistor

LEFT, RIGHT, TOP, BOTTOM = 40.0, 210.0, 38.0, 150.0


def source(s: Sheet) -> None:
    """The generator on the left, common to all."""
    generator(s, (LEFT, TOP), (LEFT, BOTTOM))


def branches(s: Sheet, *columns: float) -> None:
    """The two rails of a parallel circuit, up to the last branch."""
    for y in (TOP, BOTTOM):
        s.wire((LEFT, y), (columns[-1], y))
        junction(s, *((x, y) for x in columns[:-1]))


@picture("circuit-rc-serie", 260, 180, "Circuit RC série")
def rc_serie(s: Sheet) -> None:
    source(s)
    resistor(s, (LEFT, TOP), (RIGHT, TOP), "R")
    capacitor(s, (RIGHT, TOP), (RIGHT, BOTTOM), "C")
    s.wire((RIGHT, BOTTOM), (LEFT, BOTTOM))


@picture("circuit-rc-parallele", 260, 180, "Circuit RC parallèle")
def rc_parallele(s: Sheet) -> None:
    source(s)
    branches(s, 125, RIGHT)
    resistor(s, (125, TOP), (125, BOTTOM), "R")
    capacitor(s, (RIGHT, TOP), (RIGHT, BOTTOM), "C")


@picture("circuit-rl-parallele", 260, 180, "Circuit RL parallèle")
def rl_parallele(s: Sheet) -> None:
    source(s)
    branches(s, 125, RIGHT)
    resistor(s, (125, TOP), (125, BOTTOM), "R")
    inductor(s, (RIGHT, TOP), (RIGHT, BOTTOM), "L")


@picture("circuit-rlc-serie", 260, 180, "Circuit RLC série")
def rlc_serie(s: Sheet) -> None:
    source(s)
    resistor(s, (LEFT, TOP), (125, TOP), "R")
    inductor(s, (125, TOP), (RIGHT, TOP), "L")
    capacitor(s, (RIGHT, TOP), (RIGHT, BOTTOM), "C")
    s.wire((RIGHT, BOTTOM), (LEFT, BOTTOM))


@picture("circuit-rlc-parallele", 260, 180, "Circuit RLC parallèle")
def rlc_parallele(s: Sheet) -> None:
    source(s)
    branches(s, 100, 157, RIGHT + 5)
    resistor(s, (100, TOP), (100, BOTTOM), "R")
    inductor(s, (157, TOP), (157, BOTTOM), "L")
    capacitor(s, (RIGHT + 5, TOP), (RIGHT + 5, BOTTOM), "C")


@picture("circuit-rl-serie-c-parallele", 260, 180, "R et L en série, C en parallèle")
def rl_serie_c_parallele(s: Sheet) -> None:
    source(s)
    branches(s, 125, RIGHT)
    resistor(s, (125, TOP), (125, 92), "R")
    inductor(s, (125, 92), (125, BOTTOM), "L")
    capacitor(s, (RIGHT, TOP), (RIGHT, BOTTOM), "C")


@picture("circuit-lc-serie", 260, 180, "Circuit LC série")
def lc_serie(s: Sheet) -> None:
    source(s)
    inductor(s, (LEFT, TOP), (RIGHT, TOP), "L")
    capacitor(s, (RIGHT, TOP), (RIGHT, BOTTOM), "C")
    s.wire((RIGHT, BOTTOM), (LEFT, BOTTOM))
