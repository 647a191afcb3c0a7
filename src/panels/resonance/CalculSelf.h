#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The inductance of a single-layer coil from its diameter, winding length and number of turns.
class CalculSelf final : public FeuilleCalcul {
public:
    explicit CalculSelf(Desk& desk);

    // clang-format off
    Image         ImgCotes   {this, "ImgCotes",    {.picture = "self-cotes", .at = {240, 240, 5100, 2460}}};
    Image         ImgVue     {this, "ImgVue",      {.picture = "self-vue", .at = {5715, 240, 4500, 2460}}};

    Label         Label1     {this, "Label1",      {.Caption = "1 - Diamètre intérieur de la self en mm", .at = {240, ligne(7.5) + 30, 3900, 255}}};
    TextBox       TxtD       {this, "TxtD",        {.at = {4200, ligne(7.5), 1320, 315}, .label = &Label1}, &CalculSelf::TxtD_Change};
    Label         Label2     {this, "Label2",      {.Caption = "2 - Longueur de l'enroulement en mm", .at = {240, ligne(8.5) + 30, 3900, 255}}};
    TextBox       TxtL       {this, "TxtL",        {.at = {4200, ligne(8.5), 1320, 315}, .label = &Label2}, &CalculSelf::TxtL_Change};
    Label         Label8     {this, "Label8",      {.Caption = "3 - Nombre de spires", .at = {240, ligne(9.5) + 30, 3900, 255}}};
    TextBox       TxtN       {this, "TxtN",        {.at = {4200, ligne(9.5), 1320, 315}, .label = &Label8}, &CalculSelf::TxtN_Change};
    CommandButton BtnCalculer{this, "BtnCalculer", {.Caption = "Calculer", .at = {7815, ligne(7.5), 2400, 375}}, &CalculSelf::BtnCalculer_Click};
    Label         Label5     {this, "Label5",      {.Caption = "Inductance", .at = {6360, ligne(9.5) + 30, 1395, 255}}};
    TextBox       TxtS       {this, "TxtS",        resultField({7815, ligne(9.5), 2400, 315}, &Label5)};

    Label         Label3     {this, "Label3",      {.at = {240, ligne(11.25), 9975, 510}}};
    Label         Label7     {this, "Label7",      {.at = {240, ligne(13.25), 9975, 255}}};
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
