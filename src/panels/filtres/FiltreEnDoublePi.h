#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A band-pass filter of two Pi sections in cascade, C1 L1 C2 and C3 L2 C4.
class FiltreEnDoublePi final : public FeuilleCalcul {
public:
    static constexpr Box drawing{4500, 540, 6300, 2550};

    explicit FiltreEnDoublePi(Desk& desk);

    // clang-format off
    Label   Label19{this, "Label19", {.Caption = "Entrer vos valeurs dans les champs sur fond vert", .at = {240, 570, 4080, 510}}};
    Label   Label8 {this, "Label8",  {.Caption = "Fréquence centrale", .at = {240, 1350, 2160, 255}}};
    TextBox TxtF0  {this, "TxtF0",   {.at = {2460, 1320, 1200, 315}, .BackColor = entree, .label = &Label8}, &FiltreEnDoublePi::TxtF0_Change};
    Label   Label10{this, "Label10", {.Caption = "MHz", .at = {3720, 1350, 540, 255}}};
    Label   Label9 {this, "Label9",  {.Caption = "Bande passante", .at = {240, 1710, 2160, 255}}};
    TextBox TxtBP  {this, "TxtBP",   {.at = {2460, 1680, 1200, 315}, .BackColor = entree, .label = &Label9}, &FiltreEnDoublePi::TxtBP_Change};
    Label   Label11{this, "Label11", {.Caption = "MHz", .at = {3720, 1710, 540, 255}}};
    Label   Label1 {this, "Label1",  {.Caption = "Z in en Ohms", .at = {240, 2070, 2160, 255}}};
    TextBox TxtZin {this, "TxtZin",  {.at = {2460, 2040, 1200, 315}, .BackColor = entree, .label = &Label1}, &FiltreEnDoublePi::TxtZin_Change};
    Label   Label7 {this, "Label7",  {.Caption = "Z out en Ohms", .at = {240, 2430, 2160, 255}}};
    TextBox TxtZout{this, "TxtZout", {.at = {2460, 2400, 1200, 315}, .BackColor = entree, .label = &Label7}, &FiltreEnDoublePi::TxtZout_Change};

    Image   Schema {this, "Schema",  {.picture = "double-pi", .at = drawing}};
    Label   Label2 {this, "Label2",  {.Caption = "C1", .at = lettre(drawing, 0.206, 0.559), .align = Align::Center}};
    Label   Label3 {this, "Label3",  {.Caption = "C2", .at = lettre(drawing, 0.380, 0.559), .align = Align::Center}};
    Label   Label4 {this, "Label4",  {.Caption = "L1", .at = lettre(drawing, 0.295, 0.203), .align = Align::Center}};
    Label   Label6 {this, "Label6",  {.Caption = "C3", .at = lettre(drawing, 0.620, 0.559), .align = Align::Center}};
    Label   Label5 {this, "Label5",  {.Caption = "L2", .at = lettre(drawing, 0.705, 0.203), .align = Align::Center}};
    Label   Label12{this, "Label12", {.Caption = "C4", .at = lettre(drawing, 0.790, 0.559), .align = Align::Center}};

    // Each result stands above or below its part.
    TextBox TxtC1{this, "TxtC1", resultat("C1", {4500, 3120, 1980, 315}, &Label2)};
    TextBox TxtC2{this, "TxtC2", resultat("C2", {5904, 3480, 1980, 315}, &Label3)};
    TextBox TxtL1{this, "TxtL1", resultat("L1", {5368, 180, 1980, 315}, &Label4)};
    TextBox TxtC3{this, "TxtC3", resultat("C3", {7416, 3120, 1980, 315}, &Label6)};
    TextBox TxtL2{this, "TxtL2", resultat("L2", {7951, 180, 1980, 315}, &Label5)};
    TextBox TxtC4{this, "TxtC4", resultat("C4", {8820, 3480, 1980, 315}, &Label12)};
    // clang-format on

private:
    static constexpr Color entree = 0xC0FFC0;

    static TextBox::Design resultat(const char* text, Box at, Label* label);

    void Form_Load() override;
    void TxtF0_Change();
    void TxtBP_Change();
    void TxtZin_Change();
    void TxtZout_Change();
    void CalculerDoublePi();
    Double Controler(Double v);
    void Bobiner();

    Double Echelle; ///< hertz in a megahertz
};

} // namespace ondelis
