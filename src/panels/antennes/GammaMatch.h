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
    explicit GammaMatch(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "GammaMatch", .Caption = "Gamma Match", .Width = 12240, .Height = 7755}}
    {
    }

    using Me = GammaMatch;
    static constexpr Column monopole{.left = 240, .captions = 1800};
    static constexpr Column dipole{.left = 2160, .captions = 1800};
    static constexpr Column antenne{.left = 240, .captions = 3120, .results = 2355, .top = 900};
    static constexpr Column gamma = antenne.from(2640);
    static constexpr Column resultats = antenne.from(5100);
    static constexpr Column remarques{.left = 240, .captions = 5490};

    OptionButton OptMonopole{this, "OptMonopole", monopole.option(0, "Monopôle"), &Me::OptMonopole_Click};
    OptionButton OptDipôle{this, "OptDipôle", dipole.option(0, "Dipôle"), &Me::OptDipôle_Click};

    Label LblFreq{this, "LblFreq", antenne.caption(0, "Frequence (MHz)")};
    TextBox TxtFreq{this, "TxtFreq", antenne.input(LblFreq), &Me::TxtFreq_Change};
    Label LblRA{this, "LblRA", antenne.caption(1, "Feed Point Résistance RA  (Ohms)")};
    TextBox TxtRA{this, "TxtRA", antenne.input(LblRA), &Me::TxtRA_Change};
    Label LblXa{this, "LblXa", antenne.caption(2, "Feed Point Réactance  XA (Ohms)")};
    TextBox TxtXa{this, "TxtXa", antenne.input(LblXa), &Me::TxtXa_Change};
    Label LblR0{this, "LblR0", antenne.caption(3, "Feed Line impédance R0 (Ohms)")};
    TextBox TxtR0{this, "TxtR0", antenne.input(LblR0), &Me::TxtR0_Change};

    Label LblDE{this, "LblDE", gamma.caption(0, "Diamètre Elément Piloté DE (mm)")};
    TextBox TxtDE{this, "TxtDE", gamma.input(LblDE), &Me::TxtDE_Change};
    Label LblDR{this, "LblDR", gamma.caption(1, "Diamètre du Gamma DR (mm)")};
    TextBox TxtDR{this, "TxtDR", gamma.input(LblDR), &Me::TxtDR_Change};
    Label LblS{this, "LblS", gamma.caption(2, "Entre axes S (mm)")};
    TextBox TxtS{this, "TxtS", gamma.input(LblS), &Me::TxtS_Change};
    Label Label4{this, "Label4", remarques.from(gamma.top).caption(3, "Entre-axes conseillé")};

    CommandButton BtnCalculer{this, "BtnCalculer", gamma.button(4.75, "Calculer"), &Me::BtnCalculer_Click};

    Label LblLongPilote{this, "LblLongPilote", resultats.caption(0, "Longueur de brin piloté (mm)")};
    TextBox TxtLongPilote{this, "TxtLongPilote", resultats.result(LblLongPilote)};
    Label LblGamma{this, "LblGamma", resultats.caption(1, "Longueur du Gamma Match (mm)")};
    TextBox TxtGamma{this, "TxtGamma", resultats.result(LblGamma)};
    Label LblCapa{this, "LblCapa", resultats.caption(2, "Capacité du Gamma (pF)")};
    TextBox TxtCapa{this, "TxtCapa", resultats.result(LblCapa)};

    Label LblReference{
        this, "LblReference", remarques.from(resultats.top).caption(4.75, "Référence :  The ARRL ANTENNA BOOK 1985")};

    // One at a time, at one place.
    Image Image1{this, "Image1", {.picture = "gamma-monopole", .at = {5790, 360, 6300, 6600}}};
    Image Image2{this, "Image2", {.picture = "gamma-dipole", .at = Image1.at(), .Visible = false}};

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

    // The last accepted values: a refused field leaves its value unchanged.
    Double Freq; ///< MHz
    Double R0; ///< impedance of the line, ohms
    Double DE; ///< diameter of the driven element, inches
    Double DR; ///< diameter of the gamma rod, inches
    Double S; ///< spacing of their axes, inches
};

} // namespace ondelis
