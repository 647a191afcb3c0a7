#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Turns and winding length of a single-layer coil of wanted inductance. Opened alone, and as the companion of
/// panels that find a coil.
class CalculNombreSpires final : public FeuilleCalcul {
public:
    explicit CalculNombreSpires(Desk& desk);

    // clang-format off
    Image ImgBobine    {this, "ImgBobine",     {.picture = "bobine-vue",       .at = { 240, 240, 2250, 1800}}};
    Image ImgDiametre  {this, "ImgDiametre",   {.picture = "bobine-diametre",  .at = {2650, 240, 2250, 1800}}};
    Image ImgEspacement{this, "ImgEspacement", {.picture = "bobine-espacement",.at = {5060, 240, 2250, 1800}}};
    Image ImgLongueur  {this, "ImgLongueur",   {.picture = "bobine-longueur",  .at = {7470, 240, 2250, 1800}}};

    Label        Label1 {this, "Label1",  {.Caption = "Valeur de self recherchée", .at = {240, 2550, 2940, 255}}};
    TextBox      TxtS   {this, "TxtS",    {.at = {3240, 2520, 1200, 315}, .label = &Label1}, &CalculNombreSpires::TxtS_Change};
    OptionButton OptmH  {this, "OptmH",   {.Caption = "mH", .at = {4620, 2527, 720, 300}}, &CalculNombreSpires::OptmH_Click};
    OptionButton OptmmH {this, "OptmmH",  {.Caption = "µH", .at = {5400, 2527, 720, 300}}, &CalculNombreSpires::OptmmH_Click};
    OptionButton OpnH   {this, "OpnH",    {.Caption = "nH", .at = {6180, 2527, 720, 300}}, &CalculNombreSpires::OpnH_Click};
    OptionButton OptpH  {this, "OptpH",   {.Caption = "pH", .at = {6960, 2527, 720, 300}}, &CalculNombreSpires::OptpH_Click};
    Label        Label6 {this, "Label6",  {.Caption = "Diamètre intérieur (mm)", .at = {240, 2910, 2940, 255}}};
    TextBox      TxtD   {this, "TxtD",    {.at = {3240, 2880, 1200, 315}, .label = &Label6}, &CalculNombreSpires::TxtD_Change};
    Label        Label2 {this, "Label2",  {.Caption = "Diamètre du fil (mm)", .at = {240, 3270, 2940, 255}}};
    TextBox      TxtF   {this, "TxtF",    {.at = {3240, 3240, 1200, 315}, .label = &Label2}, &CalculNombreSpires::TxtF_Change};
    Label        Label10{this, "Label10", {.Caption = "Espacement entre spires", .at = {240, 3630, 2940, 255}}};
    TextBox      TxtE   {this, "TxtE",    resultField({3240, 3600, 1200, 315}, &Label10)};
    HScrollBar   HscrlE {this, "HscrlE",  {.Min = 0, .Max = 100, .LargeChange = 10, .at = {240, 3990, 4200, 255}, .label = &Label10}, &CalculNombreSpires::HscrlE_Change};
    Label        Label5 {this, "Label5",  {.Caption = "Faire varier les valeurs avec les potenciomètres", .at = {240, 4320, 5760, 255}}};

    Label        Label4 {this, "Label4",  {.Caption = "Nombre de spires", .at = {6300, 3270, 2040, 255}}};
    TextBox      TxtN   {this, "TxtN",    resultField({8400, 3240, 1320, 315}, &Label4)};
    Label        Label3 {this, "Label3",  {.Caption = "Longueur en mm", .at = {6300, 3630, 2040, 255}}};
    TextBox      TxtL   {this, "TxtL",    resultField({8400, 3600, 1320, 315}, &Label3)};

    Label        Label8 {this, "Label8",  {.at = {240, 4830, 9480, 510}}};
    Label        Label7 {this, "Label7",  {.at = {240, 5460, 9480, 255}}};
    // clang-format on

private:
    void Form_Load() override;
    void OptmH_Click();
    void OptmmH_Click();
    void OpnH_Click();
    void OptpH_Click();
    void TxtS_Change();
    void TxtD_Change();
    void TxtF_Change();
    void HscrlE_Change();
    void Calculer();

    Double UniteSelf; ///< factor of the chosen unit toward µH
    Double S; ///< wanted inductance, in µH
};

} // namespace ondelis
