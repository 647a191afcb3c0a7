#pragma once

#include <string>

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The gamma match that feeds a monopole or a dipole: the length of its rod and its series capacitor. Formulas of The
/// ARRL Antenna Book, 1985.
class GammaMatch final : public FeuilleCalcul {
public:
    explicit GammaMatch(Desk& desk)
        : FeuilleCalcul{desk, {.name = "GammaMatch", .Caption = "Gamma Match", .Width = 12240, .Height = 7755}}
    {
    }

    using Me = GammaMatch;
    static constexpr Column colonne{.left = 240, .captions = 3120, .results = 2355, .top = 900};
    static constexpr Column colonne_2 = colonne.from(2640);
    static constexpr Column colonne_3 = colonne.from(240);

    OptionButton OptMonopole{
        this, "OptMonopole", {.Caption = "Monopôle", .at = {240, 240, 1800, 300}}, &Me::OptMonopole_Click};
    OptionButton OptDipôle{
        this, "OptDipôle", {.Caption = "Dipôle", .at = {2160, 240, 1800, 300}}, &Me::OptDipôle_Click};

    Label LblFreq{this, "LblFreq", colonne.caption(0, "Frequence (MHz)")};
    TextBox TxtFreq{this, "TxtFreq", colonne.input(LblFreq), &Me::TxtFreq_Change};
    Label LblRA{this, "LblRA", colonne.caption(1, "Feed Point Résistance RA  (Ohms)")};
    TextBox TxtRA{this, "TxtRA", colonne.input(LblRA), &Me::TxtRA_Change};
    Label LblXa{this, "LblXa", colonne.caption(2, "Feed Point Réactance  XA (Ohms)")};
    TextBox TxtXa{this, "TxtXa", colonne.input(LblXa), &Me::TxtXa_Change};
    Label LblR0{this, "LblR0", colonne.caption(3, "Feed Line impédance R0 (Ohms)")};
    TextBox TxtR0{this, "TxtR0", colonne.input(LblR0), &Me::TxtR0_Change};

    Label LblDE{this, "LblDE", colonne_2.caption(0, "Diamètre Elément Piloté DE (mm)")};
    TextBox TxtDE{this, "TxtDE", colonne_2.input(LblDE), &Me::TxtDE_Change};
    Label LblDR{this, "LblDR", colonne_2.caption(1, "Diamètre du Gamma DR (mm)")};
    TextBox TxtDR{this, "TxtDR", colonne_2.input(LblDR), &Me::TxtDR_Change};
    Label LblS{this, "LblS", colonne_2.caption(2, "Entre axes S (mm)")};
    TextBox TxtS{this, "TxtS", colonne_2.input(LblS), &Me::TxtS_Change};
    Label Label4{this, "Label4", {.Caption = "Entre-axes conseillé", .at = {240, 3750, 5490, 255}}};

    CommandButton BtnCalculer{
        this, "BtnCalculer", {.Caption = "Calculer", .at = {3420, 4350, 1320, 375}}, &Me::BtnCalculer_Click};

    Label LblLongPilote{this, "LblLongPilote", colonne_3.caption(13.5, "Longueur de brin piloté (mm)")};
    TextBox TxtLongPilote{this, "TxtLongPilote", colonne_3.result(LblLongPilote)};
    Label LblGamma{this, "LblGamma", colonne_3.caption(14.5, "Longueur du Gamma Match (mm)")};
    TextBox TxtGamma{this, "TxtGamma", colonne_3.result(LblGamma)};
    Label LblCapa{this, "LblCapa", colonne_3.caption(15.5, "Capacité du Gamma (pF)")};
    TextBox TxtCapa{this, "TxtCapa", colonne_3.result(LblCapa)};

    Label LblReference{
        this, "LblReference", {.Caption = "Référence :  The ARRL ANTENNA BOOK 1985", .at = {240, 6840, 5490, 255}}};

    // One at a time, at one place.
    Image Image1{this, "Image1", {.picture = "gamma-monopole", .at = {5790, 360, 6300, 6600}}};
    Image Image2{this, "Image2", {.picture = "gamma-dipole", .at = {5790, 360, 6300, 6600}, .Visible = false}};

private:
    void Form_Load() override;
    void OptMonopole_Click();
    void OptDipôle_Click();
    void TxtFreq_Change();
    void TxtRA_Change();
    void TxtXa_Change();
    void TxtR0_Change();
    void TxtDE_Change();
    void TxtDR_Change();
    void TxtS_Change();
    void BtnCalculer_Click();

    /// Says why the value of a field is refused, and empties the field.
    void Refuser(TextBox& champ, const std::string& message);

    // The last accepted values: a refused field leaves its own as it was.
    Double Freq; ///< MHz
    Double R0; ///< impedance of the line, ohms
    Double DE; ///< diameter of the driven element, inches
    Double DR; ///< diameter of the gamma rod, inches
    Double S; ///< spacing of their axes, inches
};

} // namespace ondelis
