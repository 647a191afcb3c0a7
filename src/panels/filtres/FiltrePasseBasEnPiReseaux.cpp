// The networks of the panel: reactances, cases, component values.

#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "panels/filtres/FiltrePasseBasEnPi.h"

namespace ondelis {
namespace {

/// Shows a number with three decimals, cut.
void Afficher(TextBox& champ, Double x)
{
    champ.Text = CStr(Fix(x * 1000) / 1000);
}

/// Shows a component; its value passes once through its text of 15 digits.
void Afficher(Label& label, const char* legende, TextBox& champ, Double valeur)
{
    label.Caption = legende;
    champ.Text = CStr(valeur);
    Afficher(champ, CDbl(champ.Text));
}

} // namespace

void FiltrePasseBasEnPi::ZComplexes(Double phase)
{
    Xa = N * Sin(phase) / (Cos(phase) * Sqr(1 / T) - 1);
    Afficher(TxtXa, Xa);
    Xb = N * Sin(phase);
    Afficher(TxtXb, Xb);
    Xc = N * Sin(phase) / (Cos(phase) * Sqr(T) - 1);
    Afficher(TxtXc, Xc);
    X1 = -Pow(N, 2) / Xc;
    Afficher(TxtX1, X1);
    X2 = -Pow(N, 2) / Xb;
    Afficher(TxtX2, X2);
    X3 = -Pow(N, 2) / Xa;
    Afficher(TxtX3, X3);
}

void FiltrePasseBasEnPi::Reseau()
{
    if (LstType.ListIndex == 0)
        PiNetwork();
    else if (LstType.ListIndex == 1)
        TNetwork();
    else if (LstType.ListIndex == 2)
        LNetwork();
}

FiltrePasseBasEnPi::Cas FiltrePasseBasEnPi::CasDuReseau() const
{
    if (Xa < 0 && Xb > 0 && Xc < 0)
        return Cas::Conventionnel;
    if (Xa < 0 && Xb > 0 && Xc > 0)
        return Cas::NonConventionnel;
    return Cas::Aucun;
}

// The captions and formulas of the components are those of the panel, also where they seem to be another's.

void FiltrePasseBasEnPi::PiNetwork()
{
    const Cas cas = CasDuReseau();
    if (cas == Cas::Conventionnel) {
        TxtPc.ForeColor = 0xFF0000;
        MontrerPi(ConvPi);
        Afficher(LblC1, "C1 pF", TxtC1, Cap(Xa));
        Afficher(LblL1, "L1 µH", TxtL1, Ind(Xb));
        Afficher(LblC2, "C2 pF", TxtC2, Cap(Xc));
    } else if (cas == Cas::NonConventionnel) {
        MontrerPi(UnconvPi);
        Afficher(LblC1, "C1 pF", TxtC1, Cap(Xa));
        Afficher(LblL1, "L1 µH", TxtL1, Ind(Xb));
        Afficher(LblC2, "L2 µH", TxtC2, Cap(Xc));
    }
}

void FiltrePasseBasEnPi::TNetwork()
{
    const Cas cas = CasDuReseau();
    if (cas == Cas::Conventionnel) {
        MontrerT(ConvT);
        Afficher(LblC1, "L1 µH", TxtC1, Cap(X1));
        Afficher(LblL1, "C pF", TxtL1, Ind(X2));
        Afficher(LblC2, "L2 µH", TxtC2, Cap(X3));
    } else if (cas == Cas::NonConventionnel) {
        MontrerT(UnconvT);
        Afficher(LblC1, "C1 pF", TxtC1, Cap(X1));
        Afficher(LblL1, "C2 pF", TxtL1, Cap(X2));
        Afficher(LblC2, "L1 µH", TxtC2, Ind(X3));
    }
}

void FiltrePasseBasEnPi::LNetwork()
{
    Lnet.Visible = true;
    LblXa.Visible = true;
    LblXb.Visible = true;
    TxtXa.Visible = true;
    TxtXb.Visible = true;
    LblXc.Visible = false;
    TxtXc.Visible = false;
    LblC2.Visible = false;
    TxtC2.Visible = false;
    Afficher(LblC1, "C1 pF", TxtC1, Cap(Xa));
    Afficher(LblL1, "L1 µH", TxtL1, Ind(Xb));
}

void FiltrePasseBasEnPi::MontrerPi(PictureBox& dessin)
{
    dessin.Visible = true;
    for (Label* label : {&LblXa, &LblXb, &LblXc, &LblC2})
        label->Visible = true;
    for (TextBox* champ : {&TxtXa, &TxtXb, &TxtXc, &TxtC2})
        champ->Visible = true;
}

void FiltrePasseBasEnPi::MontrerT(PictureBox& dessin)
{
    dessin.Visible = true;
    for (Label* label : {&LblX1, &LblX2, &LblX3, &LblC2})
        label->Visible = true;
    for (TextBox* champ : {&TxtX1, &TxtX2, &TxtX3, &TxtC2})
        champ->Visible = true;
}

void FiltrePasseBasEnPi::Choisir(PictureBox& dessin)
{
    for (PictureBox* autre : {&ConvPi, &UnconvPi, &ConvT, &UnconvT, &Lnet})
        autre->Visible = autre == &dessin;
}

Double FiltrePasseBasEnPi::Cap(Double x) const
{
    return Pow(10, 12) * (1 / (Abs(x) * W));
}

Double FiltrePasseBasEnPi::Ind(Double x) const
{
    return Pow(10, 6) * (Abs(x) / W);
}

} // namespace ondelis
