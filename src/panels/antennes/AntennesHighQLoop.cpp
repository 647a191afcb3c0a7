#include "panels/antennes/AntennesHighQLoop.h"

#include "kit/ComputeForFault.h"
#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "panels/antennes/CalculsFminFmax.h"
#include "panels/antennes/InductancesEquations.h"

namespace ondelis {

void AntennesHighQLoop::Form_Load()
{
    resumeNext({
        [&] { NbSpires = 1.0; },
        [&] { TxtFreqMin.Text = CStr(3.5); },
        [&] { TxtFreqMax.Text = CStr(10.15); },
        [&] { TxtDeltaFMin.Text = CStr(4.2); },
        [&] { TxtDeltaFMax.Text = CStr(7.6); },
        [&] { LstNbreCotes.ListIndex = 3; },
        [&] { LstLambdaSur.ListIndex = 9; },
        [&] { TxtPuissance.Text = "100"; },
        [&] { BtnCalculer.Value = true; },
    });
}

void AntennesHighQLoop::TxtFreqMin_Change()
{
    if (CDbl(TxtFreqMin.Text) > 0)
        FreqMin = CDbl(TxtFreqMin.Text) * Pow(10, 6);
}

void AntennesHighQLoop::TxtFreqMax_Change()
{
    if (CDbl(TxtFreqMin.Text) < Val(TxtFreqMax.Text) && Val(TxtFreqMax.Text) > 0)
        FreqMax = CDbl(TxtFreqMax.Text) * Pow(10, 6);
}

void AntennesHighQLoop::TxtDeltaFMin_Change()
{
    if (CDbl(TxtDeltaFMin.Text) > 0)
        DeltaFMin = CDbl(TxtDeltaFMin.Text) * 1000;
}

void AntennesHighQLoop::TxtDeltaFMax_Change()
{
    // The texts are compared character by character, not their numbers: "10" comes before "4.2".
    if (TxtDeltaFMax.Text.get() > TxtDeltaFMin.Text.get())
        DeltaFMax = CDbl(TxtDeltaFMax.Text) * 1000;
}

void AntennesHighQLoop::TxtPuissance_Change()
{
    if (Val(TxtPuissance.Text) > 0)
        Puissance = CDbl(TxtPuissance.Text);
}

void AntennesHighQLoop::LstNbreCotes_Click()
{
    NbCotes = CInt(LstNbreCotes.List(LstNbreCotes.ListIndex));
}

void AntennesHighQLoop::LstLambdaSur_Click()
{
    LambdaSur = CInt(LstLambdaSur.List(LstLambdaSur.ListIndex));
}

void AntennesHighQLoop::BtnCalculer_Click()
{
    if (FreqMin <= 0 || FreqMax <= FreqMin || DeltaFMin <= 0 || DeltaFMax <= 0 || NbSpires <= 0 || NbCotes <= 0
        || Puissance <= 0)
        return;
    FreqMoy = (FreqMax - FreqMin) / 2 + FreqMin;
    TxtFreqMoy.Text = CStr(Pow(10, -6) * FreqMoy);
    LambdaMoy = 3 * Pow(10, 8) / FreqMoy;
    TxtLambdaMoy.Text = CStr(Truncate(LambdaMoy, 1000));
    DeltaFMoy = (DeltaFMax - DeltaFMin) / 2 + DeltaFMin;
    TxtDeltaFMoy.Text = CStr(Pow(10, -3) * DeltaFMoy);
    const Double p = LambdaMoy / LambdaSur; // perimeter
    Cote = p / (NbCotes * NbSpires);
    TxtLongueurCote.Text = CStr(Fix(Cote * 1000) / 10);
    AngleCote = Pi() * NbSpires / NbCotes;
    Rayon = Cote / (2 * Sin(AngleCote));
    TxtRayon.Text = CStr(Fix(Rayon * 1000) / 10);
    Surface = Cote * 0.5 * Rayon * Cos(AngleCote) * NbCotes;
    TxtSurface.Text = CStr(Truncate(Surface, 10000));
    Inductance = Pow(10, -6) * InductancePolygone(NbCotes, NbSpires, Cote);
    TxtInductance.Text = CStr(Pow(10, 6) * Inductance);

    // The loop's performance at the centre is shown nowhere, but computing it can end the program before the edges are
    // reached.
    const Fonctionnement centre{*this, FreqMoy, DeltaFMoy};
    computeForFault(centre.Q());
    computeForFault(centre.XL());
    computeForFault(centre.RR());
    computeForFault(centre.RL());
    computeForFault(centre.Vc());
    computeForFault(centre.IL());
    computeForFault(centre.Efficacite());
    computeForFault(centre.Cf());

    CalculsFminFmax(*this);
}

} // namespace ondelis
