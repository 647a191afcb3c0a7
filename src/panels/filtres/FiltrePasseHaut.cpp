#include "panels/filtres/FiltrePasseHaut.h"

#include "kit/Maths.h"
#include "panels/resonance/CalculNombreSpires.h"

namespace ondelis {

FiltrePasseHaut::FiltrePasseHaut(Runtime& runtime)
    : SectionPasse{runtime, "FiltrePasseHaut", "Filtre passe haut",
        {.picture = "passe-haut",
            .formuleL = "L = Z / ( 4 * Pi * F )",
            .formuleC = "C = 1 / (4 * Pi *Z * F )",
            .lettreL = letter("L", drawing, 0.624, 0.601),
            .lettreC = letter("C", drawing, 0.330, 0.159)}}
{
}

void FiltrePasseHaut::Form_Load()
{
    resumeNext({
        [&] { TxtZCharge.Text = "2500"; },
        [&] { TxtFreq.Text = "10000"; },
    });
}

Double FiltrePasseHaut::L() const
{
    return Z / (4 * Pi() * F);
}

Double FiltrePasseHaut::C() const
{
    return 1 / (4 * Pi() * Z * F);
}

void FiltrePasseHaut::CompleterNombreSpires(CalculNombreSpires& spires)
{
    spires.TxtF.Text = "1";
    spires.TxtD.Text = "50";
}

} // namespace ondelis
