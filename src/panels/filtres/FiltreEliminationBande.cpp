#include "panels/filtres/FiltreEliminationBande.h"

#include "kit/Maths.h"

namespace ondelis {

FiltreEliminationBande::FiltreEliminationBande(Runtime& runtime)
    : SectionBande{runtime, "FiltreEliminationBande", "Filtre à élimination de bande",
        {.picture = "elimination-bande",
            .legendeF1 = "Fréquence de début en Hz",
            .legendeF2 = "Fréquence de fin en Hz",
            .lettreL1 = letter("L1", drawing, 0.632, 0.459),
            .lettreC1 = letter("C1", drawing, 0.649, 0.767),
            .lettreL2 = letter("L2", drawing, 0.333, 0.108),
            .lettreC2 = letter("C2", drawing, 0.333, 0.526),
            .lettreZ = letter("Z", drawing, 0.934, 0.610)}}
{
}

void FiltreEliminationBande::Form_Load()
{
    resumeNext({
        [&] { TxtZCharge.Text = "2500"; },
        [&] { TxtFreq1.Text = "5000"; },
        [&] { TxtFreq2.Text = "20000"; },
    });
}

bool FiltreEliminationBande::Calculable() const
{
    return F1 != 0 && F2 != 0 && Z != 0 && F1 < F2;
}

Double FiltreEliminationBande::Self1(Double d) const
{
    return Z / (d * (Pi() * 4));
}

Double FiltreEliminationBande::Self2(Double d) const
{
    return (d * Z) / (Pi() * F2 * F1);
}

Double FiltreEliminationBande::Capa1(Double d) const
{
    return d / (Pi() * Z * F2 * F1);
}

Double FiltreEliminationBande::Capa2(Double d) const
{
    return 1 / (Pi() * 4 * Z * d);
}

} // namespace ondelis
