#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The inductance of a single-layer coil from its diameter, winding length and number of turns.
class CalculSelf final : public FeuilleCalcul {
public:
    explicit CalculSelf(Desk& desk);

    // clang-format off
    Label         Label1     {this, "Label1",      {.Caption = "1 - Diamètre intérieur de la self en mm", .at = {240, 270, 4620, 255}}};
    TextBox       TxtD       {this, "TxtD",        {.at = {4920, 240, 1200, 315}, .label = &Label1}, &CalculSelf::TxtD_Change};
    Label         Label2     {this, "Label2",      {.Caption = "2 - Longueur de l'enroulement en mm", .at = {240, 630, 4620, 255}}};
    TextBox       TxtL       {this, "TxtL",        {.at = {4920, 600, 1200, 315}, .label = &Label2}, &CalculSelf::TxtL_Change};
    Label         Label8     {this, "Label8",      {.Caption = "3 - Nombre de spires", .at = {240, 990, 4620, 255}}};
    TextBox       TxtN       {this, "TxtN",        {.at = {4920, 960, 1200, 315}, .label = &Label8}, &CalculSelf::TxtN_Change};
    CommandButton BtnCalculer{this, "BtnCalculer", {.Caption = "Calculer", .at = {4680, 1500, 1440, 375}}, &CalculSelf::BtnCalculer_Click};
    Label         Label5     {this, "Label5",      {.Caption = "Inductance", .at = {240, 2190, 3720, 255}}};
    TextBox       TxtS       {this, "TxtS",        resultField({4080, 2160, 2040, 315}, &Label5)};

    Label         Label3     {this, "Label3",      {.at = {240, 2970, 5880, 1275}}};
    Label         Label7     {this, "Label7",      {.at = {240, 4500, 5880, 255}}};

    Image         ImgCotes   {this, "ImgCotes",    {.picture = "self-cotes", .at = {6420, 240, 3750, 2700}}};
    Image         ImgVue     {this, "ImgVue",      {.picture = "self-vue", .at = {6495, 3060, 3600, 1800}}};
    // clang-format on

private:
    void Form_Load() override;
    void TxtD_Change();
    void TxtL_Change();
    void TxtN_Change();
    void BtnCalculer_Click();

    Double D; ///< mm, then inches once computed
    Double L; ///< mm, then inches once computed
    Double N; ///< turns
};

} // namespace ondelis
