#include "panels/resonance/CalculSurTores.h"

#include "kit/ComputeForFault.h"
#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/TraitementMultiplicateur.h"

namespace ondelis {

void CalculSurTores::Form_Load()
{
    for (TextBox* champ : {&TxtAlFerPulverise, &TxtEpFePul, &TxtDiamIntFerPul, &TxtDiamExtFerPul, &TxtSpiresFerPul}) {
        resumeNext({
            [&] { champ->BackColor = white; },
            [&] { champ->ForeColor = black; },
        });
    }
    resumeNext({
        [&] { TxtAlFerPulverise.Text = "20"; },
        [&] { TxtDiamIntFerPul.Text = "23"; },
        [&] { TxtDiamExtFerPul.Text = "36"; },
        [&] { TxtSpiresFerPul.Text = "100"; },
        [&] { TxtEpFePul.Text = "15"; },
        [&] { TxtAlFerrite.Text = "120"; },
        [&] { TxtDiamIntFerrite.Text = "23"; },
        [&] { TxtDiamExtFerrite.Text = "36"; },
        [&] { TxtSpiresFerrite.Text = "1000"; },
        [&] { TxtEpFerrite.Text = "15"; },
    });
}

void CalculSurTores::TxtAlFerPulverise_Change()
{
    FerPulverise.AL = Val(TxtAlFerPulverise.Text);
    Calculer();
}

void CalculSurTores::TxtDiamIntFerPul_Change()
{
    FerPulverise.DiamInt = Val(TxtDiamIntFerPul.Text) / 10;
    Calculer();
}

void CalculSurTores::TxtDiamExtFerPul_Change()
{
    FerPulverise.DiamExt = Val(TxtDiamExtFerPul.Text) / 10;
    Calculer();
}

void CalculSurTores::TxtEpFePul_Change()
{
    FerPulverise.Ep = Val(TxtEpFePul.Text) / 10;
    Calculer();
}

void CalculSurTores::TxtSpiresFerPul_Change()
{
    FerPulverise.N = Val(TxtSpiresFerPul.Text);
    VScrollSpiresFerPul.Value = CInt(Val(TxtSpiresFerPul.Text) * 10);
    Calculer();
}

void CalculSurTores::VScrollSpiresFerPul_Change()
{
    TxtSpiresFerPul.Text = CStr(VScrollSpiresFerPul.Value / 10);
}

void CalculSurTores::TxtAlFerrite_Change()
{
    Ferrite.AL = Val(TxtAlFerrite.Text);
    Calculer();
}

void CalculSurTores::TxtDiamIntFerrite_Change()
{
    Ferrite.DiamInt = Val(TxtDiamIntFerrite.Text) / 10;
    Calculer();
}

void CalculSurTores::TxtDiamExtFerrite_Change()
{
    Ferrite.DiamExt = Val(TxtDiamExtFerrite.Text) / 10;
    Calculer();
}

void CalculSurTores::TxtEpFerrite_Change()
{
    Ferrite.Ep = Val(TxtEpFerrite.Text) / 10;
    Calculer();
}

void CalculSurTores::TxtSpiresFerrite_Change()
{
    Ferrite.N = Val(TxtSpiresFerrite.Text);
    VScrollSpiresFerrite.Value = CInt(Val(TxtSpiresFerrite.Text) * 10);
    Calculer();
}

void CalculSurTores::VScrollSpiresFerrite_Change()
{
    TxtSpiresFerrite.Text = CStr(VScrollSpiresFerrite.Value / 10);
}

void CalculSurTores::Calculer()
{
    CalculerColonne(FerPulverise, TxtInductanceFerPul, 10000, Pow(10, -6), 0.000342627684);
    CalculerColonne(Ferrite, TxtInductanceFerrite, 1000000, Pow(10, -3), 0.003426276872);
}

void CalculSurTores::CalculerColonne(const Tore& tore, TextBox& resultat, Double carreSpires, Double facteur, Double c)
{
    const auto [AL, Ep, DiamInt, DiamExt, N] = tore;
    if (AL == 0 || Ep == 0 || DiamInt == 0 || DiamExt == 0 || N == 0)
        return;
    const Double L = AL * Pow(N, 2) / carreSpires;
    resultat.Text = TraitementMultiplicateur(facteur * L);
    // The inductance from the core's geometry is shown nowhere; only the faults that it raises matter.
    const Double W = c * AL * Pow(N, 2) * Ep * Log10(DiamExt / DiamInt);
    computeForFault(TraitementMultiplicateur(Pow(10, -6) * W));
}

} // namespace ondelis
