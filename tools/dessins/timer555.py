"""The 555 timer in its three circuits; the pins stand where the circuit wants them, by their numbers."""

from __future__ import annotations

from sheet import LETTER, PALE, WORD, Sheet, picture
from symbols import capacitor, diode, ground, junction, pin, potentiometer, resistor, terminal

TOP, BOTTOM = 26.0, 226.0  # the supply rail and the common rail
UPPER, LOWER = 66.0, 186.0  # the block
DISCHARGE, THRESHOLD, TRIGGER, OUTPUT = 88.0, 124.0, 158.0, 124.0  # heights of pins 7, 6, 2 and 3


def timer(s: Sheet, x: float, left: float) -> None:
    """The block with its left edge at x, its supply, its output and its control voltage; rails from `left`."""
    width, reset, supply = 104.0, x + 28, x + 76
    s.rect(x, UPPER, width, LOWER - UPPER, fill=PALE)
    s.text(x + width / 2, (UPPER + LOWER) / 2, "555", LETTER, bold=True)
    for y, number in ((DISCHARGE, "7"), (THRESHOLD, "6"), (TRIGGER, "2")):
        pin(s, (x, y), (-1, 0), number)
    pin(s, (x + width, OUTPUT), (1, 0), "3")
    for at, upper, lower in ((reset, "4", "1"), (supply, "8", "5")):
        pin(s, (at, UPPER), (0, -1), upper)
        pin(s, (at, LOWER), (0, 1), lower)
    end = x + width + 52
    s.wire((left, TOP), (end, TOP))
    s.wire((left, BOTTOM), (end, BOTTOM))
    for at in (reset, supply):
        s.wire((at, TOP), (at, UPPER))
        junction(s, (at, TOP))
    s.wire((reset, LOWER), (reset, BOTTOM))
    capacitor(s, (supply, LOWER), (supply, BOTTOM), "10 nF")
    junction(s, (reset, BOTTOM), (supply, BOTTOM))
    s.wire((x + width, OUTPUT), (end, OUTPUT))
    terminal(s, (end, TOP), (end, OUTPUT), (end, BOTTOM))
    s.text(end + 9, TOP, "+", anchor="start")
    s.text(end + 9, BOTTOM, "−", anchor="start")
    s.text(end, OUTPUT + 14, "Sortie", WORD)
    ground(s, (left + 34, BOTTOM))
    junction(s, (left + 34, BOTTOM))


@picture("astable-555", 376, 256, "Montage astable")
def astable(s: Sheet) -> None:
    column, chip, stem, node = 66.0, 172.0, 130.0, 141.0
    timer(s, chip, column)
    resistor(s, (column, TOP), (column, DISCHARGE), "R1", side=-1)
    resistor(s, (column, DISCHARGE), (column, node), "R2", side=-1)
    capacitor(s, (column, node), (column, BOTTOM), "C", side=-1)
    s.wire((column, DISCHARGE), (chip, DISCHARGE))
    s.wire((chip, THRESHOLD), (stem, THRESHOLD), (stem, TRIGGER), (chip, TRIGGER))
    s.wire((column, node), (stem, node))
    junction(s, (column, DISCHARGE), (column, node), (stem, node))


@picture("monostable-555", 376, 256, "Montage monostable")
def monostable(s: Sheet) -> None:
    column, chip, trigger = 66.0, 172.0, 130.0
    timer(s, chip, column)
    resistor(s, (column, TOP), (column, DISCHARGE), "R", side=-1)
    s.wire((column, DISCHARGE), (column, THRESHOLD))
    capacitor(s, (column, THRESHOLD), (column, BOTTOM), "C", side=-1)
    for y in (DISCHARGE, THRESHOLD):
        s.wire((column, y), (chip, y))
        junction(s, (column, y))
    s.wire((trigger, TRIGGER), (chip, TRIGGER))
    terminal(s, (trigger, TRIGGER))
    s.text(trigger, TRIGGER + 14, "Entrée", WORD)


@picture("rapport-cyclique-555", 384, 256, "Rapport cyclique variable")
def rapport_cyclique(s: Sheet) -> None:
    """C is charged through R1, D1 and P1b, and discharged through P1a and D2."""
    charge, discharge, stem, chip, pot = 40.0, 120.0, 156.0, 194.0, 146.0
    wiper, node = (charge + discharge) / 2, 178.0
    timer(s, chip, wiper)
    resistor(s, (wiper, TOP), (wiper, DISCHARGE), "R1", side=-1)
    s.wire((charge, DISCHARGE), (chip, DISCHARGE))
    diode(s, (charge, DISCHARGE), (charge, pot), "D1")
    diode(s, (discharge, pot), (discharge, DISCHARGE), "D2")
    potentiometer(s, (charge, pot), (discharge, pot), (wiper, node))
    s.text(charge + 12, pot + 15, "P1b", WORD)
    s.text(discharge - 12, pot + 15, "P1a", WORD)
    s.wire((wiper, node), (stem, node), (stem, THRESHOLD), (chip, THRESHOLD))
    s.wire((stem, TRIGGER), (chip, TRIGGER))
    capacitor(s, (wiper, node), (wiper, BOTTOM), "C", side=-1)
    junction(s, (wiper, DISCHARGE), (discharge, DISCHARGE), (wiper, node), (stem, TRIGGER))
