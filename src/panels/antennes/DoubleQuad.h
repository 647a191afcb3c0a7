#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Dimensions of a double quad antenna from its frequency.
class DoubleQuad final : public FeuilleCalcul {
public:
    explicit DoubleQuad(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "DoubleQuad", .Caption = "Double Quad", .Width = 11580, .Height = 3555}}
    {
    }

    using Me = DoubleQuad;
    static constexpr Column valeurs{.left = 240, .captions = 2160};

    Label Label1{this, "Label1", valeurs.caption(0, "Frequence (MHz")};
    TextBox TxtFreq{this, "TxtFreq", valeurs.input(Label1), &Me::TxtFreq_Change};

    Label Label2{this, "Label2", valeurs.caption(2.5, "Lambda (mm)")};
    TextBox TxtLambda{this, "TxtLambda", valeurs.result(Label2)};
    Label Label3{this, "Label3", valeurs.caption(3.5, "Lambda / 4 (mm)")};
    TextBox TxtL4{this, "TxtL4", valeurs.result(Label3)};
    Label Label4{this, "Label4", valeurs.caption(4.5, "4.5 * Lambda / 4 (mm)")};
    TextBox Txt45L4{this, "Txt45L4", valeurs.result(Label4)};
    Label Label5{this, "Label5", valeurs.caption(5.5, "3 * Lambda / 4 (mm)")};
    TextBox Txt3L4{this, "Txt3L4", valeurs.result(Label5)};
    Label Label6{this, "Label6", valeurs.caption(6.5, "0.136 * Lambda  (mm)")};
    TextBox Txt0136L{this, "Txt0136L", valeurs.result(Label6)};

    PictureBox Picture1{this, "Picture1", {.picture = "double-quad", .at = {5160, 240, 6000, 2595}}};

private:
    void Form_Load() override;
    void TxtFreq_Change();

    Double FreqDq; ///< MHz
    Double LambdaDq; ///< mm
    Double QuartLambda; ///< mm
};

} // namespace ondelis
