"""HB9CV VUSHF.

Source: the speed of light, and the fractions of the wavelength that the captions of the panel name.
"""

from accuracy import Case

PANEL = "HB9CV_VUSHF"


def case(name, megahertz, read, part, unit="m", scale=1.0):
    """A length, beside that part of the wavelength; cut to a thousandth."""
    right = part * 299.792458 / megahertz * scale
    return Case(name, [f'replace {PANEL}.TxtFreq "{megahertz}"', f'replace {PANEL}.TxtCoeff "500"'],
                read=f"{PANEL}.{read}.Text", unit=unit, right=right, factor=1, tolerance=0.001 / right + 0.001)


CASES = [
    case("Élément arrière, 145 MHz", 145, "TxtL2", 1 / 2),
    case("Élément avant, 434 MHz", 434, "Txt092", 0.92 / 2),
    case("Écart, 1296 MHz", 1296, "TxtL8", 1 / 8),
    case("Brins de λ/500, 145 MHz", 145, "TxtDiam", 1 / 500, "mm", 1e3),
]
