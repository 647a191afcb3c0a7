"""Circuits résonants.

Source: complex impedances of the three elements, in series (sum) and in parallel (inverse of the sum of inverses); the
corner of an RC circuit is where R equals the reactance.
"""

from math import pi, sqrt

from accuracy import Case

PANEL = "CircuitsOscillants"
ROWS = ["RC Série", "RC Parallèle", "RL Parallèle", "RLC Série", "RLC Parallèle", "RL Série C Parallèle", "LC Série"]


def parallel(*impedances):
    """Of impedances side by side."""
    return 1 / sum(1 / z for z in impedances)


def case(circuit, megahertz, ohms, microhenrys, picofarads, right, factor, read="TxtImp", unit="Ω"):
    """`right` takes the impedances of R, L and C."""
    typed = [("TxtFreq", megahertz), ("TxtRes", ohms), ("TxtInd", microhenrys), ("TxtCapa", picofarads)]
    steps = [f"select {PANEL}.LstCalcul {ROWS.index(circuit)}"]
    steps += [f'replace {PANEL}.{field} "{value}"' for field, value in typed if value]
    omega = 2 * pi * megahertz * 1e6
    values = (ohms or 0, 1j * omega * (microhenrys or 0) * 1e-6, 1 / (1j * omega * (picofarads or 1e30) * 1e-12))
    parts = [f"{value} {name}" for value, name in ((ohms, "Ω"), (microhenrys, "µH"), (picofarads, "pF")) if value]
    text = f"{circuit}, {', '.join(parts)} à {megahertz} MHz".replace(".", ",")
    return Case(text, steps, read=f"{PANEL}.{read}.Text", unit=unit, right=abs(right(*values)), factor=factor,
                tolerance=0.01)


CASES = [
    case("RC Parallèle", 3.5, 1000, None, 47, lambda r, _, c: parallel(r, c), 1),
    case("RL Parallèle", 7, 300, 10, None, lambda r, l, _: parallel(r, l), 1),
    case("RL Série C Parallèle", 14.1, 5, 3.3, 39, lambda r, l, c: parallel(r + l, c), 1),
    case("LC Série", 14.1, None, 3.3, 100, lambda _, l, c: l + c, 1),
    case("RLC Parallèle", 7.1, 5000, 4, 100, lambda r, l, c: parallel(r, l, c), 2 * pi * 7.1e6),
    Case("RLC Parallèle, résonance de 4 µH et 100 pF",
         [f"select {PANEL}.LstCalcul 4", f'replace {PANEL}.TxtFreq "7"', f'replace {PANEL}.TxtRes "5000"',
          f'replace {PANEL}.TxtInd "4"', f'replace {PANEL}.TxtCapa "100"'],
         read=f"{PANEL}.TxtResonance.Text", unit="MHz", scale=1e-6, right=1e-6 / (2 * pi * sqrt(4e-6 * 100e-12)), factor=1),
    Case("RC Série, coupure de 1 kΩ et 1 nF",
         [f"select {PANEL}.LstCalcul 0", f'replace {PANEL}.TxtFreq "1"', f'replace {PANEL}.TxtRes "1000"',
          f'replace {PANEL}.TxtCapa "1000"'],
         read=f"{PANEL}.TxtResonance.Text", unit="kHz", scale=1e-3, right=1e-3 / (2 * pi * 1000 * 1e-9), factor=9.1),
]
