#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Dimensions of the HB9CV beam for VHF, UHF and SHF.
class HB9CV_VUSHF final : public FeuilleCalcul {
public:
    explicit HB9CV_VUSHF(Desk& desk);

    // clang-format off
    Label   Label1   {this, "Label1",    {.Caption = "Fréquence centrale MHz", .at = {240, ligne(0) + 30, 3360, 255}}};
    TextBox TxtFreq  {this, "TxtFreq",   {.at = {3660, ligne(0), 2400, 315}, .label = &Label1}, &HB9CV_VUSHF::TxtFreq_Change};
    Label   Label2   {this, "Label2",    {.Caption = "Coefficient de calcul du diamètre des brins compris entre 400 et 700",
                                                                               .at = {240, ligne(1) + 30, 3360, 510}}};
    TextBox TxtCoeff {this, "TxtCoeff",  {.at = {3660, ligne(1), 2400, 315}, .label = &Label2}, &HB9CV_VUSHF::TxtCoeff_Change};

    Label   Label3   {this, "Label3",    {.Caption = "Lambda (m)",             .at = {240, ligne(4) + 30, 3360, 255}}};
    TextBox TxtLambda{this, "TxtLambda", resultField({3660, ligne(4), 2400, 315}, &Label3)};
    Label   Label4   {this, "Label4",    {.Caption = "Diamètre brins (mm)",    .at = {240, ligne(5) + 30, 3360, 255}}};
    TextBox TxtDiam  {this, "TxtDiam",   resultField({3660, ligne(5), 2400, 315}, &Label4)};
    Label   Label5   {this, "Label5",    {.Caption = "0.92 Lambda / 2 (m)",    .at = {240, ligne(7) + 30, 3360, 255}}};
    TextBox Txt092   {this, "Txt092",    resultField({3660, ligne(7), 2400, 315}, &Label5)};
    Label   Label6   {this, "Label6",    {.Caption = "Lambda / 16 (m)",        .at = {240, ligne(8) + 30, 3360, 255}}};
    TextBox Txt0125  {this, "Txt0125",   resultField({3660, ligne(8), 2400, 315}, &Label6)};
    Label   Label7   {this, "Label7",    {.Caption = "Lambda / 8 (m)",         .at = {240, ligne(9) + 30, 3360, 255}}};
    TextBox TxtL8    {this, "TxtL8",     resultField({3660, ligne(9), 2400, 315}, &Label7)};
    Label   Label8   {this, "Label8",    {.Caption = "Lambda / 16 (m)",        .at = {240, ligne(10) + 30, 3360, 255}}};
    TextBox TxtL16_2 {this, "TxtL16_2",  resultField({3660, ligne(10), 2400, 315}, &Label8)};
    Label   Label9   {this, "Label9",    {.Caption = "Lambda / 2 (m)",         .at = {240, ligne(11) + 30, 3360, 255}}};
    TextBox TxtL2    {this, "TxtL2",     resultField({3660, ligne(11), 2400, 315}, &Label9)};

    PictureBox Picture1{this, "Picture1", {.picture = "hb9cv-vushf", .at = {6360, 240, 6450, 4215}}};
    // clang-format on

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
