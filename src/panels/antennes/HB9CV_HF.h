#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Dimensions of a two-element phased beam of the HB9CV kind for the HF bands.
class HB9CV_HF final : public FeuilleCalcul {
public:
    explicit HB9CV_HF(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "HB9CV_HF", .Caption = "HB9CV pour bandes HF", .Width = 12150, .Height = 5175}}
    {
    }

    using Me = HB9CV_HF;
    static constexpr Column valeurs{.left = 240, .captions = 2820, .inputs = 1860, .results = 1860};

    Label LblFreq{this, "LblFreq", valeurs.caption(0, "Fréquence centrale (MHz)")};
    TextBox TxtFreq{this, "TxtFreq", valeurs.input(LblFreq), &Me::TxtFreq_Change};
    OptionButton Option1{
        this, "Option1", {.Caption = "Zc = 150 Ohms", .at = under(LblFreq, 2340, 300, 90)}, &Me::Option1_Click};
    OptionButton Option2{
        this, "Option2", {.Caption = "Zc = 300 Ohms", .at = rightOf(Option1, 2340)}, &Me::Option2_Click};
    Label Label1{this, "Label1", valeurs.caption(2, "Coefficient  diamètre tube")};
    TextBox TxtCoeff{this, "TxtCoeff", valeurs.result(Label1)};
    HScrollBar HScroll1{this, "HScroll1",
        {.Min = 400,
            .Max = 700,
            .Value = 400,
            .SmallChange = 10,
            .LargeChange = 100,
            .at = under(Label1, valeurs.across(2).Width, 255, 120),
            .label = &Label1},
        &Me::HScroll1_Change};

    Label Label2{this, "Label2", valeurs.caption(5, "Balun")};
    TextBox TxtBalun{this, "TxtBalun", valeurs.result(Label2)};
    Label Lbl092{this, "Lbl092", valeurs.caption(6, "0.92 * Lambda / 2 (m)")};
    TextBox Txt092{this, "Txt092", valeurs.result(Lbl092)};
    Label Lbl025{this, "Lbl025", valeurs.caption(7, "0.25 * Lambda / 2 (m)")};
    Label Lbl030{this, "Lbl030", {.Caption = "0.30 * Lambda / 2 (m)", .at = Lbl025.at(), .Visible = false}};
    TextBox TxtTmatch{this, "TxtTmatch",
        {.at = beside(Lbl025, valeurs.results),
            .BackColor = resultColor,
            .Locked = true,
            .label = &Lbl025,
            .otherLabel = &Lbl030}};
    Label Lbl200{this, "Lbl200", valeurs.caption(8, "Lambda / 200 (m)")};
    TextBox Txt200{this, "Txt200", valeurs.result(Lbl200)};
    Label Label3{this, "Label3", valeurs.caption(9, "Lambda / 8 (m)")};
    TextBox Txt8{this, "Txt8", valeurs.result(Label3)};
    Label Label4{this, "Label4", valeurs.caption(10, "Lambda / 2 (m)")};
    TextBox Txt2{this, "Txt2", valeurs.result(Label4)};
    Label Label5{this, "Label5", valeurs.caption(11, "Lambda / Coeff (m)")};
    TextBox TxtDiam{this, "TxtDiam", valeurs.result(Label5)};

    PictureBox Picture1{this, "Picture1", {.picture = "hb9cv-hf", .at = {5280, 240, 6450, 4215}}};

private:
    void Form_Load() override;
    void TxtFreq_Change();
    void Option1_Click();
    void Option2_Click();
    void HScroll1_Change();
    void Calculer();

    Double FreqHb; ///< MHz
    Double LambdaHb; ///< m
    Double CoeffHb; ///< wavelength over tube diameter
};

} // namespace ondelis
