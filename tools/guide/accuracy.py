"""The figures of a panel compared with an independent computation.

`docs/guide/exactitude/PANEL.py` names its sources in its docstring and gives `CASES`, a list of `Case`.
"""

import dataclasses
import importlib.util
import re
import sys
import typing
from math import floor, log10

from driver import Session, localized

MULTIPLIERS = {"téra": 1e12, "giga": 1e9, "méga": 1e6, "kilo": 1e3, "mili": 1e-3, "milli": 1e-3, "micro": 1e-6,
               "nano": 1e-9, "pico": 1e-12}
SEPARATOR = "."  # the cases are played under a decimal point


@dataclasses.dataclass
class Case:
    """One case from practice.

    `steps` are commands of the driver, after the panel has been opened; numbers with a point where the panel reads a
    point, with a comma where it follows the region. `read` is the member that shows the panel's figure, in `unit` once
    it is multiplied by `scale`. `right` is the independent figure in the same unit, or a function of `value`, which
    reads another member as a number. `factor` is the panel's figure divided by the right one, as the page says it; the
    test holds it to `tolerance`, a fraction.
    """

    name: str
    steps: list
    read: str
    unit: str
    right: typing.Union[float, typing.Callable]
    factor: float
    scale: float = 1.0
    tolerance: float = 0.01


@dataclasses.dataclass
class Outcome:
    """What a case gave: the panel's figure, the right one, and the first divided by the second."""

    case: Case
    panel: float
    right: float

    @property
    def factor(self):
        return self.panel / self.right

    @property
    def holds(self):
        return abs(self.factor / self.case.factor - 1) <= self.case.tolerance


def number(text):
    """The first number in a text of the panel, after "=" if there is one, times the multiplier word after it."""
    text = text.split("=", 1)[-1]
    found = re.search(r"[-+]?(?:\d+[.,]?\d*|[.,]\d+)(?:[eE][-+]?\d+)?", text)
    if found is None:
        raise ValueError(f"no number in {text!r}")
    word = re.match(r"\s*([^\W\d]+)", text[found.end():])
    multiplier = MULTIPLIERS.get(word.group(1).lower(), 1.0) if word else 1.0
    return float(found.group().replace(",", ".")) * multiplier


def cases(script):
    """The cases of a script, which may import what stands beside it."""
    if str(script.parent) not in sys.path:
        sys.path.append(str(script.parent))
    loader = importlib.util.spec_from_file_location("exactitude_" + script.stem, script)
    module = importlib.util.module_from_spec(loader)
    loader.loader.exec_module(module)
    return module.CASES


def play(program, entry, case):
    """Plays one case on a panel of its own."""
    with Session(program, SEPARATOR) as session:
        session.say("menu " + entry)
        for step in case.steps:
            session.say(localized(step, SEPARATOR))

        def value(target):
            return number(str(session.read(target)))

        panel = value(case.read) * case.scale
        right = case.right(value) if callable(case.right) else case.right
    return Outcome(case, panel, right)


def figure(value):
    """A number with four significant digits, as French books print it."""
    if value != 0 and not 1e-4 <= abs(value) < 1e7:
        mantissa, exponent = f"{value:.3e}".split("e")
        return f"{_french(mantissa)} × 10^{int(exponent)}^".replace("^-", "^−")
    decimals = max(0, 3 - floor(log10(abs(value)))) if value != 0 else 0
    text = f"{round(value, 3 - floor(log10(abs(value)))) if value != 0 else 0:,.{decimals}f}"
    return _french(text.rstrip("0").rstrip(".") if "." in text else text)


def _french(text):
    return text.replace(",", "\u202f").replace(".", ",").replace("-", "−")


def table(outcomes):
    """The cases as a table in Markdown."""
    rows = ["| Cas | Le panneau | Calcul indépendant | Panneau ÷ calcul |", "|:---|---:|---:|---:|"]
    for outcome in outcomes:
        unit = f"\u00a0{outcome.case.unit}" if outcome.case.unit else ""
        factor = f"{outcome.factor:.2f}".replace(".", ",") if outcome.factor < 100 else figure(outcome.factor)
        rows.append(f"| {outcome.case.name} | {figure(outcome.panel)}{unit} | {figure(outcome.right)}{unit} | {factor} |")
    return "\n".join(rows)
