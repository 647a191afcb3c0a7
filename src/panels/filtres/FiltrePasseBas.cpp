#include "panels/filtres/FiltrePasseBas.h"

#include "kit/Maths.h"
#include "panels/resonance/CalculNombreSpires.h"

namespace ondelis {

FiltrePasseBas::FiltrePasseBas(Runtime& runtime)
    : SectionPasse{runtime, "FiltrePasseBas", "Filtre passe-bas",
        {.picture = "passe-bas",
            .formuleL = "L = Z / ( Pi * F )",
            .formuleC = "C = 1 / ( Pi *Z * F )",
            .lettreL = letter("L", drawing, 0.330, 0.193),
            .lettreC = letter("C", drawing, 0.641, 0.601)}}
{
}

void FiltrePasseBas::Form_Load()
{
    resumeNext({
        [&] { TxtZCharge.Text = "2500"; },
        [&] { TxtFreq.Text = "3000"; },
    });
}

Double FiltrePasseBas::L() const
{
    return Z / (Pi() * F);
}

Double FiltrePasseBas::C() const
{
    return 1 / (Pi() * Z * F);
}

void FiltrePasseBas::CompleterNombreSpires(CalculNombreSpires& spires)
{
    spires.TxtD.Text = "1";
}

} // namespace ondelis
