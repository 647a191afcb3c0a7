#include "panels/condensateurs/CondensateurFixe.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "kit/Conversions.h"
#include "kit/TraitementMultiplicateur.h"

namespace ondelis {
namespace {

/// A row of the table; the limits are relative permittivities.
struct Dielectrique {
    const char* nom = "";
    Double minimum;
    std::optional<Double> maximum;
    const char* frequences = "";
    const char* pertes = "";
    const char* utilisation = "";
};

/// The row of a dielectric; the table has one for each item of the list.
const Dielectrique& dielectrique(const std::string& nom)
{
    // clang-format off
    static constexpr std::array<Dielectrique, 12> table{{
        {"Air",            1,   {},    "CC à 1KHz",     "0.01 à 0.03", "Industriel, Filtres, Facteur de puissance"},
        {"Céramique I",    5.4, 20,    "100Hz à 10GHz", "0.001",       "Circuits HF de puissance, Accord et dérive HF"},
        {"Céramique II",   500, 15000, "1KHz à 200MHz", "0.01",        "Découplage HF"},
        {"Electrolytique", 9,   {},    "CC à 1KHz",     "0.1",         "Découplage, Filtrage, Liaison transistor"},
        {"Mica",           6.5, 7,     "1KHz à 10GHz",  "0.0005",      "Accord de circuits HF, Ligne à retard"},
        {"Mylar",          2,   3,     "CC à 10GHz",    "0.0005",      "Tous usages, Accord de circuit"},
        {"Papier",         4.5, {},    "CC à 1KHz",     "0.01 à 0.03", "Industriel filtres, Facteur de puissance"},
        {"Polycarbonate",  2,   3,     "CC à 10GHz",    "0.0005",      "Tous usages"},
        {"Polystyrène",    2,   3,     "CC à 10GHz",    "0.0005",      "Tous usages"},
        {"Tantale",        26,  {},    "CC à 100KHz",   "0.05",        "Découplage, Filtrage, Circuits transistorisés"},
        {"Téflon",         2,   3,     "1KHz à 10GHz",  "0.0005",      "Accord de circuits HF, Ligne à retard"},
        {"Verre",          4,   6.5,   "1KHz à 10GHz",  "0.001",       "Remplace le mica dans toutes les applications HF"},
    }};
    // clang-format on
    const auto* const found = std::ranges::find(table, nom, &Dielectrique::nom);
    if (found == table.end())
        throw Fault{FaultKind::SubscriptOutOfRange};
    return *found;
}

} // namespace

void CondensateurFixe::Form_Load()
{
    resumeNext({
        [&] { DiviseursSurface(0) = 1; },
        [&] { DiviseursSurface(1) = 100; },
        [&] { DiviseursSurface(2) = 10000; },
        [&] { DiviseursSurface(3) = 1000000; },
        [&] { DiviseursEpaisseur(0) = 1; },
        [&] { DiviseursEpaisseur(1) = 10; },
        [&] { DiviseursEpaisseur(2) = 100; },
        [&] { DiviseursEpaisseur(3) = 1000; },
        [&] { TxtCapacite.Visible = false; },
        [&] { Lbl_Capacité.Visible = false; },
        [&] { LstDielectrique.ListIndex = 11; },
        [&] { TxtSurface.Text = CStr(10); },
        [&] { LstUnités.ListIndex = 2; },
        [&] { TxtEpaisseur.Text = CStr(2); },
        [&] { LstUniteE.ListIndex = 3; },
    });
}

void CondensateurFixe::LstDielectrique_Click()
{
    const std::string nom = LstDielectrique.Text;
    const Dielectrique& choix = dielectrique(nom);
    TxtCstDielMin.Text = CStr(choix.minimum);
    if (choix.maximum)
        TxtCstDielMax.Text = CStr(*choix.maximum);
    TxtCstDielMax.Visible = choix.maximum.has_value();
    LblCstDielMax.Visible = choix.maximum.has_value();
    if (nom == "Air") {
        TxtCstDiel.Text = TxtCstDielMin.Text;
        Epsilon = CDbl(TxtCstDielMin.Text);
    } else {
        // The limits are read back from their fields: under a decimal comma their fractions are lost.
        if (TxtCstDielMax.Visible)
            Epsilon = (Val(TxtCstDielMax.Text) + Val(TxtCstDielMin.Text)) / 2;
        else
            Epsilon = Val(TxtCstDielMin.Text);
        TxtCstDiel.Text = CStr(Epsilon);
    }
    TxtDomFreq.Text = choix.frequences;
    TxtPhi.Text = choix.pertes;
    TxtUtil.Text = choix.utilisation;
    Calculer();
}

void CondensateurFixe::TxtCstDiel_Change()
{
    Epsilon = CDbl(TxtCstDiel.Text);
    Calculer();
}

void CondensateurFixe::TxtEpaisseur_Change()
{
    Epaisseur = Val(TxtEpaisseur.Text);
    Calculer();
}

void CondensateurFixe::TxtSurface_Change()
{
    Surface = Val(TxtSurface.Text);
    Calculer();
}

void CondensateurFixe::LstUniteE_Click()
{
    DiviseurEpaisseur = DiviseursEpaisseur(LstUniteE.ListIndex);
    Calculer();
}

void CondensateurFixe::LstUnités_Click()
{
    DiviseurSurface = DiviseursSurface(LstUnités.ListIndex);
    Calculer();
}

void CondensateurFixe::Calculer()
{
    if (DiviseurSurface == 0 || DiviseurEpaisseur == 0 || Epsilon == 0 || Epaisseur == 0 || Surface == 0)
        return;
    const Double S = Surface / DiviseurSurface; // m²
    const Double e = Epaisseur / DiviseurEpaisseur; // m
    // 8.85 * 10^-12 as that product comes out, one step below the number 8.85e-12.
    const Double C = 8.849999999999999e-12 * ((Epsilon * S) / e); // F
    if (C != 0) {
        TxtCapacite.Visible = true;
        Lbl_Capacité.Visible = true;
    }
    TxtCapacite.Text = TraitementMultiplicateur(C);
}

} // namespace ondelis
