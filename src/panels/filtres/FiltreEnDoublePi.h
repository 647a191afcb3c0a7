#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A band-pass filter of two Pi sections in cascade, C1 L1 C2 and C3 L2 C4.
class FiltreEnDoublePi final : public FeuilleCalcul {
public:
    static constexpr Box drawing{4320, 600, 8370, 1800};

    explicit FiltreEnDoublePi(Desk& desk);

    // clang-format off
    Label   Label19{this, "Label19", {.Caption = "Entrer vos valeurs dans les champs sur fond vert", .at = {240, ligne(0) + 30, 5040, 255}}};
    Label   Label8 {this, "Label8",  {.Caption = "Fréquence centrale", .at = {240, ligne(2) + 30, 1860, 255}}};
    TextBox TxtF0  {this, "TxtF0",   {.at = {2160, ligne(2), 1320, 315}, .BackColor = entree, .label = &Label8}, &FiltreEnDoublePi::TxtF0_Change};
    Label   Label10{this, "Label10", {.Caption = "MHz", .at = {3540, ligne(2) + 30, 540, 255}}};
    Label   Label9 {this, "Label9",  {.Caption = "Bande passante", .at = {240, ligne(3) + 30, 1860, 255}}};
    TextBox TxtBP  {this, "TxtBP",   {.at = {2160, ligne(3), 1320, 315}, .BackColor = entree, .label = &Label9}, &FiltreEnDoublePi::TxtBP_Change};
    Label   Label11{this, "Label11", {.Caption = "MHz", .at = {3540, ligne(3) + 30, 540, 255}}};
    Label   Label1 {this, "Label1",  {.Caption = "Z in en Ohms", .at = {240, ligne(4) + 30, 1860, 255}}};
    TextBox TxtZin {this, "TxtZin",  {.at = {2160, ligne(4), 1320, 315}, .BackColor = entree, .label = &Label1}, &FiltreEnDoublePi::TxtZin_Change};
    Label   Label7 {this, "Label7",  {.Caption = "Z out en Ohms", .at = {240, ligne(5) + 30, 1860, 255}}};
    TextBox TxtZout{this, "TxtZout", {.at = {2160, ligne(5), 1320, 315}, .BackColor = entree, .label = &Label7}, &FiltreEnDoublePi::TxtZout_Change};

    Image   Schema {this, "Schema",  {.picture = "double-pi", .at = drawing}};
    Label   Label2 {this, "Label2",  {.Caption = "C1", .at = lettre(drawing, 0.159, 0.567), .align = Align::Center}};
    Label   Label3 {this, "Label3",  {.Caption = "C2", .at = lettre(drawing, 0.416, 0.567), .align = Align::Center}};
    Label   Label4 {this, "Label4",  {.Caption = "L1", .at = lettre(drawing, 0.246, 0.071), .align = Align::Center}};
    Label   Label6 {this, "Label6",  {.Caption = "C3", .at = lettre(drawing, 0.671, 0.567), .align = Align::Center}};
    Label   Label5 {this, "Label5",  {.Caption = "L2", .at = lettre(drawing, 0.754, 0.071), .align = Align::Center}};
    Label   Label12{this, "Label12", {.Caption = "C4", .at = lettre(drawing, 0.925, 0.567), .align = Align::Center}};

    // Each result stands over or under its part.
    TextBox TxtL1{this, "TxtL1", resultat("L1", {5385, 240, 1980, 315}, &Label4)};
    TextBox TxtL2{this, "TxtL2", resultat("L2", {9645, 240, 1980, 315}, &Label5)};
    TextBox TxtC1{this, "TxtC1", resultat("C1", {4320, 2460, 1980, 315}, &Label2)};
    TextBox TxtC2{this, "TxtC2", resultat("C2", {6450, 2460, 1980, 315}, &Label3)};
    TextBox TxtC3{this, "TxtC3", resultat("C3", {8580, 2460, 1980, 315}, &Label6)};
    TextBox TxtC4{this, "TxtC4", resultat("C4", {10710, 2460, 1980, 315}, &Label12)};
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
