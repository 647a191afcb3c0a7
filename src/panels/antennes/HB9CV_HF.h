#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Dimensions of a two-element phased beam of the HB9CV kind for the HF bands.
class HB9CV_HF final : public FeuilleCalcul {
public:
    explicit HB9CV_HF(Desk& desk);

    // clang-format off
    Label        LblFreq  {this, "LblFreq",   {.Caption = "Fréquence centrale (MHz)",   .at = {240, ligne(0) + 30, 2820, 255}}};
    TextBox      TxtFreq  {this, "TxtFreq",   {.at = {3120, ligne(0), 1860, 315}, .label = &LblFreq}, &HB9CV_HF::TxtFreq_Change};
    OptionButton Option1  {this, "Option1",   {.Caption = "Zc = 150 Ohms", .at = {240, ligne(1) + 15, 2340, 300}}, &HB9CV_HF::Option1_Click};
    OptionButton Option2  {this, "Option2",   {.Caption = "Zc = 300 Ohms", .at = {2640, ligne(1) + 15, 2340, 300}}, &HB9CV_HF::Option2_Click};
    Label        Label1   {this, "Label1",    {.Caption = "Coefficient  diamètre tube", .at = {240, ligne(2) + 30, 2820, 255}}};
    TextBox      TxtCoeff {this, "TxtCoeff",  resultField({3120, ligne(2), 1860, 315}, &Label1)};
    HScrollBar   HScroll1 {this, "HScroll1",  {.Min = 400, .Max = 700, .Value = 400, .SmallChange = 10, .LargeChange = 100,
                                               .at = {240, ligne(3) + 45, 4740, 255}, .label = &Label1}, &HB9CV_HF::HScroll1_Change};

    Label        Label2   {this, "Label2",    {.Caption = "Balun",                      .at = {240, ligne(5) + 30, 2820, 255}}};
    TextBox      TxtBalun {this, "TxtBalun",  resultField({3120, ligne(5), 1860, 315}, &Label2)};
    Label        Lbl092   {this, "Lbl092",    {.Caption = "0.92 * Lambda / 2 (m)",      .at = {240, ligne(6) + 30, 2820, 255}}};
    TextBox      Txt092   {this, "Txt092",    resultField({3120, ligne(6), 1860, 315}, &Lbl092)};
    Label        Lbl025   {this, "Lbl025",    {.Caption = "0.25 * Lambda / 2 (m)",      .at = {240, ligne(7) + 30, 2820, 255}}};
    Label        Lbl030   {this, "Lbl030",    {.Caption = "0.30 * Lambda / 2 (m)",      .at = {240, ligne(7) + 30, 2820, 255}, .Visible = false}};
    TextBox      TxtTmatch{this, "TxtTmatch", {.at = {3120, ligne(7), 1860, 315}, .BackColor = 0xFFFFC0, .Locked = true, .label = &Lbl025,
                                               .otherLabel = &Lbl030}};
    Label        Lbl200   {this, "Lbl200",    {.Caption = "Lambda / 200 (m)",           .at = {240, ligne(8) + 30, 2820, 255}}};
    TextBox      Txt200   {this, "Txt200",    resultField({3120, ligne(8), 1860, 315}, &Lbl200)};
    Label        Label3   {this, "Label3",    {.Caption = "Lambda / 8 (m)",             .at = {240, ligne(9) + 30, 2820, 255}}};
    TextBox      Txt8     {this, "Txt8",      resultField({3120, ligne(9), 1860, 315}, &Label3)};
    Label        Label4   {this, "Label4",    {.Caption = "Lambda / 2 (m)",             .at = {240, ligne(10) + 30, 2820, 255}}};
    TextBox      Txt2     {this, "Txt2",      resultField({3120, ligne(10), 1860, 315}, &Label4)};
    Label        Label5   {this, "Label5",    {.Caption = "Lambda / Coeff (m)",         .at = {240, ligne(11) + 30, 2820, 255}}};
    TextBox      TxtDiam  {this, "TxtDiam",   resultField({3120, ligne(11), 1860, 315}, &Label5)};

    PictureBox   Picture1 {this, "Picture1",  {.picture = "hb9cv-hf", .at = {5280, 240, 6450, 4215}}};
    // clang-format on

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
