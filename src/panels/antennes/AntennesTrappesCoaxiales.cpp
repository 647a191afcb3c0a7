#include "panels/antennes/AntennesTrappesCoaxiales.h"

#include <array>

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {
namespace {

struct Coaxial {
    const char* nom;
    double capaPied; ///< pF per foot
    double diamPouce; ///< outer diameter, inches
    double impedance; ///< ohms
    double vitesse; ///< velocity factor
};

constexpr std::array<Coaxial, 46> coaxiaux{{
    {"KX3B", 30.48, 0.1, 50.0, 0.659},
    {"RG 6", 18.6, 0.266, 75.0, 0.75},
    {"RG 8X", 26.0, 0.242, 52.0, 0.75},
    {"RG 8", 29.5, 0.405, 52.0, 0.66},
    {"RG 8 foam", 25.4, 0.405, 50.0, 0.8},
    {"RG 8A", 29.5, 0.405, 52.0, 0.66},
    {"RG 9", 30.0, 0.42, 51.0, 0.66},
    {"RG 9A", 30.0, 0.42, 51.0, 0.66},
    {"RG 9B", 30.8, 0.42, 50.0, 0.66},
    {"RG 11", 20.6, 0.405, 75.0, 0.66},
    {"RG 11 foam", 16.9, 0.405, 75.0, 0.8},
    {"RG 11A", 20.6, 0.405, 75.0, 0.66},
    {"RG 12", 20.6, 0.475, 75.0, 0.66},
    {"RG 12A", 20.6, 0.475, 75.0, 0.66},
    {"RG 17", 29.5, 0.87, 52.0, 0.66},
    {"RG 17A", 29.5, 0.87, 52.0, 0.66},
    {"RG 55", 29.5, 0.216, 53.5, 0.66},
    {"RG 55A", 30.8, 0.216, 50.0, 0.66},
    {"RG 55B", 29.5, 0.216, 53.5, 0.66},
    {"RG 58", 28.5, 0.195, 53.5, 0.66},
    {"RG 58 foam", 28.5, 0.195, 53.5, 0.79},
    {"RG 58A", 28.5, 0.195, 53.5, 0.66},
    {"RG 58B", 28.5, 0.195, 53.5, 0.66},
    {"RG 58C", 30.8, 0.195, 50.0, 0.66},
    {"RG 58U", 26.5, 0.194, 53.5, 0.73},
    {"RG 59", 21.0, 0.242, 73.0, 0.66},
    {"RG 59 foam", 16.9, 0.242, 75.0, 0.79},
    {"RG 59A", 21.0, 0.242, 73.0, 0.66},
    {"RG 62", 13.5, 0.242, 93.0, 0.86},
    {"RG 62 foam", 13.4, 0.242, 95.0, 0.79},
    {"RG 62A", 13.5, 0.242, 93.0, 0.86},
    {"RG 62B", 13.5, 0.242, 93.0, 0.86},
    {"RG 133", 16.2, 0.405, 95.0, 0.66},
    {"RG 141", 29.4, 0.19, 50.0, 0.7},
    {"RG 141A", 29.4, 0.19, 50.0, 0.7},
    {"RG 142", 29.4, 0.206, 50.0, 0.7},
    {"RG 142A", 29.4, 0.206, 50.0, 0.7},
    {"RG 142B", 29.4, 0.195, 50.0, 0.7},
    {"RG 174", 30.8, 0.1, 50.0, 0.66},
    {"RG 213", 30.8, 0.405, 50.0, 0.66},
    {"RG 214", 30.8, 0.425, 50.0, 0.66},
    {"RG 215", 30.8, 0.475, 50.0, 0.66},
    {"RG 216", 20.6, 0.425, 75.0, 0.66},
    {"RG 223", 30.8, 0.212, 50.0, 0.66},
    {"9913", 24.0, 0.405, 50.0, 0.84},
    {"9914", 26.0, 0.405, 50.0, 0.78},
}};

/// A positive number rounded to whole parts: to two decimals where `parts` is 100.
Double arrondi(Double x, Double parts)
{
    return Fix(x * parts + 0.5) / parts;
}

} // namespace

std::vector<std::string> AntennesTrappesCoaxiales::NomsCoaxiaux()
{
    std::vector<std::string> noms;
    noms.reserve(coaxiaux.size() + 1);
    for (const Coaxial& coaxial : coaxiaux)
        noms.emplace_back(coaxial.nom);
    noms.emplace_back("Personnel");
    return noms;
}

void AntennesTrappesCoaxiales::Form_Load()
{
    resumeNext({
        [&] { TxtDiamCoax.Text = ""; },
        [&] { TxtDiamMandrin.Text = ""; },
        [&] { TxtCapacitParMetre.Text = ""; },
        [&] { LstCoax.ListIndex = 0; },
        [&] { TxtFrequence.Text = CStr(7.1); },
        [&] { TxtDiamMandrin.Text = "50"; },
        [&] { BtnCalculer.Value = true; },
        [&] { Label19.Caption = "Référence : The ARRL ANTENNA COMPENDIUM Vol.2 Ed.1989 p.100"; },
    });
}

void AntennesTrappesCoaxiales::LstCoax_Click()
{
    const Integer row = LstCoax.ListIndex;
    if (row == LstCoax.ListCount() - 1) {
        TxtDiamCoax.Text = "";
        TxtDiamMandrin.Text = "";
        TxtCapacitParMetre.Text = "";
    } else {
        const Coaxial& coaxial = coaxiaux.at(static_cast<std::size_t>(row.value()));
        CapaPied = coaxial.capaPied;
        DiamCoaxPouce = coaxial.diamPouce;
        ImpedanceCoax = coaxial.impedance;
        VitesseCoax = coaxial.vitesse;
    }
    TxtDiamCoax.Text = CStr(DiamCoaxPouce * 25.4);
    TxtCapacitParMetre.Text = CStr(CapaPied / 0.3048);
    TxtZ.Text = CStr(ImpedanceCoax);
    TxtVF.Text = CStr(VitesseCoax);
}

void AntennesTrappesCoaxiales::TxtDiamCoax_Change()
{
    DiamCoaxPouce = Val(TxtDiamCoax.Text) / 25.4;
}

void AntennesTrappesCoaxiales::TxtCapacitParMetre_Change()
{
    CapaPied = Val(TxtCapacitParMetre.Text) * 0.3048;
}

void AntennesTrappesCoaxiales::TxtDiamMandrin_Change()
{
    DiamMandrinPouce = Val(TxtDiamMandrin.Text) / 25.4;
}

void AntennesTrappesCoaxiales::TxtFrequence_Change()
{
    FreqTrappe = Val(TxtFrequence.Text);
}

void AntennesTrappesCoaxiales::BtnCalculer_Click()
{
    Calculer();
}

void AntennesTrappesCoaxiales::Calculer()
{
    if (TxtFrequence.Text == "" || TxtDiamCoax.Text == "" || TxtCapacitParMetre.Text == "" || TxtDiamMandrin.Text == "")
        return;

    // All lengths in inches.
    const Double c = CapaPied / 12; // pF per inch
    const Double w = 2 * Pi() * FreqTrappe;
    const Double D = DiamMandrinPouce + DiamCoaxPouce;
    Double N = Fix((570 / FreqTrappe) * Sqr(DiamCoaxPouce / (Pow(D, 3) * c))) + 0.5; // turns, a first guess
    Double H; // length of the winding
    Double L; // µH
    Double C; // pF
    const auto bobiner = [&] {
        H = N * DiamCoaxPouce;
        L = Pow(D, 2) * Pow(N, 2) / (H * 40 + D * 18);
        C = (Pi() * D * N + 2) * c; // with two inches of cable more
    };

    Double XL;
    Double XC;
    Double step;
    int count = 0;
    while (Abs(XC - XL) >= 1e-8 || L == 0 || C == 0) {
        DoEvents(); // the two reactances are seen to converge
        ++count;
        if (count > 1000) {
            MsgBox("Diamètre de mandrin minimum : " + Str(Truncate(DiamCoaxPouce * 7 * 25.4, 100)));
            return;
        }
        bobiner();
        XL = w * L;
        XC = 1000000 / (C * w);
        step = Abs(XC - XL) / 1000;
        N = N + Sgn(XC - XL) * step;
        TxtReactanceInductive.Text = CStr(XL);
        TxtReactanceCapacitive.Text = CStr(XC);
    }
    N = N - step; // whatever the sign of the last step
    bobiner();
    TxtInductance.Text = CStr(arrondi(L, L < 1 ? 1000 : 100));
    TxtCapacitance.Text = CStr(arrondi(C, C >= 10 ? 10 : 100));
    TxtNombreTours.Text = CStr(Truncate(N, 100));
    TxtLongueurBobinage.Text = CStr(Truncate(H, 100) * 25.4);
    const Double Lc = Pi() * D * N + 2; // length of the cable
    TxtLongueurCoaxial.Text = CStr(Truncate(Lc * 25.4, 100));
    const Double E = Fix(Lc * 8.8 + 0.5) / 10; // equivalent electrical length
    TxtLongueurEffective.Text = CStr(Truncate(E * 25.4, 100));
}

} // namespace ondelis
