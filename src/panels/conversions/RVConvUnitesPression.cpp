#include "panels/conversions/RVConvUnitesPression.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void RVConvUnitesPression::Form_Load()
{
    resumeNext({
        [&] { LsthPa.Visible = false; },
        [&] { LstmmH2O.Visible = false; },
        [&] { LstmmHg.Visible = false; },
        [&] { LstKgcm2.Visible = false; },
        [&] { LstNm2.Visible = false; },
    });
}

void RVConvUnitesPression::LstConversions_Click()
{
    TxtEntree.Text = "";
    TxtSortie.Text = "";
    const Integer row = LstConversions.ListIndex;
    LsthPa.Visible = row == 0;
    LstmmH2O.Visible = row == 1;
    LstmmHg.Visible = row == 2;
    LstKgcm2.Visible = row == 3;
    LstNm2.Visible = row == 4;
    // "hPa" is written otherwise in the list.
    LblEntree.Caption = "Valeur " + (row == 0 ? "hPa" : std::string{LstConversions.Text});
}

void RVConvUnitesPression::LsthPa_Click()
{
    Convertir(LsthPa, {10.2, 0.750061683, 0.00102, 100});
}

void RVConvUnitesPression::LstmmH2O_Click()
{
    Convertir(LstmmH2O, {0.098039216, 0.073535459, 0.0001, 9.803921569});
}

void RVConvUnitesPression::LstmmHg_Click()
{
    Convertir(LstmmHg, {1.333223684, 13.59888157, 0.001359888157, 133.3223684});
}

void RVConvUnitesPression::LstKgcm2_Click()
{
    Convertir(LstKgcm2, {980.3921569, 10000, 735.3545912, 98039.21569});
}

void RVConvUnitesPression::LstNm2_Click()
{
    Convertir(LstNm2, {0.01, 0.102, 0.00750061683, 0.0000102});
}

/// To the chosen unit, by its factor.
void RVConvUnitesPression::Convertir(const ListBox& unites, const std::vector<Double>& facteurs)
{
    LblSortie.Caption = unites.Text;
    const Integer row = unites.ListIndex;
    const Double valeur = Val(TxtEntree.Text) * facteurs.at(static_cast<std::size_t>(row.value()));
    const bool sansTroncature = &unites == &LsthPa && row == 0; // hPa to mm H2O alone is not cut to three decimals
    TxtSortie.Text = CStr(sansTroncature ? Term{valeur} : Truncate(valeur, 1000));
}

} // namespace ondelis
