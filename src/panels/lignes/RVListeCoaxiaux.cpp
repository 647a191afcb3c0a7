#include "panels/lignes/RVListeCoaxiaux.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {
namespace {

/// pF/m from pF per foot, truncated to two decimals.
std::string pFParMetre(Double pFParPied)
{
    return Str(Truncate(pFParPied / 0.3048, 100));
}

/// mm from inches, truncated to two decimals.
std::string millimetres(Double pouces)
{
    return Str(Truncate(pouces * 25.4, 100));
}

} // namespace

void RVListeCoaxiaux::Form_Load()
{
    resumeNext({
        [&] { RemplirTable(); },
        [&] { LstResultat.Clear(); },
        [&] { OptZ.Value = true; },
        [&] { LstCritere.ListIndex = 3; },
        [&] { LstResultat.ListIndex = 2; },
    });
}

void RVListeCoaxiaux::OptZ_Click()
{
    ProposerCriteres(2, {"50", "51", "52", "53.5", "73", "75", "93", "95", "300", ""}, "Impedance");
}

void RVListeCoaxiaux::OptVF_Click()
{
    ProposerCriteres(3, {"0.66", "0.70", "0.75", "0.79", "0.80", "0.82", "0.86", ""}, "Velocite");
}

void RVListeCoaxiaux::OptpF_Click()
{
    ProposerCriteres(4,
        {pFParMetre(5.8), pFParMetre(13.4), pFParMetre(13.5), pFParMetre(16.2), pFParMetre(16.9), pFParMetre(18.6),
            pFParMetre(19.0), pFParMetre(20.6), pFParMetre(21.0), pFParMetre(25.4), pFParMetre(26.0), pFParMetre(28.5),
            pFParMetre(29.4), pFParMetre(29.5), pFParMetre(30.0), Str(100), pFParMetre(30.8), ""},
        "Capa linéaire pF/m");
}

void RVListeCoaxiaux::OptDiam_Click()
{
    ProposerCriteres(5,
        {millimetres(0.1), millimetres(0.19), millimetres(0.195), Str(5), millimetres(0.206), millimetres(0.212),
            millimetres(0.216), millimetres(0.242), millimetres(0.266), millimetres(0.405), millimetres(0.42),
            millimetres(0.425), millimetres(0.475), millimetres(0.87), ""},
        "Diamètres mm");
}

void RVListeCoaxiaux::OptIsolant_Click()
{
    ProposerCriteres(6, {"Air space PE", "Foam PE", "PE", "PTFE", ""}, "Diélectrique");
}

void RVListeCoaxiaux::OptVmax_Click()
{
    ProposerCriteres(7,
        {" ", "600", "700", "750", "800", "1100", "1500", "1600", "1900", "2300", "4000", "5000", "11000", ""},
        "Umax RMS");
}

void RVListeCoaxiaux::ProposerCriteres(
    Integer column, const std::vector<std::string>& criteres, const std::string& titre)
{
    LstCritere.Clear();
    ColonneCritere = column;
    for (const std::string& critere : criteres)
        LstCritere.AddItem(critere);
    LblCriteres.Caption = titre;
    LstResultat.Visible = false;
}

void RVListeCoaxiaux::LstCritere_Click()
{
    const auto column = static_cast<std::size_t>(ColonneCritere.value());
    LstResultat.Clear();
    for (std::size_t row = 1; row <= rows; ++row)
        if (LstCritere.List(LstCritere.ListIndex) == TableCoaxiaux[row][column])
            LstResultat.AddItem(TableCoaxiaux[row][1]);
    LstResultat.Visible = true;
}

void RVListeCoaxiaux::LstResultat_Click()
{
    for (std::size_t row = 1; row <= rows; ++row) {
        const auto& coaxial = TableCoaxiaux[row];
        if (LstResultat.List(LstResultat.ListIndex) == coaxial[1]) {
            TxtRef.Text = coaxial[1];
            TxtZ.Text = coaxial[2];
            TxtVF.Text = coaxial[3];
            TxtpF.Text = coaxial[4];
            TxtDiam.Text = coaxial[5];
            TxtDiel.Text = coaxial[6];
            TxtRMS.Text = coaxial[7];
        }
    }
    // For any other dielectric the note of the previous cable stays.
    if (TxtDiel.Text == "PE") {
        Label8.Visible = true;
        Label9.Visible = false;
        Label10.Visible = false;
    } else if (TxtDiel.Text == "Foam PE") {
        Label8.Visible = false;
        Label9.Visible = true;
        Label10.Visible = false;
    } else if (TxtDiel.Text == "PTFE") {
        Label8.Visible = false;
        Label9.Visible = false;
        Label10.Visible = true;
    }
}

void RVListeCoaxiaux::LstResultat_GotFocus()
{
    LblCriteres.Caption = "Impédances"; // whichever characteristic is searched
}

void RVListeCoaxiaux::RemplirTable()
{
    // clang-format off
    const std::array<std::array<std::string, columns>, rows> catalogue{{
        {"KX3 B", "50", "0.66", Str(100), Str(5), "PE", "1100"},
        {"RG-6", "75", "0.75", pFParMetre(18.6), millimetres(0.266), "Foam PE", ""},
        {"RG-8X", "52", "0.75", pFParMetre(26.0), millimetres(0.242), "Foam PE", ""},
        {"RG-8", "52", "0.66", pFParMetre(29.5), millimetres(0.405), "PE", "4000"},
        {"RG-8 Foam", "50", "0.80", pFParMetre(25.4), millimetres(0.405), "Foam PE", "1500"},
        {"RG-8A", "52", "0.66", pFParMetre(29.5), millimetres(0.405), "PE", "5000"},
        {"RG-9", "51", "0.66", pFParMetre(30.0), millimetres(0.42), "PE", "4000"},
        {"RG-11", "75", "0.66", pFParMetre(20.6), millimetres(0.405), "PE", "4000"},
        {"RG-11 Foam", "75", "0.80", pFParMetre(16.9), millimetres(0.405), "Foam PE", "1600"},
        {"RG-11A", "75", "0.66", pFParMetre(20.6), millimetres(0.405), "PE", "5000"},
        {"RG-12", "75", "0.66", pFParMetre(20.6), millimetres(0.475), "PE", "4000"},
        {"RG-12A", "75", "0.66", pFParMetre(20.6), millimetres(0.475), "PE", "5000"},
        {"RG-17", "52", "0.66", pFParMetre(29.5), millimetres(0.87), "PE", "11000"},
        {"RG-17A", "52", "0.66", pFParMetre(29.5), millimetres(0.87), "PE", "11000"},
        {"RG-55", "53.5", "0.66", pFParMetre(29.5), millimetres(0.216), "PE", "1900"},
        {"RG-55A", "50", "0.66", pFParMetre(30.8), millimetres(0.216), "PE", "1900"},
        {"RG-55B", "53.5", "0.66", pFParMetre(29.5), millimetres(0.216), "PE", "1900"},
        {"RG-58", "53.5", "0.66", pFParMetre(28.5), millimetres(0.195), "PE", "1900"},
        {"RG-58 Foam", "53.5", "0.79", pFParMetre(28.5), millimetres(0.195), "Foam PE", "600"},
        {"RG-58A", "53.5", "0.66", pFParMetre(28.5), millimetres(0.195), "PE", "1900"},
        {"RG-58B", "53.5", "0.66", pFParMetre(28.5), millimetres(0.195), "PE", "1900"},
        {"RG-58C", "50", "0.66", pFParMetre(30.8), millimetres(0.195), "PE", "1900"},
        {"RG-58U", "53.5", "0.73", pFParMetre(26.5), millimetres(0.194), "PE", "1900"},
        {"RG-59", "73", "0.66", pFParMetre(21.0), millimetres(0.242), "PE", "2300"},
        {"RG-59 Foam", "75", "0.79", pFParMetre(16.9), millimetres(0.242), "Foam PE", "800"},
        {"RG-59A", "73", "0.66", pFParMetre(21.0), millimetres(0.242), "PE", "2300"},
        {"RG-62", "93", "0.86", pFParMetre(13.5), millimetres(0.242), "Air space PE", "750"},
        {"RG-62 Foam", "95", "0.79", pFParMetre(13.4), millimetres(0.242), "Foam PE", "700"},
        {"RG-62A", "93", "0.86", pFParMetre(13.5), millimetres(0.242), "Air space PE", "750"},
        {"RG-62B", "93", "0.86", pFParMetre(13.5), millimetres(0.242), "Air space PE", "750"},
        {"RG-133A", "95", "0.66", pFParMetre(16.2), millimetres(0.405), "PE", "4000"},
        {"RG-141", "50", "0.70", pFParMetre(29.4), millimetres(0.19), "PTFE", "900"},
        {"RG-141A", "50", "0.70", pFParMetre(29.4), millimetres(0.19), "PTFE", "1900"},
        {"RG-142", "50", "0.70", pFParMetre(29.4), millimetres(0.206), "PTFE", "1900"},
        {"RG-142A", "50", "0.70", pFParMetre(29.4), millimetres(0.206), "PTFE", "1900"},
        {"RG-142B", "50", "0.70", pFParMetre(29.4), millimetres(0.195), "PTFE", "1900"},
        {"RG-174", "50", "0.66", pFParMetre(30.8), millimetres(0.1), "PE", "1500"},
        {"RG-213", "50", "0.66", pFParMetre(30.8), millimetres(0.405), "PE", "5000"},
        {"RG-214", "50", "0.66", pFParMetre(30.8), millimetres(0.425), "PE", "5000"},
        {"RG-215", "50", "0.66", pFParMetre(30.8), millimetres(0.475), "PE", "5000"},
        {"RG-216", "75", "0.66", pFParMetre(20.6), millimetres(0.425), "PE", "5000"},
        {"RG-223", "50", "0.66", pFParMetre(30.8), millimetres(0.212), "PE", "1900"},
        {"Twin lead 75", "75", "0.97", pFParMetre(19.0), "", "", ""},
        {"Twin lead 300", "300", "0.82", pFParMetre(5.8), "", "", ""},
    }};
    // clang-format on
    for (std::size_t row = 1; row <= rows; ++row)
        for (std::size_t column = 1; column <= columns; ++column)
            TableCoaxiaux[row][column] = catalogue[row - 1][column - 1];
}

} // namespace ondelis
