#pragma once

#include <string>
#include <utility>

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// What the band-pass and the band-stop section share: the form, and the road from a field to the results. Each gives
/// its defaults, its guard and its four formulas.
class SectionBande : public FeuilleCalcul {
public:
    /// Where the two forms differ.
    struct Texts {
        std::string picture;
        std::string captionF1;
        std::string captionF2;
        Box letterL1; ///< on the drawing, as the four below
        Box letterC1;
        Box letterL2;
        Box letterC2;
        Box letterZ;
    };

    static constexpr Box drawing{675, 150, 4500, 2580};

    SectionBande(Desk& desk, std::string name, std::string caption, Texts texts)
        : FeuilleCalcul{desk, {.name = std::move(name), .Caption = std::move(caption), .Width = 5970, .Height = 6255}},
          texts_{std::move(texts)}
    {
    }

private:
    const Texts texts_;

public:
    using Me = SectionBande;
    static constexpr Column colonne{.left = 240, .captions = 2880, .resultBackground = mainResultColor};

    Image Schema{this, "Schema", {.picture = texts_.picture, .at = drawing}};
    Label Label1{this, "Label1", {.Caption = "L1", .at = texts_.letterL1, .align = Align::Center}};
    Label Label5{this, "Label5", {.Caption = "C1", .at = texts_.letterC1, .align = Align::Center}};
    Label Label10{this, "Label10", {.Caption = "L2", .at = texts_.letterL2, .align = Align::Center}};
    Label Label11{this, "Label11", {.Caption = "C2", .at = texts_.letterC2, .align = Align::Center}};
    Label Label4{this, "Label4", {.Caption = "Z", .at = texts_.letterZ, .align = Align::Center}};
    Label Label6{this, "Label6", colonne.caption(7.5, texts_.captionF1)};
    TextBox TxtFreq1{this, "TxtFreq1", colonne.input(Label6), &Me::TxtFreq1_Change};
    Label Label2{this, "Label2", colonne.caption(8.5, texts_.captionF2)};
    TextBox TxtFreq2{this, "TxtFreq2", colonne.input(Label2), &Me::TxtFreq2_Change};
    Label Label7{this, "Label7", colonne.caption(9.5, "Impédance de charge")};
    TextBox TxtZCharge{this, "TxtZCharge", colonne.input(Label7), &Me::TxtZCharge_Change};
    Label Label9{this, "Label9", colonne.caption(11, "Self1 en Henry")};
    TextBox TxtSelf1{this, "TxtSelf1", colonne.result(Label9)};
    Label Label8{this, "Label8", colonne.caption(12, "Capacité1 en Farad")};
    TextBox TxtCapa1{this, "TxtCapa1", colonne.result(Label8)};
    Label Label15{this, "Label15", colonne.caption(13, "Self2 en Henry")};
    TextBox TxtSelf2{this, "TxtSelf2", colonne.result(Label15)};
    Label Label14{this, "Label14", colonne.caption(14, "Capacité2 en Farad")};
    TextBox TxtCapa2{this, "TxtCapa2", colonne.result(Label14)};

protected:
    Double F1; ///< Hz
    Double F2; ///< Hz
    Double Z; ///< ohms

private:
    [[nodiscard]] virtual bool Calculable() const = 0;
    /// Henrys, by the width of the band `d` in hertz, as the three below; the two others in farads.
    [[nodiscard]] virtual Double Self1(Double d) const = 0;
    [[nodiscard]] virtual Double Self2(Double d) const = 0;
    [[nodiscard]] virtual Double Capa1(Double d) const = 0;
    [[nodiscard]] virtual Double Capa2(Double d) const = 0;

    void TxtFreq1_Change();
    void TxtFreq2_Change();
    void TxtZCharge_Change();
    void Calculer();
};

} // namespace ondelis
