#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Dimensions of the HB9CV beam for VHF, UHF and SHF.
class HB9CV_VUSHF final : public FeuilleCalcul {
public:
    explicit HB9CV_VUSHF(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "HB9CV_VUSHF", .Caption = "HB9CV VHF-UHF-SHF", .Width = 13230, .Height = 5175}}
    {
    }

    using Me = HB9CV_VUSHF;
    static constexpr Column valeurs{.left = 240, .captions = 3360, .inputs = 2400};

    Label Label1{this, "Label1", valeurs.caption(0, "Fréquence centrale MHz")};
    TextBox TxtFreq{this, "TxtFreq", valeurs.input(Label1), &Me::TxtFreq_Change};
    Label Label2{this, "Label2",
        {.Caption = "Coefficient de calcul du diamètre des brins compris entre 400 et 700",
            .at = lines(valeurs.at(1), 2)}};
    TextBox TxtCoeff{this, "TxtCoeff", valeurs.input(Label2), &Me::TxtCoeff_Change};

    Label Label3{this, "Label3", valeurs.caption(4, "Lambda (m)")};
    TextBox TxtLambda{this, "TxtLambda", valeurs.result(Label3)};
    Label Label4{this, "Label4", valeurs.caption(5, "Diamètre brins (mm)")};
    TextBox TxtDiam{this, "TxtDiam", valeurs.result(Label4)};

    Label Label5{this, "Label5", valeurs.caption(7, "0.92 Lambda / 2 (m)")};
    TextBox Txt092{this, "Txt092", valeurs.result(Label5)};
    Label Label6{this, "Label6", valeurs.caption(8, "Lambda / 16 (m)")};
    TextBox Txt0125{this, "Txt0125", valeurs.result(Label6)};
    Label Label7{this, "Label7", valeurs.caption(9, "Lambda / 8 (m)")};
    TextBox TxtL8{this, "TxtL8", valeurs.result(Label7)};
    Label Label8{this, "Label8", valeurs.caption(10, "Lambda / 16 (m)")};
    TextBox TxtL16_2{this, "TxtL16_2", valeurs.result(Label8)};
    Label Label9{this, "Label9", valeurs.caption(11, "Lambda / 2 (m)")};
    TextBox TxtL2{this, "TxtL2", valeurs.result(Label9)};

    PictureBox Picture1{this, "Picture1", {.picture = "hb9cv-vushf", .at = {6360, 240, 6450, 4215}}};

private:
    void Form_Load() override;
    void TxtFreq_Change();
    void TxtCoeff_Change();
    void Calculer();

    Double FreqHz;
    Double LambdaVu; ///< m
    Double CoeffVu; ///< wavelength over element diameter
};

} // namespace ondelis
