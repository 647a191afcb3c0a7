"""Condensateur plan.

Source: C = e0 er S / e with e0 = 8.8541878 pF/m; measured relative permittivities of insulators at radio frequencies:
PTFE 2.1, polystyrene 2.55, muscovite mica 6.9 (values common to tables of materials).
"""

from accuracy import Case

PANEL = "CondensateurFixe"
VACUUM = 8.8541878128  # pF/m


def case(name, row, permittivity, square_centimetres, millimetres, factor):
    """The capacitance of two plates, in picofarads."""
    return Case(name, [f"select {PANEL}.LstDielectrique {row}", f'replace {PANEL}.TxtSurface "{square_centimetres}"',
                       f"select {PANEL}.LstUnités 2", f'replace {PANEL}.TxtEpaisseur "{millimetres}"',
                       f"select {PANEL}.LstUniteE 3"],
                read=f"{PANEL}.TxtCapacite.Text", unit="pF", scale=1e12,
                right=VACUUM * permittivity * square_centimetres * 1e-4 / (millimetres * 1e-3), factor=factor)


CASES = [
    case("Air, 100 cm² à 1 mm", 0, 1.0006, 100, 1, 1),
    case("Mica, 4 cm² à 0,1 mm", 4, 6.9, 4, 0.1, 0.98),
    case("Polystyrène, 50 cm² à 0,05 mm", 8, 2.55, 50, 0.05, 0.98),
    case("Téflon, 60 cm² à 0,5 mm", 10, 2.1, 60, 0.5, 1.19),
]
