"""HB9CV HF.

Source: the speed of light, and the fractions of the wavelength that the captions of the panel name.
"""

from accuracy import Case

PANEL = "HB9CV_HF"


def case(name, option, megahertz, read, part, factor):
    """A length in metres, beside that part of the wavelength."""
    return Case(name, [f"scroll {PANEL}.HScroll1 550", f"click {PANEL}.{option}", f'replace {PANEL}.TxtFreq "{megahertz}"'],
                read=f"{PANEL}.{read}.Text", unit="m", right=part * 299.792458 / megahertz, factor=factor)


CASES = [
    case("Élément arrière, 14,2 MHz", "Option1", 14.2, "Txt2", 1 / 2, 1),
    case("Élément avant, 14,2 MHz", "Option1", 14.2, "Txt092", 0.92 / 2, 0.348),
    case("Té « 0.25 », 150 Ω, 28,5 MHz", "Option1", 28.5, "TxtTmatch", 0.25 / 2, 1.2),
    case("Té « 0.30 », 300 Ω, 28,5 MHz", "Option2", 28.5, "TxtTmatch", 0.30 / 2, 0.833),
    case("Écart, 50,13 MHz", "Option1", 50.13, "Txt8", 1 / 8, 1),
]
