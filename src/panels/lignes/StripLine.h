#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The inductance of a flat conductor.
class StripLine final : public FeuilleCalcul {
public:
    explicit StripLine(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "StripLine", .Caption = "Strip line", .Width = 9900, .Height = 3090}}
    {
    }

    using Me = StripLine;
    static constexpr Column valeurs{.left = 240, .captions = 2580, .inputs = 1860, .results = 1860};

    Label Label1{this, "Label1", valeurs.caption(0, "Largeur (mm)")};
    TextBox TxtW{this, "TxtW", valeurs.input(Label1), &Me::TxtW_Change};
    Label LblB{this, "LblB", valeurs.caption(1, "Hauteur (mm)")};
    TextBox TxtB{this, "TxtB", valeurs.input(LblB), &Me::TxtB_Change};
    Label Label2{this, "Label2", valeurs.caption(2, "Epaisseur du support (mm)")};
    TextBox TxtH{this, "TxtH", valeurs.input(Label2), &Me::TxtH_Change};

    Label Label3{this, "Label3", valeurs.caption(4, "L (H)")};
    TextBox TxtL{this, "TxtL", valeurs.result(Label3)};

    Image Image1{this, "Image1", {.picture = "ruban", .at = {5040, 240, 4500, 2190}}};

private:
    void Form_Load() override;
    void TxtW_Change();
    void TxtB_Change();
    void TxtH_Change();
    void Calculer();

    Double PouceMm; ///< millimetres in an inch
    Double W; ///< width, inches
    Double B; ///< length, inches
    Double H; ///< thickness of the support, inches
};

} // namespace ondelis
