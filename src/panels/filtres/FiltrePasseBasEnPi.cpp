#include "panels/filtres/FiltrePasseBasEnPi.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "panels/filtres/FonctionsTrigo.h"

namespace ondelis {
namespace {

constexpr int yesNo = 4; // the buttons of a box

const std::string promptPi = "La valeur du déphasage défini le type de filtre :\n\n"
                             "\tP > Pm ==> Pi conventionnel\n"
                             "\tP = Pm ==> Filtre en L non traité ici\n"
                             "\tP < Pm ==> Pi non conventionnel\n\n"
                             "Voulez vous continuer ?";
const std::string promptT = "La valeur du déphasage défini le type de filtre :\n\n"
                            "\tP > Pm ==> T conventionnel\n"
                            "\tP = Pm ==> Filtre en L non traité ici\n"
                            "\tP <Pm ==> T non conventionnel\n\n"
                            "Voulez vous continuer ?";
const std::string promptL = "Un filtre en L nécessite que P = Pm et Q = Qm.\n\n"
                            "Vous ne pourrez modifier ni le déphasage ni la qualité\n\n"
                            "Voulez vous continuer ?";

/// Shows a number, truncated to three decimals.
void Afficher(TextBox& champ, Double valeur)
{
    champ.Text = CStr(Truncate(valeur, 1000));
}

/// Shows a component; its value goes once through its 15-digit text.
void Afficher(Label& legende, const char* text, TextBox& champ, Double valeur)
{
    legende.Caption = text;
    champ.Text = CStr(valeur);
    Afficher(champ, CDbl(champ.Text));
}

} // namespace

void FiltrePasseBasEnPi::Form_Load()
{
    resumeNext({
        [&] { Caption = "Filtres Passes Bas en Pi, T ou L"; },
        [&] { Label23.Caption = "Référence : The ARRL ANTENNA COMPENDIUM 1989 Vol.2 p.187"; },
        [&] { K = 4 * Atn(1); },
        [&] { D = K / 180; },
        [&] { TxtFreq.Text = CStr(3.665); },
        [&] { TxtRin.Text = "200"; },
        [&] { TxtRout.Text = "50"; },
        [&] { LstType.ListIndex = 0; },
        [&] { LblP.Caption = "f(P)"; },
        [&] { Calculer(); },
    });
}

void FiltrePasseBasEnPi::TxtFreq_Change()
{
    if (TxtFreq.Text == "")
        return;
    F = CDbl(TxtFreq.Text);
    Calculer();
}

void FiltrePasseBasEnPi::TxtRin_Change()
{
    R = CDbl(TxtRin.Text);
    if (R > r && TxtRout.Text != "")
        CalculerDepuisResistances();
}

void FiltrePasseBasEnPi::TxtRout_Change()
{
    r = CDbl(TxtRout.Text);
    if (R > r && TxtRin.Text != "")
        CalculerDepuisResistances();
}

void FiltrePasseBasEnPi::CalculerDepuisResistances()
{
    N = Sqr(r * R);
    TxtN.Text = CStr(N);
    T = R / r;
    TxtT.Text = CStr(T);
    Pm = ArcCos(Sqr(1 / T));
    TxtPm.Text = CStr(Pm / D);
    Qm = Sqr(T - 1);
    TxtQm.Text = CStr(Qm);
    Calculer();
}

void FiltrePasseBasEnPi::LstType_Click()
{
    if (LstType.ListIndex == 0) {
        if (MsgBox(promptPi, yesNo, "Filtre en Pi") != Answer::Yes)
            return;
        ChoisirSchema(ConvPi);
        Qscroll.Visible = true;
        Pscroll.Visible = true;
        Calculer();
        ZComplexes(P);
        PiNetwork();
    } else if (LstType.ListIndex == 1) {
        if (MsgBox(promptT, yesNo, "Filtre en T") != Answer::Yes)
            return;
        ChoisirSchema(ConvT);
        Qscroll.Visible = true;
        Pscroll.Visible = true;
        Calculer();
        ZComplexes(P);
        TNetwork();
    } else if (LstType.ListIndex == 2) {
        if (MsgBox(promptL, yesNo, "Filtre en L") != Answer::Yes)
            return;
        ChoisirSchema(Lnet);
        Qscroll.Value = CInt(Qm * 10);
        Qscroll.Visible = false;
        Pscroll.Value = CInt(Pc * 100 / D); // Pc of the last pass, and not Pm
        Pscroll.Visible = false;
        Calculer();
        ZComplexes(P);
        LNetwork();
    }
}

void FiltrePasseBasEnPi::Qscroll_Change()
{
    Q = Qscroll.Value / 10;
    TxtQ.Text = CStr(Q);
    Pscroll.Value = CInt(Pm * 100 / D);
    QCompute();
}

void FiltrePasseBasEnPi::Pscroll_Change()
{
    P = (Pscroll.Value / 100) * D;
    LblP.Caption = "P : " + Str(Pscroll.Value / 100);
    PCompute();
}

void FiltrePasseBasEnPi::Calculer()
{
    Effacer();
    if (!Complet())
        return;
    if (R <= r) {
        MsgBox("R doit être strictement supérieur à r");
        return;
    }
    Preparer();
    // To Pm first, so that the store of the solution below is a change and runs PCompute, which shows the network:
    // unless the bar has one place for both.
    Pscroll.Value = CInt(Pm * 100 / D);
    Resoudre();
    if (Qc >= Qu) {
        Pscroll.Value = CInt(Pc * 100 / D);
    } else {
        const Double t = Pu * 100 / D;
        if (t < Pscroll.Max)
            Pscroll.Value = CInt(t);
        else
            Pscroll.Value = Pscroll.Max;
    }
}

void FiltrePasseBasEnPi::QCompute()
{
    Effacer();
    if (!Complet())
        return;
    Preparer();
    Pscroll.Value = CInt(Pm * 100 / D); // away from the solution, so that the store below is a change
    Resoudre();
    if (Qc >= Qu)
        Pscroll.Value = CInt(Pc * 100 / D);
    else
        Pscroll.Value = CInt(Pu * 100 / D);
    ZComplexes(P); // P as the last store into the bar has left it
    AfficherReseau();
}

void FiltrePasseBasEnPi::PCompute()
{
    Effacer();
    if (!Complet())
        return;
    Preparer();
    Resoudre();
    P = (Pscroll.Value / 100) * D;
    ZComplexes(P);
    AfficherReseau();
}

/// Takes the network of the last pass off the screen; the component values stay.
void FiltrePasseBasEnPi::Effacer()
{
    for (Label* legende : {&LblXa, &LblXb, &LblXc, &LblX1, &LblX2, &LblX3, &LblInfo})
        legende->Visible = false;
    for (TextBox* champ : {&TxtXa, &TxtXb, &TxtXc, &TxtX1, &TxtX2, &TxtX3})
        champ->Visible = false;
    for (PictureBox* schema : {&Lnet, &ConvPi, &UnconvPi, &ConvT, &UnconvT})
        schema->Visible = false;
    TxtQc.Text = "";
    TxtQu.Text = "";
}

bool FiltrePasseBasEnPi::Complet() const
{
    return TxtFreq.Text != "" && TxtRin.Text != "" && TxtRout.Text != "" && Qscroll.Value != 0;
}

void FiltrePasseBasEnPi::Preparer()
{
    F = CDbl(TxtFreq.Text) * Pow(10, 6);
    W = (K + K) * F;
    N = Sqr(R * r);
    T = R / r;
    Pm = ArcCos(Sqr(1 / T));
}

/// Finds the two phase shifts that give the quality Q, raised in steps where it is too low for a solution.
void FiltrePasseBasEnPi::Resoudre()
{
    Qm = Sqr(T - 1);
    Qscroll.Min = CInt(Qm * 10);
    if (P == 0)
        P = Pm;
    while (A() < 0 || B() < 0)
        Q = Q + 0.01;

    Pu = DephasageNonConv();
    while (Pu <= 0) {
        Pu = DephasageNonConv();
        Q = Q + 0.01;
    }
    Qscroll.Value = CInt(Q * 10);
    TxtPu.Text = CStr(Pu / D);
    Qu = Abs((Sqr(T) - 2 * Cos(Pu)) / Sin(Pu)); // not the Q asked for, by the factor 2
    TxtQu.Text = CStr(Qu);

    Pc = DephasageConv();
    TxtPc.Text = CStr(Pc / D);
    if (Sin(Pc) == 0) {
        while (Sin(Pc) <= 0) {
            Pc = DephasageConv();
            Qscroll.Value = CInt(Q + 0.001);
        }
        TxtPc.Text = CStr(Pc / D);
    }
    Qc = Abs((Sqr(T) + Sqr(1 / T) - 2 * Cos(Pc)) / Sin(Pc));
    TxtQc.Text = CStr(Qc);
}

Double FiltrePasseBasEnPi::A() const
{
    return Pow(Q, 2) - T + 2 - 1 / T;
}

Double FiltrePasseBasEnPi::B() const
{
    return Pow(Q, 2) - T + 1;
}

Double FiltrePasseBasEnPi::DephasageNonConv() const
{
    return ArcCos((Sqr(T) + Q * Sqr(B())) / (Pow(Q, 2) + 1));
}

Double FiltrePasseBasEnPi::DephasageConv() const
{
    return ArcCos((2 * (Sqr(T) + Sqr(1 / T)) - Q * Sqr(A())) / (Pow(Q, 2) + 4));
}

void FiltrePasseBasEnPi::ZComplexes(Double dephasage)
{
    Xa = N * Sin(dephasage) / (Cos(dephasage) * Sqr(1 / T) - 1);
    Afficher(TxtXa, Xa);
    Xb = N * Sin(dephasage);
    Afficher(TxtXb, Xb);
    Xc = N * Sin(dephasage) / (Cos(dephasage) * Sqr(T) - 1);
    Afficher(TxtXc, Xc);
    X1 = -Pow(N, 2) / Xc;
    Afficher(TxtX1, X1);
    X2 = -Pow(N, 2) / Xb;
    Afficher(TxtX2, X2);
    X3 = -Pow(N, 2) / Xa;
    Afficher(TxtX3, X3);
}

void FiltrePasseBasEnPi::AfficherReseau()
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

// The captions and formulas of the components are the panel's, even where they seem to belong to another component.

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

void FiltrePasseBasEnPi::MontrerPi(PictureBox& schema)
{
    schema.Visible = true;
    for (Label* legende : {&LblXa, &LblXb, &LblXc, &LblC2})
        legende->Visible = true;
    for (TextBox* champ : {&TxtXa, &TxtXb, &TxtXc, &TxtC2})
        champ->Visible = true;
}

void FiltrePasseBasEnPi::MontrerT(PictureBox& schema)
{
    schema.Visible = true;
    for (Label* legende : {&LblX1, &LblX2, &LblX3, &LblC2})
        legende->Visible = true;
    for (TextBox* champ : {&TxtX1, &TxtX2, &TxtX3, &TxtC2})
        champ->Visible = true;
}

void FiltrePasseBasEnPi::ChoisirSchema(PictureBox& schema)
{
    for (PictureBox* autre : {&ConvPi, &UnconvPi, &ConvT, &UnconvT, &Lnet})
        autre->Visible = autre == &schema;
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
