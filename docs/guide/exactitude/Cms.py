"""Marquage CMS.

Source: IEC 60062, marking codes for resistors (three and four digits, R as the decimal point), and the three-character
code of the E96 series; the E96 values are 100 times the powers of the 96th root of ten, rounded (IEC 60063).
"""

from accuracy import Case


def e96(rank):
    """The value of that rank, from 1, in the E96 series."""
    return round(100 * 10 ** ((rank - 1) / 96))


def case(name, option, marking, ohms):
    """The value of a marking: the panel shows digits and a power of ten."""
    return Case(name, [f"click Cms.{option}", f'replace Cms.TxtMarquage "{marking}"', "click Cms.BtnCmsCalculer"],
                read="Cms.TxtValeur.Text", unit="", factor=1, tolerance=1e-9,
                right=lambda value: ohms / 10 ** value("Cms.TxtExposant.Text"))


CASES = [
    case("472, chiffres de 4,7 kΩ", "Opt3Digits", "472", 4700),
    case("4R7, chiffres de 4,7 Ω", "Opt3Digits", "4R7", 4.7),
    case("1001, chiffres de 1 kΩ", "Opt4Digits", "1001", 1000),
    case("68X, chiffres de 49,9 Ω", "OptE96", "68X", e96(68) / 10),
    case("30B, chiffres de 2 kΩ", "OptE96", "30B", e96(30) * 10),
]
