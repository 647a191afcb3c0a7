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
    Image ImgBobine    {this, "ImgBobine",     {.picture = "bobine-vue",        .at = { 240, 240, 2250, 1800}}};
    Image ImgDiametre  {this, "ImgDiametre",   {.picture = "bobine-diametre",   .at = {2730, 240, 2250, 1800}}};
    Image ImgEspacement{this, "ImgEspacement", {.picture = "bobine-espacement", .at = {5235, 240, 2250, 1800}}};
    Image ImgLongueur  {this, "ImgLongueur",   {.picture = "bobine-longueur",   .at = {7650, 240, 2250, 1800}}};

    Label        Label1 {this, "Label1",  {.Caption = "Valeur de self recherchée", .at = {240, ligne(6.5) + 30, 2580, 255}}};
    TextBox      TxtS   {this, "TxtS",    {.at = {2880, ligne(6.5), 1860, 315}, .label = &Label1}, &CalculNombreSpires::TxtS_Change};
    OptionButton OptmH  {this, "OptmH",   {.Caption = "mH", .at = {4920, ligne(6.5) + 15, 720, 300}}, &CalculNombreSpires::OptmH_Click};
    OptionButton OptmmH {this, "OptmmH",  {.Caption = "µH", .at = {5700, ligne(6.5) + 15, 720, 300}}, &CalculNombreSpires::OptmmH_Click};
    OptionButton OpnH   {this, "OpnH",    {.Caption = "nH", .at = {6480, ligne(6.5) + 15, 720, 300}}, &CalculNombreSpires::OpnH_Click};
    OptionButton OptpH  {this, "OptpH",   {.Caption = "pH", .at = {7260, ligne(6.5) + 15, 720, 300}}, &CalculNombreSpires::OptpH_Click};
    Label        Label6 {this, "Label6",  {.Caption = "Diamètre intérieur (mm)", .at = {240, ligne(7.5) + 30, 2580, 255}}};
    TextBox      TxtD   {this, "TxtD",    {.at = {2880, ligne(7.5), 1860, 315}, .label = &Label6}, &CalculNombreSpires::TxtD_Change};
    Label        Label2 {this, "Label2",  {.Caption = "Diamètre du fil (mm)", .at = {240, ligne(8.5) + 30, 2580, 255}}};
    TextBox      TxtF   {this, "TxtF",    {.at = {2880, ligne(8.5), 1860, 315}, .label = &Label2}, &CalculNombreSpires::TxtF_Change};
    Label        Label10{this, "Label10", {.Caption = "Espacement entre spires", .at = {240, ligne(9.5) + 30, 2580, 255}}};
    TextBox      TxtE   {this, "TxtE",    resultField({2880, ligne(9.5), 1860, 315}, &Label10)};
    HScrollBar   HscrlE {this, "HscrlE",  {.Min = 0, .Max = 100, .LargeChange = 10, .at = {240, ligne(10.5) + 30, 4500, 255}, .label = &Label10}, &CalculNombreSpires::HscrlE_Change};
    Label        Label5 {this, "Label5",  {.Caption = "Faire varier les valeurs avec les potenciomètres", .at = {240, ligne(11.5) + 30, 5760, 255}}};

    Label        Label4 {this, "Label4",  {.Caption = "Nombre de spires", .at = {5400, ligne(8.5) + 30, 1980, 255}}};
    TextBox      TxtN   {this, "TxtN",    resultField({7440, ligne(8.5), 2460, 315}, &Label4)};
    Label        Label3 {this, "Label3",  {.Caption = "Longueur en mm", .at = {5400, ligne(9.5) + 30, 1980, 255}}};
    TextBox      TxtL   {this, "TxtL",    resultField({7440, ligne(9.5), 2460, 315}, &Label3)};

    Label        Label8 {this, "Label8",  {.at = {240, ligne(13), 9660, 510}}};
    Label        Label7 {this, "Label7",  {.at = {240, ligne(15), 9660, 255}}};
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
    Double D; ///< diameter of the former in mm, of the winding in inches once computed
    Double F; ///< diameter of the wire in mm, in inches once computed
};

} // namespace ondelis
