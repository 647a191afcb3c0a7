#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Dimensions of a double quad antenna from its frequency.
class DoubleQuad final : public FeuilleCalcul {
public:
    explicit DoubleQuad(Desk& desk);

    // clang-format off
    Label   Label1   {this, "Label1",    {.Caption = "Frequence (MHz",        .at = {240, ligne(0) + 30, 2160, 255}}};
    TextBox TxtFreq  {this, "TxtFreq",   {.at = {2460, ligne(0), 1320, 315}, .label = &Label1}, &DoubleQuad::TxtFreq_Change};

    Label   Label2   {this, "Label2",    {.Caption = "Lambda (mm)",           .at = {240, ligne(2.5) + 30, 2160, 255}}};
    TextBox TxtLambda{this, "TxtLambda", resultField({2460, ligne(2.5), 2400, 315}, &Label2)};
    Label   Label3   {this, "Label3",    {.Caption = "Lambda / 4 (mm)",       .at = {240, ligne(3.5) + 30, 2160, 255}}};
    TextBox TxtL4    {this, "TxtL4",     resultField({2460, ligne(3.5), 2400, 315}, &Label3)};
    Label   Label4   {this, "Label4",    {.Caption = "4.5 * Lambda / 4 (mm)", .at = {240, ligne(4.5) + 30, 2160, 255}}};
    TextBox Txt45L4  {this, "Txt45L4",   resultField({2460, ligne(4.5), 2400, 315}, &Label4)};
    Label   Label5   {this, "Label5",    {.Caption = "3 * Lambda / 4 (mm)",   .at = {240, ligne(5.5) + 30, 2160, 255}}};
    TextBox Txt3L4   {this, "Txt3L4",    resultField({2460, ligne(5.5), 2400, 315}, &Label5)};
    Label   Label6   {this, "Label6",    {.Caption = "0.136 * Lambda  (mm)",  .at = {240, ligne(6.5) + 30, 2160, 255}}};
    TextBox Txt0136L {this, "Txt0136L",  resultField({2460, ligne(6.5), 2400, 315}, &Label6)};

    PictureBox Picture1{this, "Picture1", {.picture = "double-quad", .at = {5160, 240, 6000, 2595}}};
    // clang-format on

private:
    void Form_Load() override;
    void TxtFreq_Change();

    Double FreqDq; ///< MHz
    Double LambdaDq; ///< mm
    Double QuartLambda; ///< mm
};

} // namespace ondelis
