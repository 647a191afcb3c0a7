"""Unités de pression.

Source: definitions of the units (ISO 80000-4 and the SI brochure): standard gravity 9.80665 m/s², so that 1 kgf/cm² is
98066.5 Pa and 1 mm of water (1000 kg/m³) 9.80665 Pa; 1 mm of mercury is 133.322387415 Pa.
"""

from accuracy import Case

PANEL = "RVConvUnitesPression"
PASCALS = {"hPa": 100, "mm H2O": 9.80665, "mm Hg": 133.322387415, "kg/cm²": 98066.5, "N/m²": 1}


def case(name, source, target_list, row, value, units):
    """A value from one unit to another."""
    return Case(name, [f"select {PANEL}.LstConversions {source}", f'replace {PANEL}.TxtEntree "{value}"',
                       f"select {PANEL}.{target_list} {row}"],
                read=f"{PANEL}.TxtSortie.Text", unit=units[1],
                right=value * PASCALS[units[0]] / PASCALS[units[1]], factor=1, tolerance=0.0005)


CASES = [
    case("1013 hPa au baromètre", 0, "LsthPa", 1, 1013, ("hPa", "mm Hg")),
    case("Un pneu gonflé à 2 kg/cm²", 3, "LstKgcm2", 0, 2, ("kg/cm²", "hPa")),
    case("Une VMC à 80 N/m²", 4, "LstNm2", 1, 80, ("N/m²", "mm H2O")),
]
