#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The turns of an auto-transformer for impedance Z2, from the turns for impedance Z1.
class Z1Z2 final : public FeuilleCalcul {
public:
    explicit Z1Z2(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Z1Z2", .Caption = "Z1 vers Z2", .Width = 9930, .Height = 3105}}
    {
    }

    using Me = Z1Z2;
    static constexpr Column valeurs{.left = 240, .captions = 3000};

    Label LblZ1{this, "LblZ1", valeurs.caption(0, "Z1 en Ohms")};
    TextBox TxtZ1{this, "TxtZ1", valeurs.input(LblZ1), &Me::TxtZ1_Change};
    Label LblZ2{this, "LblZ2", valeurs.caption(1, "Z2 en Ohms")};
    TextBox TxtZ2{this, "TxtZ2", valeurs.input(LblZ2), &Me::TxtZ2_Change};
    Label LblNbSpZ1{this, "LblNbSpZ1", valeurs.caption(2, "Nombre de spires pour Z1")};
    TextBox TxtNbSpZ1{this, "TxtNbSpZ1", valeurs.input(LblNbSpZ1), &Me::TxtNbSpZ1_Change};

    Label LblNbSpZ2{this, "LblNbSpZ2", valeurs.caption(4, "Nombre de spires pour Z2")};
    TextBox TxtNbSpZ2{this, "TxtNbSpZ2", valeurs.result(LblNbSpZ2)};

    Image Image1{this, "Image1", {.picture = "autotransformateur", .at = {5940, 180, 3600, 2250}}};

private:
    void Form_Load() override;
    void TxtZ1_Change();
    void TxtZ2_Change();
    void TxtNbSpZ1_Change();
    void Calculer();

    Double Z1; ///< ohms
    Double Z2; ///< ohms
    Double N1; ///< turns for Z1
};

} // namespace ondelis
