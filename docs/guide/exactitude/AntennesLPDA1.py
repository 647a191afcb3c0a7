"""LPDA.

Source: R. Carrel, 1961, as every antenna handbook tells it: lengths in the ratio tau, tips on two straight lines, spacing
sigma of twice the length; the sums and ratios here are taken from that geometry in metres, without feet.
"""

from accuracy import Case

PANEL = "AntennesLPDA1"
STEPS = ["click {0}.BtnCalculer1", "click {0}.BtnSuite1", "click {0}.BtnCalculer2", "click {0}.BtnSuite2",
         "click {0}.BtnCalculer3", "click {0}.BtnSuite3", "click {0}.BtnAfficher", "click {0}.BtnSuivant"]


def steps(low, high, tau):
    """The whole sequence, to the second element."""
    return [f'replace {PANEL}.TxtFreqMin "{low}"', f'replace {PANEL}.TxtFreqMax "{high}"', f"click {PANEL}.OptRhoOpt",
            f'replace {PANEL}.TxtTheta "{tau}"', *(step.format(PANEL) for step in STEPS)]


def first_spacing(low, tau):
    """Between the two longest elements, in metres: 2 sigma times the longest."""
    return 2 * (0.243 * tau - 0.051) * 149.896 / low


def boom(low, tau):
    """The sum of all spacings."""
    return lambda value: sum(first_spacing(low, tau) * tau ** i for i in range(int(value(f"{PANEL}.TxtNbrElements.Text")) - 1))


CASES = [
    Case("Deuxième élément, 14 à 30 MHz", steps(14, 30, 0.85), read=f"{PANEL}.TxtLongBrin.Text", unit="m",
         right=149.896 / 14 * 0.85, factor=1),
    Case("Premier espacement, 14 à 30 MHz", steps(14, 30, 0.85), read=f"{PANEL}.TxtEspacement.Text", unit="mm",
         right=first_spacing(14, 0.85) * 1000, factor=0.083),
    Case("Premier espacement, 144 à 440 MHz", steps(144, 440, 0.9), read=f"{PANEL}.TxtEspacement.Text", unit="mm",
         right=first_spacing(144, 0.9) * 1000, factor=0.083),
    Case("Poutre, 14 à 30 MHz", steps(14, 30, 0.85), read=f"{PANEL}.TxtLonBoom.Text", unit="m", right=boom(14, 0.85),
         factor=0.97),
    Case("Poutre, 144 à 440 MHz", steps(144, 440, 0.9), read=f"{PANEL}.TxtLonBoom.Text", unit="m", right=boom(144, 0.9),
         factor=1),
]
