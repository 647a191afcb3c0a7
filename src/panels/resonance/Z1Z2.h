#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The turns of an auto-transformer for impedance Z2, from the turns for impedance Z1.
class Z1Z2 final : public FeuilleCalcul {
public:
    explicit Z1Z2(Desk& desk);

    // clang-format off
    Label   LblZ1    {this, "LblZ1",     {.Caption = "Z1 en Ohms",              .at = {240, ligne(0) + 30, 3000, 255}}};
    TextBox TxtZ1    {this, "TxtZ1",     {.at = {3300, ligne(0), 1320, 315}, .label = &LblZ1}, &Z1Z2::TxtZ1_Change};
    Label   LblZ2    {this, "LblZ2",     {.Caption = "Z2 en Ohms",              .at = {240, ligne(1) + 30, 3000, 255}}};
    TextBox TxtZ2    {this, "TxtZ2",     {.at = {3300, ligne(1), 1320, 315}, .label = &LblZ2}, &Z1Z2::TxtZ2_Change};
    Label   LblNbSpZ1{this, "LblNbSpZ1", {.Caption = "Nombre de spires pour Z1", .at = {240, ligne(2) + 30, 3000, 255}}};
    TextBox TxtNbSpZ1{this, "TxtNbSpZ1", {.at = {3300, ligne(2), 1320, 315}, .label = &LblNbSpZ1}, &Z1Z2::TxtNbSpZ1_Change};
    Label   LblNbSpZ2{this, "LblNbSpZ2", {.Caption = "Nombre de spires pour Z2", .at = {240, ligne(4) + 30, 3000, 255}}};
    TextBox TxtNbSpZ2{this, "TxtNbSpZ2", resultField({3300, ligne(4), 2400, 315}, &LblNbSpZ2)};

    Image   Image1   {this, "Image1",    {.picture = "autotransformateur", .at = {5940, 180, 3600, 2250}}};
    // clang-format on

private:
    void Form_Load() override;
    void TxtZ1_Change();
    void TxtZ2_Change();
    void TxtNbSpZ1_Change();
    void Calculer();

    Double Z1; ///< ohms
    Double Z2; ///< ohms
    Double N1; ///< turns for Z1
};

} // namespace ondelis
