#include "panels/filtres/SectionBande.h"

#include "kit/Conversions.h"
#include "kit/TraitementMultiplicateur.h"

namespace ondelis {

void SectionBande::TxtFreq1_Change()
{
    F1 = Val(TxtFreq1.Text);
    Calculer();
}

void SectionBande::TxtFreq2_Change()
{
    F2 = Val(TxtFreq2.Text);
    Calculer();
}

void SectionBande::TxtZCharge_Change()
{
    Z = Val(TxtZCharge.Text);
    Calculer();
}

void SectionBande::Calculer()
{
    if (!Calculable())
        return;
    const Double d = F2 - F1;
    TxtSelf1.Text = TraitementMultiplicateur(Self1(d));
    TxtSelf2.Text = TraitementMultiplicateur(Self2(d));
    TxtCapa1.Text = TraitementMultiplicateur(Capa1(d));
    TxtCapa2.Text = TraitementMultiplicateur(Capa2(d));
}

} // namespace ondelis
