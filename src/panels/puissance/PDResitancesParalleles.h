#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A voltage divider of R1, a potentiometer and R2, loaded by Rc at the wiper. Fields are read by the separators of
/// the region.
class PDResitancesParalleles final : public FeuilleCalcul {
public:
    explicit PDResitancesParalleles(Desk& desk);

    // clang-format off
    Label      LblAlim   {this, "LblAlim",    {.Caption = "Alimentation", .at = {240, ligne(0) + 30, 1590, 255}}};
    TextBox    TxtAlim   {this, "TxtAlim",    {.at = {1860, ligne(0), 1920, 315}, .label = &LblAlim}, &PDResitancesParalleles::TxtAlim_Change};
    Label      LblR1     {this, "LblR1",      {.Caption = "Valeur R1", .at = {240, ligne(1) + 30, 1590, 255}}};
    TextBox    TxtR1     {this, "TxtR1",      {.at = {1860, ligne(1), 1920, 315}, .label = &LblR1}, &PDResitancesParalleles::TxtR1_Change};
    Label      LblPot    {this, "LblPot",     {.Caption = "Valeur Pot", .at = {240, ligne(2) + 30, 1590, 255}}};
    TextBox    TxtPot    {this, "TxtPot",     {.at = {1860, ligne(2), 1920, 315}, .label = &LblPot}, &PDResitancesParalleles::TxtPot_Change};
    Label      LblR2     {this, "LblR2",      {.Caption = "ValeurR2", .at = {240, ligne(3) + 30, 1590, 255}}};
    TextBox    TxtR2     {this, "TxtR2",      {.at = {1860, ligne(3), 1920, 315}, .label = &LblR2}, &PDResitancesParalleles::TxtR2_Change};
    Label      LblRc     {this, "LblRc",      {.Caption = "Valeur Rc", .at = {240, ligne(4) + 30, 1590, 255}}};
    TextBox    TxtRc     {this, "TxtRc",      {.at = {1860, ligne(4), 1920, 315}, .label = &LblRc}, &PDResitancesParalleles::TxtRc_Change};

    // The circuit carries its wiper, its currents and its voltage where they are.
    Image      Schema    {this, "Schema",     {.picture = "pont-potentiometre", .at = {4080, 330, 4800, 3540}}};
    VScrollBar VScrollPot{this, "VScrollPot", {.Min = 100, .Max = 0, .Value = 50, .LargeChange = 10, .at = {5295, 870, 255, 1590}, .label = &LblPot}, &PDResitancesParalleles::VScrollPot_Change};
    TextBox    TxtPPot   {this, "TxtPPot",    {.at = {5145, 2520, 555, 315}, .BackColor = 0xE0E0E0, .ForeColor = 0x0000FF, .label = &Label1}};
    Label      Label1    {this, "Label1",     {.Caption = "%", .at = {5730, 2550, 240, 255}}};
    MaskEdBox  MebIp     {this, "MebIp",      {.at = {5940, ligne(0), 1260, 315}, .BackColor = 0xFFFFC0, .label = &LblA}};
    Label      LblA      {this, "LblA",       {.Caption = "Ampères", .at = {7260, ligne(0) + 30, 900, 255}}};
    MaskEdBox  MebIc     {this, "MebIc",      {.at = {7920, 1680, 1260, 315}, .BackColor = 0xFFFFC0, .label = &Lbl2A}};
    Label      Lbl2A     {this, "Lbl2A",      {.Caption = "Ampères", .at = {9240, 1710, 900, 255}}};
    MaskEdBox  MebUs     {this, "MebUs",      {.at = {8700, 2580, 1260, 315}, .BackColor = 0xFFFFC0, .label = &Label2}};
    Label      Label2    {this, "Label2",     {.Caption = "Volts", .at = {10020, 2610, 540, 255}}};

    Label      LblRvrai  {this, "LblRvrai",   {.Caption = "Résitance vue de l'alimentation", .at = {240, 2400, 1590, 510}}};
    TextBox    TxtRAlim  {this, "TxtRAlim",   resultField({1860, 2490, 1920, 315}, &LblRvrai)};
    Label      Label4    {this, "Label4",     {.Caption = "R équivalente Pot-R2-Rc", .at = {240, 3000, 1590, 510}}};
    TextBox    TxtPotR2Rc{this, "TxtPotR2Rc", resultField({1860, 3090, 1920, 315}, &Label4)};
    // clang-format on

private:
    void Form_Load() override;
    void TxtAlim_Change();
    void TxtR1_Change();
    void TxtR2_Change();
    void TxtRc_Change();
    void TxtPot_Change();
    void VScrollPot_Change();

    void Init();
    void Lire(const TextBox& champ, Double& valeur);
    void Calculer();

    Double Alim; ///< V
    Double ValR1; ///< ohms
    Double ValR2; ///< ohms
    Double ValRc; ///< ohms
    Double ValPot; ///< ohms
    Double Curseur; ///< percent of the potentiometer that is under the wiper
};

} // namespace ondelis
