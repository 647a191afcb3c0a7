#include "panels/filtres/FiltrePasseBande.h"

#include "kit/Maths.h"

namespace ondelis {

FiltrePasseBande::FiltrePasseBande(Runtime& runtime)
    : SectionBande{runtime, "FiltrePasseBande", "Filtre passe-bande",
        {.picture = "passe-bande",
            .legendeF1 = "Fréquence d'ouverture en Hz",
            .legendeF2 = "Fréquence de coupure en Hz",
            .lettreL1 = letter("L1", drawing, 0.512, 0.587),
            .lettreC1 = letter("C1", drawing, 0.735, 0.587),
            .lettreL2 = letter("L2", drawing, 0.200, 0.166),
            .lettreC2 = letter("C2", drawing, 0.407, 0.137),
            .lettreZ = letter("Z", drawing, 0.934, 0.587)}}
{
}

void FiltrePasseBande::Form_Load()
{
    resumeNext({
        [&] { TxtZCharge.Text = "2500"; },
        [&] { TxtFreq1.Text = "1000"; },
        [&] { TxtFreq2.Text = "5000"; },
    });
}

bool FiltrePasseBande::Calculable() const
{
    return F1 != 0 && F2 != 0 && Z != 0;
}

Double FiltrePasseBande::Self1(Double d) const
{
    return (d * Z) / (Pi() * 4 * F2 * F1);
}

Double FiltrePasseBande::Self2(Double d) const
{
    return Z / (d * Pi());
}

Double FiltrePasseBande::Capa1(Double d) const
{
    return 1 / (d * (Pi() * Z));
}

Double FiltrePasseBande::Capa2(Double d) const
{
    return d / (Pi() * 4 * Z * d); // d cancels out: the bandwidth does not matter
}

} // namespace ondelis
