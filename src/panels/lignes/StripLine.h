#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The inductance of a flat conductor.
class StripLine final : public FeuilleCalcul {
public:
    explicit StripLine(Desk& desk);

    // clang-format off
    Label   Label1{this, "Label1", {.Caption = "Largeur (mm)", .at = {240, ligne(0) + 30, 2580, 255}}};
    TextBox TxtW  {this, "TxtW",   {.at = {2880, ligne(0), 1860, 315}, .label = &Label1}, &StripLine::TxtW_Change};
    Label   LblB  {this, "LblB",   {.Caption = "Hauteur (mm)", .at = {240, ligne(1) + 30, 2580, 255}}};
    TextBox TxtB  {this, "TxtB",   {.at = {2880, ligne(1), 1860, 315}, .label = &LblB}, &StripLine::TxtB_Change};
    Label   Label2{this, "Label2", {.Caption = "Epaisseur du support (mm)", .at = {240, ligne(2) + 30, 2580, 255}}};
    TextBox TxtH  {this, "TxtH",   {.at = {2880, ligne(2), 1860, 315}, .label = &Label2}, &StripLine::TxtH_Change};
    Label   Label3{this, "Label3", {.Caption = "L (H)", .at = {240, ligne(4) + 30, 2580, 255}}};
    TextBox TxtL  {this, "TxtL",   resultField({2880, ligne(4), 1860, 315}, &Label3)};

    Image   Image1{this, "Image1", {.picture = "ruban", .at = {5040, 240, 4500, 2190}}};
    // clang-format on

private:
    void Form_Load() override;
    void TxtW_Change();
    void TxtB_Change();
    void TxtH_Change();
    void Calculer();

    Double PouceMm; ///< millimetres in an inch
    Double W; ///< width, inches
    Double B; ///< length, inches
    Double H; ///< thickness of the support, inches
};

} // namespace ondelis
