#pragma once

#include <string>
#include <utility>

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// What the band-pass and the band-stop section share: the form, and the path from a field to the results. Each
/// supplies its defaults, its guard and its four formulas.
class SectionBande : public FeuilleCalcul {
public:
    /// Where the two forms differ.
    struct Variante {
        const char* picture;
        const char* legendeF1;
        const char* legendeF2;
        Label::Design lettreL1; ///< on the drawing, as the four below
        Label::Design lettreC1;
        Label::Design lettreL2;
        Label::Design lettreC2;
        Label::Design lettreZ;
    };

    static constexpr Box drawing{675, 150, 4500, 2580};

    SectionBande(Runtime& runtime, std::string name, std::string caption, const Variante& variante)
        : FeuilleCalcul{runtime,
            {.name = std::move(name), .Caption = std::move(caption), .Width = 5970, .Height = 6255}},
          variante_{variante}
    {
    }

private:
    const Variante variante_;

public:
    using Me = SectionBande;
    static constexpr Column valeurs{.left = 240, .captions = 2880, .top = 2940, .resultBackground = mainResultColor};

    Image Schema{this, "Schema", {.picture = variante_.picture, .at = drawing}};
    Label Label1{this, "Label1", variante_.lettreL1};
    Label Label5{this, "Label5", variante_.lettreC1};
    Label Label10{this, "Label10", variante_.lettreL2};
    Label Label11{this, "Label11", variante_.lettreC2};
    Label Label4{this, "Label4", variante_.lettreZ};

    Label Label6{this, "Label6", valeurs.caption(0, variante_.legendeF1)};
    TextBox TxtFreq1{this, "TxtFreq1", valeurs.input(Label6), &Me::TxtFreq1_Change};
    Label Label2{this, "Label2", valeurs.caption(1, variante_.legendeF2)};
    TextBox TxtFreq2{this, "TxtFreq2", valeurs.input(Label2), &Me::TxtFreq2_Change};
    Label Label7{this, "Label7", valeurs.caption(2, "Impédance de charge")};
    TextBox TxtZCharge{this, "TxtZCharge", valeurs.input(Label7), &Me::TxtZCharge_Change};

    Label Label9{this, "Label9", valeurs.caption(3.5, "Self1 en Henry")};
    TextBox TxtSelf1{this, "TxtSelf1", valeurs.result(Label9)};
    Label Label8{this, "Label8", valeurs.caption(4.5, "Capacité1 en Farad")};
    TextBox TxtCapa1{this, "TxtCapa1", valeurs.result(Label8)};
    Label Label15{this, "Label15", valeurs.caption(5.5, "Self2 en Henry")};
    TextBox TxtSelf2{this, "TxtSelf2", valeurs.result(Label15)};
    Label Label14{this, "Label14", valeurs.caption(6.5, "Capacité2 en Farad")};
    TextBox TxtCapa2{this, "TxtCapa2", valeurs.result(Label14)};

protected:
    Double F1; ///< Hz
    Double F2; ///< Hz
    Double Z; ///< ohms

private:
    [[nodiscard]] virtual bool Calculable() const = 0;
    /// Henrys, from the bandwidth `d` in hertz, like the three below; the other two in farads.
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
