#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A line of two parallel wires: its impedance, or the spacing of the wires for a wanted impedance. Each way has three
/// fields of its own, at one place.
class EchelleGrenouille final : public FeuilleCalcul {
public:
    explicit EchelleGrenouille(Desk& desk);

    // clang-format off
    OptionButton OptZ        {this, "OptZ",         {.Caption = "Calcul de l'impédance", .at = {240, 240, 2760, 300}}, &EchelleGrenouille::OptZ_Click};
    OptionButton OptD        {this, "OptD",         {.Caption = "Calcul de l'écartement", .at = {240, 600, 2760, 300}}, &EchelleGrenouille::OptD_Click};

    Label        Label1      {this, "Label1",       {.Caption = "d (mm)", .at = {240, 1170, 2580, 255}}};
    TextBox      TxtDiamBrin {this, "TxtDiamBrin",  {.at = {2880, 1140, 2400, 315}, .label = &Label1}, &EchelleGrenouille::TxtDiamBrin_Change};
    Label        Label2      {this, "Label2",       {.Caption = "D (mm)", .at = {240, 1530, 2580, 255}}};
    TextBox      TxtEcartBrin{this, "TxtEcartBrin", {.at = {2880, 1500, 2400, 315}, .label = &Label2}, &EchelleGrenouille::TxtEcartBrin_Change};
    Label        Label3      {this, "Label3",       {.Caption = "Impédance", .at = {240, 2070, 2580, 255}}};
    TextBox      TxtImpedance{this, "TxtImpedance", resultField({2880, 2040, 2400, 315}, &Label3)};

    Label        LblZ        {this, "LblZ",         {.Caption = "Impédance carecteristique", .at = {240, 1170, 2580, 255}}};
    TextBox      TxtZ        {this, "TxtZ",         {.at = {2880, 1140, 2400, 315}, .label = &LblZ}, &EchelleGrenouille::TxtZ_Change};
    Label        LblAme      {this, "LblAme",       {.Caption = "d (mm)", .at = {240, 1530, 2580, 255}}};
    TextBox      TxtDiamAme  {this, "TxtDiamAme",   {.at = {2880, 1500, 2400, 315}, .label = &LblAme}, &EchelleGrenouille::TxtDiamAme_Change};
    Label        LblEcart    {this, "LblEcart",     {.Caption = "D  (mm)", .at = {240, 2070, 2580, 255}}};
    TextBox      TxtCote     {this, "TxtCote",      resultField({2880, 2040, 2400, 315}, &LblEcart)};

    Image        Image1      {this, "Image1",       {.picture = "echelle-grenouille", .at = {5580, 240, 4500, 2145}}};
    // clang-format on

private:
    void Form_Load() override;
    void OptZ_Click();
    void OptD_Click();
    void TxtDiamAme_Change();
    void TxtZ_Change();
    void TxtEcartBrin_Change();
    void TxtDiamBrin_Change();

    void Presenter(bool impedance);
    void AfficherEcartement();
    void AfficherImpedance();

    Double d; ///< diameter of the wires, mm; of both ways
    Double D; ///< spacing of the wires, mm
    Double Z; ///< ohms
};

} // namespace ondelis
