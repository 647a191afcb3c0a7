#include "panels/puissance/Transformateur.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {
namespace {

constexpr int secondairesMaxi = 4;

constexpr Table<Double, 8> PuissRendement{{5, 10, 25, 50, 100, 250, 500, 1000}}; // VA
constexpr Table<Double, 8> Rendement{{60, 70, 80, 85, 90, 91, 92, 32.5}}; // percent
constexpr Table<Double, 8> PuissPerteFil{{25, 50, 100, 200, 400, 500, 750, 1000}}; // VA
constexpr Table<Double, 8> PerteFilPourcent{{12, 10, 8, 6, 5, 4.5, 4, 3.5}}; // percent

/// A lamination quality: its losses, and its coefficient on the section of the core.
struct Tole {
    const char* pertes;
    Double coefficient;
};
constexpr Table<Tole, 2> toles{{{{"3.6 W/Kg", 1.2}, {"1.1 à 1.6 W/Kg", 1}, {"0.6 W/Kg", 0.8}}}};

/// Linear interpolation between the rows i and i + 1 of a table of percentages, as a fraction of 1.
Double interpolation(Double P, const Table<Double, 8>& puissances, const Table<Double, 8>& pourcentages, int i)
{
    return (pourcentages(i)
               + ((P - puissances(i)) / (puissances(i + 1) - puissances(i))) * (pourcentages(i + 1) - pourcentages(i)))
        / 100;
}

} // namespace

void Transformateur::Form_Load()
{
    resumeNext({
        [&] { TxtNbreEnrSec.Text = ""; },
        [&] { Pi = 4 * Atn(1); },
    });
    for (int i = 0; i < secondairesMaxi; ++i)
        resumeNext({[&] { MontrerSecondaire(i, false); }});
    resumeNext({
        [&] { BtnReset_Click(); },
        [&] { TxtNbreEnrSec.Text = "2"; },
        [&] { Secondaires(0).TxtUSec.Text = "18"; },
        [&] { Secondaires(0).TxtIsec.Text = "5"; },
        [&] { Secondaires(1).TxtUSec.Text = "18"; },
        [&] { Secondaires(1).TxtIsec.Text = "5"; },
        [&] { LstTole.ListIndex = 0; },
    });
}

void Transformateur::TxtNbreEnrSec_Change()
{
    NbreEnrSec = CInt(Val(TxtNbreEnrSec.Text));
    for (int i = 0; i < secondairesMaxi; ++i) {
        MontrerSecondaire(i, false);
        Secondaire& secondaire = Secondaires(i);
        secondaire.TxtUSec.Text = "";
        secondaire.TxtIsec.Text = "";
        secondaire.TxtPap.Text = "";
        secondaire.TxtSpires.Text = "";
        secondaire.TxtDiamFil.Text = "";
    }
    TxtPuissApp.Text = "";
    for (int i = 0; i < NbreEnrSec.value(); ++i)
        MontrerSecondaire(i, true);
}

void Transformateur::TxtUSec_Change()
{
    LireSecondaires();
}

void Transformateur::TxtIsec_Change()
{
    LireSecondaires();
}

void Transformateur::BtnReset_Click()
{
    TxtNbreEnrSec.Text = "";
    for (int i = 0; i < secondairesMaxi; ++i)
        MontrerSecondaire(i, false);
    TxtPuissApp.Text = "";
    TxtDiamFilPrim.Text = "";
    TxtSpiresPrimaire.Text = "";
    TxtPuisPrim.Text = "";
    for (TextBox* champ :
        {&TxtPuissApp, &TxtPertes, &TxtSec, &TxtSecBrute, &Txta, &TxtPuisPrim, &TxtSpiresPrimaire, &TxtDiamFilPrim})
        champ->BackColor = cyan;
    LstTole.BackColor = cyan;
}

void Transformateur::MontrerSecondaire(int i, bool visible)
{
    Secondaire& secondaire = Secondaires(i);
    secondaire.TxtUSec.Visible = visible;
    secondaire.TxtIsec.Visible = visible;
    secondaire.TxtPap.Visible = visible;
    secondaire.TxtSpires.Visible = visible;
    secondaire.TxtDiamFil.Visible = visible;
    secondaire.Label7.Visible = visible;
    secondaire.Label17.Visible = visible;
    secondaire.Label18.Visible = visible;
    secondaire.Label19.Visible = visible;
    secondaire.Label25.Visible = visible;
}

void Transformateur::LireSecondaires()
{
    for (int i = 0; i < NbreEnrSec.value(); ++i) {
        UsecVal(i) = Val(Secondaires(i).TxtUSec.Text);
        IsecVal(i) = Val(Secondaires(i).TxtIsec.Text);
        if (UsecVal(i) != 0 && IsecVal(i) != 0) {
            PappVal(i) = UsecVal(i) * IsecVal(i);
            Secondaires(i).TxtPap.Text = CStr(Truncate(PappVal(i), 100));
        }
    }
    PuissApparente();
}

void Transformateur::PuissApparente()
{
    SommePapp = 0;
    for (int i = 0; i < NbreEnrSec.value(); ++i) {
        if (PappVal(i) == 0)
            continue;
        SommePapp = SommePapp + PappVal(i);
        TxtPuissApp.Text = CStr(SommePapp);
        PuissancePrimaire = SommePapp / NetaTransfo(SommePapp);
        TxtPuisPrim.Text = CStr(Truncate(PuissancePrimaire, 100));
        LstTole.BackColor = white; // the list can now be clicked
    }
}

/// Efficiency at the apparent power P, VA, as a fraction. Throws a subscript out of range for a P that is not above 5
/// and up to 1000: no row holds it, and there is none after the last.
Double Transformateur::NetaTransfo(Double P)
{
    for (int i = 0;; ++i) {
        const bool above = P > PuissRendement(i);
        const bool within = P <= PuissRendement(i + 1); // read in any case
        if (above && within)
            return interpolation(P, PuissRendement, Rendement, i);
    }
}

/// Loss in the wires at the power P, VA, as a fraction; 0 outside of 25 to 1000.
Double Transformateur::PerteFil(Double P)
{
    for (int i = 0; i <= 7; ++i)
        if (P >= PuissPerteFil(i) && P <= PuissPerteFil(i + 1))
            return interpolation(P, PuissPerteFil, PerteFilPourcent, i);
    return 0;
}

void Transformateur::LstTole_Click()
{
    const Tole& tole = toles(LstTole.ListIndex);
    TxtPertes.Text = tole.pertes;
    const Double Beta = 1; // T
    SectionBrute = Sqr(PuissancePrimaire) * 1.1;
    TxtSec.Text = CStr(Truncate(SectionBrute, 100));
    SectionCorrigee = Val(CStr(tole.coefficient)) * SectionBrute; // Val takes a point only
    TxtSecBrute.Text = CStr(Truncate(SectionCorrigee, 100));
    CoteA = Sqr(SectionCorrigee) / 2;
    Txta.Text = CStr(Truncate(CoteA, 100));
    // 4.44 * 50 Hz as that product comes out, one step above 222.
    SpiresParVolt = Pow(10, 4) / (Beta * 222.00000000000003 * SectionCorrigee);
    SpiresParVolt = SpiresParVolt + PerteFil(PuissancePrimaire); // added as a plain number

    for (int i = 0; i < NbreEnrSec.value(); ++i)
        Secondaires(i).TxtSpires.Text = CStr(Truncate(UsecVal(i) * SpiresParVolt, 10));
    TxtSpiresPrimaire.Text = CStr(Truncate(SpiresParVolt * 220, 10));

    for (int i = 0; i < NbreEnrSec.value(); ++i) {
        const Double I = Val(Secondaires(i).TxtPap.Text) / Val(Secondaires(i).TxtUSec.Text);
        Secondaires(i).TxtDiamFil.Text = CStr(Truncate(DiametreFil(PappVal(i), I), 1000));
    }
    TxtDiamFilPrim.Text = CStr(Truncate(DiametreFil(PuissancePrimaire, PuissancePrimaire / 220), 1000));
}

/// Wire diameter, mm, of a winding of P VA that carries I amperes. Above 1000 VA the section stays that of the wire
/// before.
Double Transformateur::DiametreFil(Double P, Double I)
{
    if (P <= 50)
        SectionFil = I / 4;
    else if (P <= 100)
        SectionFil = I / 3.5;
    else if (P <= 200)
        SectionFil = I / 3;
    else if (P <= 500)
        SectionFil = I / 2.5;
    else if (P <= 1000)
        SectionFil = I / 2;
    return Sqr(SectionFil / Pi) * 1.1;
}

} // namespace ondelis
