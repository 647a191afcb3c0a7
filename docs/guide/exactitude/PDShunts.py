"""Shunts.

Source: Ohm's law. A shunt carries what the meter does not, at the meter's voltage; a series resistor takes the voltage
that the meter does not, at the meter's current.
"""

from accuracy import Case

PANEL = "PDShunts"


def ammeter(name, ohms, microamperes, amperes, unit, scale):
    """The shunt for a full scale."""
    meter = microamperes * 1e-6
    return Case(name, [f'replace {PANEL}.TxtResInt "{ohms}"', f'replace {PANEL}.TxtDevTot "{microamperes}"',
                       f'replace {PANEL}.TxtImax "{amperes}"'],
                read=f"{PANEL}.TxTShuntI.Text", unit=unit, scale=scale,
                right=meter * ohms / (amperes - meter) * scale, factor=1, tolerance=1e-5)


CASES = [
    ammeter("500 Ω, 100 µA, pour 0,5 A", 500, 100, 0.5, "mΩ", 1e3),
    ammeter("60 Ω, 1 mA, pour 20 A", 60, 1000, 20, "mΩ", 1e3),
    # A movement of 20 000 ohms a volt is one of 50 µA: the range of 10 V has 200 000 ohms in all.
    Case("2 kΩ, 50 µA, pour 10 V", [f'replace {PANEL}.TxtResInt "2000"', f'replace {PANEL}.TxtDevTot "50"',
                                    f"click {PANEL}.OptTension", f'replace {PANEL}.TxtUmax "10"'],
         read=f"{PANEL}.TxtShuntU.Text", unit="kΩ", scale=1e-3, right=(10 * 20e3 - 2e3) / 1e3, factor=1, tolerance=1e-5),
]
