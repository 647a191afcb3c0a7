#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

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
    HScrollBar HScroll1  {this, "HScroll1",   {.LargeChange = 10, .at = {240, ligne(6.5) + 30, 3480, 255}, .label = &Label22}, &RLCParallele::HScroll1_Change};
    TextBox    TxtFreq   {this, "TxtFreq",    resultField({2400, ligne(5.5), 1320, 315}, &Label22)};

    Label      Label5    {this, "Label5",     {.Caption = "sqr(R² + L² w²)", .at = {240, ligne(8.5) + 30, 2100, 255}}};
    TextBox    TxtXl     {this, "TxtXl",      resultField({2400, ligne(8.5), 1320, 315}, &Label5)};
    Label      Label6    {this, "Label6",     {.Caption = "1/Cw", .at = {240, ligne(9.5) + 30, 2100, 255}}};
    TextBox    TxtXc     {this, "TxtXc",      resultField({2400, ligne(9.5), 1320, 315}, &Label6)};
    Label      Label15   {this, "Label15",    {.Caption = "Impédance", .at = {240, ligne(10.5) + 30, 2100, 255}}};
    TextBox    TxtZ      {this, "TxtZ",       resultField({2400, ligne(10.5), 1320, 315}, &Label15)};
    Label      Label14   {this, "Label14",    {.Caption = "Déphasage", .at = {240, ligne(11.5) + 30, 2100, 255}}};
    TextBox    TxtPhi    {this, "TxtPhi",     resultField({2400, ligne(11.5), 1320, 315}, &Label14)};

    Label      Label20   {this, "Label20",    {.Caption = "I1 = ", .at = {240, ligne(13) + 30, 600, 255}}};
    Label      Label13   {this, "Label13",    {.at = {900, ligne(13) + 30, 2820, 255}}};
    Label      Label21   {this, "Label21",    {.Caption = "I2 = ", .at = {240, ligne(14) + 30, 600, 255}}};
    Label      Label16   {this, "Label16",    {.at = {900, ligne(14) + 30, 2820, 255}}};

    Image      Schema    {this, "Schema",     {.picture = "rlc-parallele", .at = {3960, 120, 4005, 2860}}};

    // The diagram. Lines may lie on one another: the later ones are the thinner.
    Shape      Cadre     {this, "Cadre",      {.at = {3960, 3060, 4005, 3900}}};
    Line       Line1     {this, "Line1",      {.X1 = 4560, .Y1 = 5010, .X2 = 7485, .Y2 = 5010, .BorderColor = axe}};
    Line       LXl       {this, "LXl",        {.BorderColor = bleu, .BorderWidth = 7}};
    Line       LR        {this, "LR",         {.BorderColor = ocre, .BorderWidth = 5}};
    Line       LXc       {this, "LXc",        {.BorderColor = vert, .BorderWidth = 4}};
    Line       LRes      {this, "LRes",       {.BorderColor = rouge, .BorderWidth = 2}};
    Label      LblU      {this, "LblU",       {.Caption = "U", .at = {7560, 4882, 285, 255}}};
    Label      LblIc     {this, "LblIc",      {.Caption = "Ic en avance sur U", .at = {4080, 3150, 2040, 255}}};
    Label      LblIz     {this, "LblIz",      {.Caption = "Iz en retard sur U", .at = {4080, 6615, 2040, 255}}};

    Line       LegendeXl   {this, "LegendeXl",    {.X1 = 6480, .Y1 = 3277, .X2 = 6780, .Y2 = 3277, .BorderColor = bleu, .BorderWidth = 7}};
    Label      LblLegendeXl{this, "LblLegendeXl", {.Caption = "Xl / Zlr", .at = {6870, 3150, 1020, 255}}};
    Line       LegendeR    {this, "LegendeR",     {.X1 = 6480, .Y1 = 3547, .X2 = 6780, .Y2 = 3547, .BorderColor = ocre, .BorderWidth = 5}};
    Label      LblLegendeR {this, "LblLegendeR",  {.Caption = "R / Z", .at = {6870, 3420, 1020, 255}}};
    Line       LegendeXc   {this, "LegendeXc",    {.X1 = 6480, .Y1 = 3817, .X2 = 6780, .Y2 = 3817, .BorderColor = vert, .BorderWidth = 4}};
    Label      LblLegendeXc{this, "LblLegendeXc", {.Caption = "Xc", .at = {6870, 3690, 1020, 255}}};
    Line       LegendeRes   {this, "LegendeRes",    {.X1 = 6480, .Y1 = 4087, .X2 = 6780, .Y2 = 4087, .BorderColor = rouge, .BorderWidth = 2}};
    Label      LblLegendeRes{this, "LblLegendeRes", {.Caption = "Résultante", .at = {6870, 3960, 1080, 255}}};
    Label      LblZlr      {this, "LblZlr",       {.Caption = "Zlr=sqr(R² + Xl²)", .at = {6135, 6615, 1710, 255}, .align = Align::Right}};
    // clang-format on

private:
    static constexpr Color axe = 0x8A8A8A;
    static constexpr Color bleu = 0xD08C4A;
    static constexpr Color ocre = 0x1B61B8;
    static constexpr Color vert = 0x3F6B12;
    static constexpr Color rouge = 0x281CD0;

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
