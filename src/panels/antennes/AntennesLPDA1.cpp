#include "panels/antennes/AntennesLPDA1.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/Text.h"

namespace ondelis {

void AntennesLPDA1::Form_Load()
{
    resumeNext({
        [&] { OptRhoOpt.Value = false; },
        [&] { OptRho.Value = true; },
        [&] { BtnSuite1.Visible = false; },
        [&] { BtnSuite2.Visible = false; },
        [&] { BtnSuite3.Visible = false; },
        [&] { BtnRetour1.Visible = false; },
        [&] { BtnRetour2.Visible = false; },
        [&] { BtnRetour3.Visible = false; },
        [&] { BtnRetour4.Visible = false; },
        [&] { BtnPrecedent.Visible = false; },
        [&] { BtnSuivant.Visible = false; },
        [&] { BtnAfficher.Visible = false; },
        [&] { Text1.Visible = false; },
        [&] { Text2.Visible = false; },
        [&] { Frame1.Visible = true; },
        [&] { TxtFreqMin.Text = "10"; },
        [&] { TxtFreqMax.Text = "30"; },
        [&] { TxtTheta.Text = CStr(0.8); },
        [&] { TxtRho.Text = CStr(0.1); },
        [&] { TxtRZero.Text = "150"; },
        [&] { TxtDiamElement1.Text = "5"; },
        [&] { TxtDiamExtBoom.Text = "50"; },
    });

    // The whole sequence on the defaults and back to step 1, before the panel is seen. A fault here is not ignored.
    BtnCalculer1.Value = true;
    BtnSuite1.Value = true;
    BtnCalculer2.Value = true;
    BtnSuite2.Value = true;
    BtnCalculer3.Value = true;
    BtnSuite3.Value = true;
    BtnAfficher.Value = true;
    BtnRetour4.Value = true;
    BtnRetour3.Value = true;
    BtnRetour2.Value = true;
    BtnRetour1.Value = true;
}

void AntennesLPDA1::OptRho_Click()
{
    OptRhoOpt.Value = false;
    TxtRho.Locked = false;
    TxtRho.BackColor = windowColor;
    TxtRho.Text = "";
}

void AntennesLPDA1::OptRhoOpt_Click()
{
    // Rho itself takes the optimum only at the next accepted change of Theta.
    OptRho.Value = false;
    TxtRho.Locked = true;
    TxtRho.BackColor = resultColor;
}

void AntennesLPDA1::TxtTheta_Change()
{
    const Double t = Val(TxtTheta.Text);
    if (t >= 0.8 && t <= 0.98) {
        Theta = t;
        RhoOpt = t * 0.243 - 0.051;
        TxtRhoOpt.Text = Str(RhoOpt);
        if (OptRhoOpt.Value) {
            Rho = RhoOpt;
            TxtRho.Text = Str(RhoOpt);
        } else {
            Rho = Val(TxtRho.Text); // whatever its range
        }
    }
}

void AntennesLPDA1::TxtRho_Change()
{
    const Double r = Val(TxtRho.Text);
    if (r >= 0.05 && r <= RhoOpt)
        Rho = r;
}

void AntennesLPDA1::TxtRZero_Change()
{
    RZero = Val(TxtRZero.Text);
}

void AntennesLPDA1::TxtDiamElement1_Change()
{
    DiamDernier = Val(TxtDiamElement1.Text) / 25.4;
}

void AntennesLPDA1::TxtFreqMin_KeyPress(Integer& KeyAscii)
{
    TraiterTouche(KeyAscii, TxtFreqMin, FreqMin);
}

void AntennesLPDA1::TxtFreqMax_KeyPress(Integer& KeyAscii)
{
    TraiterTouche(KeyAscii, TxtFreqMax, FreqMax);
}

void AntennesLPDA1::TraiterTouche(Integer touche, TextBox& champ, Double& frequence)
{
    const int code = touche.value();
    if (code == '.' || (code >= '0' && code <= '9'))
        frequence = Val(champ.Text); // the text before the key lands
    else if (code == 8)
        champ.Text = ondelis::Left(champ.Text, Len(champ.Text) - 1); // a backspace on an empty field is a fault
    else
        MsgBox("La saisie doit être exclusivement numérique"); // and the key lands all the same
}

void AntennesLPDA1::BtnCalculer1_Click()
{
    if (Val(TxtFreqMin.Text) >= Val(TxtFreqMax.Text)) {
        TxtFreqMax.Text = "";
        MsgBox("La fréquence max doit être supérieure à la fréquence min !!!");
        return;
    }
    FreqMin = CDbl(TxtFreqMin.Text);
    FreqMax = CDbl(TxtFreqMax.Text);
    if (Theta == 0) {
        MsgBox("Vous devez renseigner le Theta");
        TxtTheta.SetFocus();
        return;
    }
    if (Rho == 0) {
        MsgBox("Vous devez renseigner Rho");
        TxtRho.SetFocus();
        return;
    }
    BtnCalculer1.Visible = false;
    Frame1.Visible = false;
    Text1.Visible = true;
    Text2.Visible = true;

    BandeB = FreqMax / FreqMin;
    CotAlpha = 4 * Rho / (1 - Theta);
    BandeAr = 1.1 + 7.71 * Pow(1 - Theta, 2) * CotAlpha;
    BandeS = BandeAr * BandeB;
    LambdaMax = 984 / FreqMin;
    LongBoom = Abs((1 - 1 / BandeS) * 0.25 * CotAlpha * LambdaMax);
    TxtLonBoom.Text = Str(Truncate(LongBoom * 0.3048, 1000));
    if (FreqMax <= 30) {
        TxtZt.Text = "Epingle HF";
    } else {
        LongStub = Truncate(LambdaMax / 8 * 2.54, 100); // feet times 2.54, though shown as centimetres
        TxtZt.Text = Str(LongStub) + " cm";
    }
    NbElements = 1 + Log(BandeS) / Log(1 / Theta);
    const Double f = NbElements - Fix(NbElements);
    if (f <= 0.3)
        NbElements = Fix(NbElements);
    else
        NbElements = Fix(NbElements) + 1;
    TxtNbrElements.Text = Str(NbElements);
    BtnRetour1.Visible = true;
    BtnSuite1.Visible = true;
}

void AntennesLPDA1::BtnCalculer2_Click()
{
    const Integer n = CInt(NbElements - 1);
    TabLongueurs(0) = 492 / FreqMin;
    for (int i = 1; i <= n; ++i)
        TabLongueurs(i) = TabLongueurs(i - 1) * Theta;
    TabEspacements(1) = (TabLongueurs(0) - TabLongueurs(1)) * (CotAlpha * 0.5);
    for (int i = 2; i <= n; ++i)
        TabEspacements(i) = TabEspacements(i - 1) * Theta;
    const Double X = TabLongueurs(n) * 12 / DiamDernier; // length over diameter, kept by all elements
    for (int i = 0; i <= n; ++i)
        TabDiametres(i) = TabLongueurs(i) * 12 / X;
    const Double RhoPrime = Rho / Sqr(Theta);
    TxtRhoPrime.Text = Str(Truncate(RhoPrime, 100000));
    const Double Za = (Log(X) - 2.25) * 120;
    const Double T = 8 * RhoPrime * Za;
    ZZero = RZero * Sqr(1 + Pow(RZero / T, 2)) + Pow(RZero, 2) / T;
    TxtZ0.Text = Str(Truncate(ZZero, 100));
    LblBalun.Caption = "Balun 1/" + Str(Int(RZero / 50));
    BtnSuite2.Visible = true;
    BtnRetour2.Visible = true;
    BtnCalculer2.Visible = false;
}

void AntennesLPDA1::BtnCalculer3_Click()
{
    const Double d = Val(TxtDiamExtBoom.Text) / 25.4; // inches, as S
    const Double S = (d / 2) * Pow(10, ZZero / 276);
    TxtS.Text = Str(S * 25.4);
    if (S <= 2 * d)
        MsgBox("Ecartement entre les tubes du boom insuffisant");
    // In place: doing the step twice converts twice. The spacings are in feet and are taken for inches.
    const Integer n = CInt(NbElements - 1);
    for (int i = 0; i <= n; ++i) {
        TabLongueurs(i) = Truncate(TabLongueurs(i) * 0.3048, 1000);
        TabEspacements(i) = Truncate(TabEspacements(i) * 25.4, 100);
        TabDiametres(i) = Truncate(TabDiametres(i) * 25.4, 100);
    }
    BtnSuite3.Visible = true;
    BtnRetour3.Visible = true;
    BtnCalculer3.Visible = false;
}

void AntennesLPDA1::BtnSuite1_Click()
{
    BtnCalculer2.Visible = true;
    BtnCalculer1.Visible = false;
    BtnRetour1.Visible = false;
    BtnSuite1.Visible = false;
}

void AntennesLPDA1::BtnSuite2_Click()
{
    BtnCalculer3.Visible = true;
    BtnCalculer2.Visible = false;
    BtnSuite2.Visible = false;
    BtnRetour2.Visible = false;
}

void AntennesLPDA1::BtnSuite3_Click()
{
    BtnPrecedent.Visible = true;
    BtnSuivant.Visible = true;
    BtnAfficher.Visible = true;
    BtnRetour4.Visible = true;
    Frame1.Visible = true;
    BtnCalculer3.Visible = false;
    BtnRetour3.Visible = false;
    BtnSuite3.Visible = false;
    Text1.Visible = false;
    Text2.Visible = false;
}

void AntennesLPDA1::BtnRetour1_Click()
{
    BtnCalculer1.Visible = true;
    BtnRetour1.Visible = false;
    BtnSuite1.Visible = false;
}

void AntennesLPDA1::BtnRetour2_Click()
{
    BtnCalculer1.Visible = true;
    BtnCalculer2.Visible = false;
    BtnSuite2.Visible = false;
    BtnRetour2.Visible = false;
}

void AntennesLPDA1::BtnRetour3_Click()
{
    BtnCalculer2.Visible = true;
    BtnRetour2.Visible = true;
    BtnCalculer3.Visible = false;
    BtnSuite3.Visible = false;
    BtnRetour3.Visible = false;
}

void AntennesLPDA1::BtnRetour4_Click()
{
    BtnCalculer3.Visible = true;
    BtnRetour3.Visible = true;
    LblDimBrin.Visible = false;
    LblEspacement.Visible = false;
    LblDiamètre.Visible = false;
    TxtLongBrin.Visible = false;
    TxtEspacement.Visible = false;
    TxtDiamètre.Visible = false;
    BtnPrecedent.Visible = false;
    BtnSuivant.Visible = false;
    BtnAfficher.Visible = false;
    BtnRetour4.Visible = false;
}

void AntennesLPDA1::BtnAfficher_Click()
{
    const Integer n = CInt(NbElements - 1);
    for (int i = 0; i <= n; ++i) {
        TabLibLongueurs(i) = "Longueur du brin " + Str(i + 1) + " en m";
        TabLibEspacements(i) = "Espacement des brins " + Str(i) + " et " + Str(i + 1) + " en mm";
        TabLibDiametres(i) = "Diamètre du brin " + Str(i + 1) + " en mm";
    }
    LblDimBrin.Visible = true;
    LblEspacement.Visible = true;
    LblDiamètre.Visible = true;
    TxtLongBrin.Visible = true;
    TxtEspacement.Visible = true;
    TxtDiamètre.Visible = true;
    IndexBrin = 0;
    PresenterBrin(0);
    BtnSuivant.Visible = true;
    BtnPrecedent.Visible = true;
    BtnRetour4.Visible = true;
}

void AntennesLPDA1::BtnSuivant_Click()
{
    if (NbElements - 1 > IndexBrin) {
        IndexBrin = IndexBrin + 1;
        PresenterBrin(IndexBrin);
    }
}

void AntennesLPDA1::BtnPrecedent_Click()
{
    if (IndexBrin > 0) {
        IndexBrin = IndexBrin - 1;
        PresenterBrin(IndexBrin);
    }
}

void AntennesLPDA1::PresenterBrin(Integer index)
{
    LblDimBrin.Caption = TabLibLongueurs(index);
    LblEspacement.Caption = index == 0 ? std::string{} : TabLibEspacements(index);
    LblDiamètre.Caption = TabLibDiametres(index);
    TxtLongBrin.Text = Str(TabLongueurs(index));
    TxtEspacement.Text = Str(TabEspacements(index));
    TxtDiamètre.Text = Str(TabDiametres(index));
}

} // namespace ondelis
