#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The inductance of a hairpin: a wire bent into a long U.
class WireInductance final : public FeuilleCalcul {
public:
    explicit WireInductance(Desk& desk);

    // clang-format off
    Label   LblDiametre  {this, "LblDiametre",   {.Caption = "Diamètre du fil en mm", .at = {240, ligne(0) + 30, 2580, 255}}};
    TextBox TxtDiam      {this, "TxtDiam",       {.at = {2880, ligne(0), 1320, 315}, .label = &LblDiametre}, &WireInductance::TxtDiam_Change};
    Label   LblHaut      {this, "LblHaut",       {.Caption = "Hauteur en mm",         .at = {240, ligne(1) + 30, 2580, 255}}};
    TextBox TxtHaut      {this, "TxtHaut",       {.at = {2880, ligne(1), 1320, 315}, .label = &LblHaut}, &WireInductance::TxtHaut_Change};
    Label   LblLength    {this, "LblLength",     {.Caption = "Longueur en mm",        .at = {240, ligne(2) + 30, 2580, 255}}};
    TextBox TxtLong      {this, "TxtLong",       {.at = {2880, ligne(2), 1320, 315}, .label = &LblLength}, &WireInductance::TxtLong_Change};
    Label   LblSelf      {this, "LblSelf",       {.Caption = "Inductance en H",       .at = {240, ligne(4) + 30, 2580, 255}}};
    TextBox TxtInductance{this, "TxtInductance", resultField({2880, ligne(4), 2040, 315}, &LblSelf)};

    Image   Image2       {this, "Image2",        {.picture = "epingle", .at = {5160, 180, 4500, 2250}}};
    // clang-format on

private:
    void Form_Load() override;
    void TxtDiam_Change();
    void TxtHaut_Change();
    void TxtLong_Change();
    void Calculer();

    Double PouceMm; ///< millimetres in an inch
    Double r; ///< radius of the wire, inches
    Double a; ///< height, inches
    Double b; ///< length, inches
};

} // namespace ondelis
