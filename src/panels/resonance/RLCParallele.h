#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/resonance/CouleursDiagramme.h"

namespace ondelis {

/// A coil with its resistance in parallel with a capacitor, under one volt, swept in frequency: impedances and
/// currents of the two branches, phase, and the diagram of the currents.
class RLCParallele final : public FeuilleCalcul {
public:
    explicit RLCParallele(Desk& desk);

    // clang-format off
    Label      LblR      {this, "LblR",       {.Caption = "R en Ohms", .at = {240, ligne(0) + 30, 2100, 255}}};
    TextBox    TxtR      {this, "TxtR",       {.at = {2400, ligne(0), 1320, 315}, .label = &LblR}, &RLCParallele::TxtR_Change};
    Label      LblL      {this, "LblL",       {.Caption = "L en µH", .at = {240, ligne(1) + 30, 2100, 255}}};
    TextBox    TxtL      {this, "TxtL",       {.at = {2400, ligne(1), 1320, 315}, .label = &LblL}, &RLCParallele::TxtL_Change};
    Label      LblC      {this, "LblC",       {.Caption = "C en pF", .at = {240, ligne(2) + 30, 2100, 255}}};
    TextBox    TxtC      {this, "TxtC",       {.at = {2400, ligne(2), 1320, 315}, .label = &LblC}, &RLCParallele::TxtC_Change};
    Label      Label12   {this, "Label12",    {.Caption = "Fréq de début en MHz", .at = {240, ligne(3) + 30, 2100, 255}}};
    TextBox    TxtFreqDeb{this, "TxtFreqDeb", {.at = {2400, ligne(3), 1320, 315}, .label = &Label12}, &RLCParallele::TxtFreqDeb_Change};
    Label      Label10   {this, "Label10",    {.Caption = "Fréq de fin en MHz", .at = {240, ligne(4) + 30, 2100, 255}}};
    TextBox    TxtFreqFin{this, "TxtFreqFin", {.at = {2400, ligne(4), 1320, 315}, .label = &Label10}, &RLCParallele::TxtFreqFin_Change};
    Label      Label22   {this, "Label22",    {.Caption = "Fréquence", .at = {240, ligne(5.5) + 30, 2100, 255}}};
    HScrollBar HScroll1  {this, "HScroll1",   {.LargeChange = 10, .at = {240, ligne(6.5) + 30, 3810, 255}, .label = &Label22}, &RLCParallele::HScroll1_Change};
    TextBox    TxtFreq   {this, "TxtFreq",    resultField({2400, ligne(5.5), 1320, 315}, &Label22)};

    Label      Label5    {this, "Label5",     {.Caption = "sqr(R² + L² w²)", .at = {240, ligne(8) + 30, 1350, 255}}};
    TextBox    TxtXl     {this, "TxtXl",      resultField({1650, ligne(8), 2400, 315}, &Label5)};
    Label      Label6    {this, "Label6",     {.Caption = "1/Cw", .at = {240, ligne(9) + 30, 1350, 255}}};
    TextBox    TxtXc     {this, "TxtXc",      resultField({1650, ligne(9), 2400, 315}, &Label6)};
    Label      Label15   {this, "Label15",    {.Caption = "Impédance", .at = {240, ligne(10) + 30, 1350, 255}}};
    TextBox    TxtZ      {this, "TxtZ",       resultField({1650, ligne(10), 2400, 315}, &Label15)};
    Label      Label14   {this, "Label14",    {.Caption = "Déphasage", .at = {240, ligne(11) + 30, 1350, 255}}};
    TextBox    TxtPhi    {this, "TxtPhi",     resultField({1650, ligne(11), 2400, 315}, &Label14)};

    Label      Label20   {this, "Label20",    {.Caption = "I1 = ", .at = {240, ligne(12) + 30, 600, 255}}};
    Label      Label13   {this, "Label13",    {.at = {900, ligne(12) + 30, 3150, 255}}};
    Label      Label21   {this, "Label21",    {.Caption = "I2 = ", .at = {240, ligne(13) + 30, 600, 255}}};
    Label      Label16   {this, "Label16",    {.at = {900, ligne(13) + 30, 3150, 255}}};

    Image      Schema    {this, "Schema",     {.picture = "rlc-parallele", .at = {4260, 120, 3705, 2745}}};

    // The diagram. Lines may lie on one another: the later ones are the thinner.
    Label      LblIc     {this, "LblIc",      {.Caption = "Ic en avance sur U", .at = {4260, 3000, 3705, 255}}};
    Shape      Cadre     {this, "Cadre",      {.at = {4260, 3300, 3705, 3420}}};
    Line       Line1     {this, "Line1",      {.X1 = 4560, .Y1 = 5010, .X2 = 7845, .Y2 = 5010, .BorderColor = diagramme::axe}};
    Label      LblU      {this, "LblU",       {.Caption = "U", .at = {7605, 5055, 285, 255}}};
    Line       LXl       {this, "LXl",        {.BorderColor = diagramme::bleu, .BorderWidth = 7, .within = &Cadre}};
    Line       LR        {this, "LR",         {.BorderColor = diagramme::ocre, .BorderWidth = 5, .within = &Cadre}};
    Line       LXc       {this, "LXc",        {.BorderColor = diagramme::vert, .BorderWidth = 4, .within = &Cadre}};
    Line       LRes      {this, "LRes",       {.BorderColor = diagramme::rouge, .BorderWidth = 2, .within = &Cadre}};
    Label      LblIz     {this, "LblIz",      {.Caption = "Iz en retard sur U", .at = {4260, 6765, 1875, 255}}};
    Label      LblZlr    {this, "LblZlr",     {.Caption = "Zlr=sqr(R² + Xl²)", .at = {6195, 6765, 1770, 255}, .align = Align::Right}};

    Line       LegendeXl    {this, "LegendeXl",     {.X1 = 240, .Y1 = 6083, .X2 = 540, .Y2 = 6083, .BorderColor = diagramme::bleu, .BorderWidth = 7}};
    Label      LblLegendeXl {this, "LblLegendeXl",  {.Caption = "Xl / Zlr", .at = {660, 5955, 1500, 255}}};
    Line       LegendeR     {this, "LegendeR",      {.X1 = 240, .Y1 = 6353, .X2 = 540, .Y2 = 6353, .BorderColor = diagramme::ocre, .BorderWidth = 5}};
    Label      LblLegendeR  {this, "LblLegendeR",   {.Caption = "R / Z", .at = {660, 6225, 1500, 255}}};
    Line       LegendeXc    {this, "LegendeXc",     {.X1 = 240, .Y1 = 6623, .X2 = 540, .Y2 = 6623, .BorderColor = diagramme::vert, .BorderWidth = 4}};
    Label      LblLegendeXc {this, "LblLegendeXc",  {.Caption = "Xc", .at = {660, 6495, 1500, 255}}};
    Line       LegendeRes   {this, "LegendeRes",    {.X1 = 240, .Y1 = 6893, .X2 = 540, .Y2 = 6893, .BorderColor = diagramme::rouge, .BorderWidth = 2}};
    Label      LblLegendeRes{this, "LblLegendeRes", {.Caption = "Résultante", .at = {660, 6765, 1500, 255}}};
    // clang-format on

private:
    void Form_Load() override;
    void TxtR_Change();
    void TxtL_Change();
    void TxtC_Change();
    void TxtFreqDeb_Change();
    void TxtFreqFin_Change();
    void HScroll1_Change();
    void Calculer();
    void Tracer(Double Echelle, Double I1, Double I2);

    Double F; ///< Hz
    Double R; ///< ohms
    Double L; ///< H
    Double C; ///< F
    Double Pi; ///< stored by Form_Load
};

} // namespace ondelis
