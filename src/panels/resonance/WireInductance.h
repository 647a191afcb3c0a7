#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The inductance of a hairpin: a wire bent into a long U.
class WireInductance final : public FeuilleCalcul {
public:
    explicit WireInductance(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "WireInductance", .Caption = "Inductance d'une épingle", .Width = 10050, .Height = 3150}}
    {
    }

    using Me = WireInductance;
    static constexpr Column valeurs{.left = 240, .captions = 2580, .results = 2040};

    Label LblDiametre{this, "LblDiametre", valeurs.caption(0, "Diamètre du fil en mm")};
    TextBox TxtDiam{this, "TxtDiam", valeurs.input(LblDiametre), &Me::TxtDiam_Change};
    Label LblHaut{this, "LblHaut", valeurs.caption(1, "Hauteur en mm")};
    TextBox TxtHaut{this, "TxtHaut", valeurs.input(LblHaut), &Me::TxtHaut_Change};
    Label LblLength{this, "LblLength", valeurs.caption(2, "Longueur en mm")};
    TextBox TxtLong{this, "TxtLong", valeurs.input(LblLength), &Me::TxtLong_Change};

    Label LblSelf{this, "LblSelf", valeurs.caption(4, "Inductance en H")};
    TextBox TxtInductance{this, "TxtInductance", valeurs.result(LblSelf)};

    Image Image2{this, "Image2", {.picture = "epingle", .at = {5160, 180, 4500, 2250}}};

private:
    void Form_Load() override;
    void TxtDiam_Change();
    void TxtHaut_Change();
    void TxtLong_Change();
    void Calculer();

    Double PouceMm; ///< millimetres in an inch
    Double r; ///< radius of the wire, inches
    Double a; ///< height, inches
    Double b; ///< length, inches
};

} // namespace ondelis
