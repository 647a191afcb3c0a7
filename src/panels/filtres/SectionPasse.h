#pragma once

#include <string>
#include <utility>

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

class CalculNombreSpires;

/// What the low-pass and the high-pass section share: the form, and the path from a field to the results. Each supplies
/// its defaults, its two formulas, and what it writes into the panel of the number of turns.
class SectionPasse : public FeuilleCalcul {
public:
    /// Where the two forms differ.
    struct Variante {
        const char* picture;
        const char* formuleL;
        const char* formuleC;
        Label::Design lettreL; ///< on the drawing
        Label::Design lettreC;
    };

    static constexpr Box drawing{675, 150, 4500, 2220};

    SectionPasse(Runtime& runtime, std::string name, std::string caption, const Variante& variante)
        : FeuilleCalcul{runtime,
            {.name = std::move(name), .Caption = std::move(caption), .Width = 5970, .Height = 4980}},
          variante_{variante}
    {
    }

private:
    const Variante variante_;

public:
    using Me = SectionPasse;
    static constexpr Column valeurs{.left = 240, .captions = 2880, .top = 2400, .resultBackground = mainResultColor};

    Image Schema{this, "Schema", {.picture = variante_.picture, .at = drawing}};
    Label Label1{this, "Label1", variante_.lettreL};
    Label Label5{this, "Label5", variante_.lettreC};
    Label Label4{this, "Label4", letter("Z", drawing, 0.934, 0.601)};

    Label Label2{this, "Label2", valeurs.caption(0, variante_.formuleL)};
    Label Label3{this, "Label3", {.Caption = variante_.formuleC, .at = rightOf(Label2, 2430)}};
    Label Label6{this, "Label6", valeurs.caption(1, "Fréquence de coupure en Hz")};
    TextBox TxtFreq{this, "TxtFreq", valeurs.input(Label6), &Me::TxtFreq_Change};
    Label Label7{this, "Label7", valeurs.caption(2, "Impédance de charge en Ohms")};
    TextBox TxtZCharge{this, "TxtZCharge", valeurs.input(Label7), &Me::TxtZCharge_Change};

    Label Label9{this, "Label9", valeurs.caption(3.5, "Self en Henry")};
    TextBox TxtSelf{this, "TxtSelf", valeurs.result(Label9)};
    Label Label8{this, "Label8", valeurs.caption(4.5, "Capacité en Farad")};
    TextBox TxtCapa{this, "TxtCapa", valeurs.result(Label8)};

protected:
    Double F; ///< Hz
    Double Z; ///< ohms

private:
    /// Henrys.
    [[nodiscard]] virtual Double L() const = 0;
    /// Farads.
    [[nodiscard]] virtual Double C() const = 0;
    /// Gives the panel of the number of turns, which has the inductor already, the rest of the coil.
    virtual void CompleterNombreSpires(CalculNombreSpires& spires) = 0;

    void TxtFreq_Change();
    void TxtZCharge_Change();
    void Calculer();
};

} // namespace ondelis
