#include "panels/condensateurs/CondensateurVariable.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/TraitementMultiplicateur.h"

namespace ondelis {

Line::Design CondensateurVariable::lameMobile(int index)
{
    const double x = 5940 + 600 * index;
    return {.X1 = x, .Y1 = dosMobile, .X2 = x, .Y2 = dosMobile + 900, .BorderColor = dessin::cuivre, .BorderWidth = 3};
}

Line::Design CondensateurVariable::lameFixe(int index)
{
    const double x = 5640 + 600 * index;
    return {.X1 = x, .Y1 = dosFixe, .X2 = x, .Y2 = dosFixe - 900, .BorderColor = dessin::encre, .BorderWidth = 3};
}

void CondensateurVariable::Form_Load()
{
    resumeNext({
        [&] { OptClassique.Value = true; },
        [&] { OptPapSer.Value = false; },
        [&] { OptPapPar.Value = false; },
    });
    for (int i = 0; i <= 4; ++i) {
        resumeNext({
            [&] { LM1(i).Visible = false; },
            [&] { LF1(i).Visible = false; },
        });
    }
    resumeNext({
        [&] { TxtMobiles.Text = "3"; },
        [&] { TxtFixes.Text = "4"; },
        [&] { TxtEspacement.Text = CStr(0.5); },
        [&] { TxtAngle.Text = "179"; },
        [&] { TxtRayExt.Text = "80"; },
        [&] { TxtRayInt.Text = "12"; },
    });
}

void CondensateurVariable::OptClassique_Click()
{
    OptClassique.Value = true;
    OptPapSer.Value = false;
    OptPapPar.Value = false;
    Montrer(Classique);
    TxtAngle.Text = "179";
    Calculer();
}

void CondensateurVariable::OptPapSer_Click()
{
    OptClassique.Value = false;
    OptPapSer.Value = true;
    OptPapPar.Value = false;
    Montrer(PapillonSerie);
    TxtAngle.Text = "89";
    Calculer();
}

void CondensateurVariable::OptPapPar_Click()
{
    OptClassique.Value = false;
    OptPapSer.Value = false;
    OptPapPar.Value = true;
    Montrer(PapillonParallele);
    TxtAngle.Text = "89";
    Calculer();
}

void CondensateurVariable::TxtRayExt_Change()
{
    RayonExt = Val(TxtRayExt.Text) / 20;
    Calculer();
}

void CondensateurVariable::TxtRayInt_Change()
{
    RayonInt = Val(TxtRayInt.Text) / 20;
    Calculer();
}

void CondensateurVariable::TxtEspacement_Change()
{
    Espacement = Val(TxtEspacement.Text) / 10;
    Calculer();
}

void CondensateurVariable::TxtAngle_Change()
{
    Angle = Val(TxtAngle.Text);
    Calculer();
}

void CondensateurVariable::TxtFixes_Change()
{
    NbFixes = Val(TxtFixes.Text);
    DessinerLames(NbFixes, LF1);
    Calculer();
}

void CondensateurVariable::TxtMobiles_Change()
{
    NbMobiles = Val(TxtMobiles.Text);
    DessinerLames(NbMobiles, LM1);
    Calculer();
}

void CondensateurVariable::Montrer(const Image& construction)
{
    for (Image* image : {&Classique, &PapillonSerie, &PapillonParallele})
        image->Visible = image == &construction;
}

void CondensateurVariable::DessinerLames(Double n, ControlArray<Line>& lames)
{
    // Above five the count wraps: the sketch only suggests the number.
    const Double K = n < 6 ? Term{n} : (n - 5 * Fix(n / 5)) + 1;
    for (int i = 0; i <= K - 1; ++i)
        lames(i).Visible = true;
    if (K < 5)
        for (int i = CInt(K).value(); i <= 4; ++i)
            lames(i).Visible = false;
}

void CondensateurVariable::Calculer()
{
    const Long rayonEntier = CLng(RayonExt); // first: a diameter too large is a fault whatever the other fields hold
    if (RayonInt == 0 || NbMobiles == 0 || NbFixes == 0 || Espacement == 0 || Angle == 0 || rayonEntier == 0)
        return;
    // A refused angle leaves 0, and a surface and a capacitance of 0.
    const Double a = Val(TxtAngle.Text);
    if (OptClassique.Value) {
        if (a > 180)
            RefuserAngle("L'angle de lame maximal est de 180°");
        else
            Angle = a;
    } else if (OptPapSer.Value) {
        if (a > 90)
            RefuserAngle("L'angle de lame maximal est de 90°");
        else
            Angle = a / 2;
    } else if (OptPapPar.Value) {
        if (a > 90)
            RefuserAngle("L'angle de lame maximal est de 90°");
        else
            Angle = a * 2;
    }
    NbIntervalles = NbMobiles + NbFixes - 1;
    const Double f = Angle / 360;
    const Double A0 = (Pow(RayonExt, 2) - Pow(RayonInt, 2)) * Pi(); // cm²
    const Double A1 = f * A0; // one pair of faces
    const Double A2 = NbIntervalles * A1; // all of them
    TxtSurfUtile.Text = Str(Truncate(A2, 10)) + " cm²";
    const Double C = ((0.0885 * A2) / Espacement) / Pow(10, 12); // F
    TxtCapacite.Text = TraitementMultiplicateur(C);
}

void CondensateurVariable::RefuserAngle(const std::string& message)
{
    MsgBox(message);
    TxtAngle.Text = " ";
}

} // namespace ondelis
