#include "panels/filtres/SectionPasse.h"

#include "forms/Runtime.h"
#include "kit/Conversions.h"
#include "kit/TraitementMultiplicateur.h"
#include "panels/resonance/CalculNombreSpires.h"

namespace ondelis {

void SectionPasse::TxtFreq_Change()
{
    F = Val(TxtFreq.Text);
    Calculer();
}

void SectionPasse::TxtZCharge_Change()
{
    Z = Val(TxtZCharge.Text);
    Calculer();
}

void SectionPasse::Calculer()
{
    if (F != 0 && Z != 0) {
        TxtSelf.Text = TraitementMultiplicateur(L());
        TxtCapa.Text = TraitementMultiplicateur(C());
        auto& spires = runtime().get<CalculNombreSpires>();
        spires.TxtS.Text = CStr(Val(TxtSelf.Text)); // the figure without its multiplier word
        CompleterNombreSpires(spires);
    }
}

} // namespace ondelis
