#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/resonance/CouleursDiagramme.h"

namespace ondelis {

/// R, L and C in series under one volt, swept in frequency: reactances, impedance, phase, current, and the diagram
/// of the impedances.
class RLCSerie final : public FeuilleCalcul {
public:
    explicit RLCSerie(Desk& desk);

    // clang-format off
    Label      LblR      {this, "LblR",       {.Caption = "R en Ohms", .at = {240, ligne(0) + 30, 2100, 255}}};
    TextBox    TxtR      {this, "TxtR",       {.at = {2400, ligne(0), 1320, 315}, .label = &LblR}, &RLCSerie::TxtR_Change};
    Label      LblL      {this, "LblL",       {.Caption = "L en µH", .at = {240, ligne(1) + 30, 2100, 255}}};
    TextBox    TxtL      {this, "TxtL",       {.at = {2400, ligne(1), 1320, 315}, .label = &LblL}, &RLCSerie::TxtL_Change};
    Label      LblC      {this, "LblC",       {.Caption = "C en pF", .at = {240, ligne(2) + 30, 2100, 255}}};
    TextBox    TxtC      {this, "TxtC",       {.at = {2400, ligne(2), 1320, 315}, .label = &LblC}, &RLCSerie::TxtC_Change};
    Label      LblFreqDeb{this, "LblFreqDeb", {.Caption = "Fréq de début en MHz", .at = {240, ligne(3) + 30, 2100, 255}}};
    TextBox    TxtFreqDeb{this, "TxtFreqDeb", {.at = {2400, ligne(3), 1320, 315}, .label = &LblFreqDeb}, &RLCSerie::TxtFreqDeb_Change};
    Label      LblFreqFin{this, "LblFreqFin", {.Caption = "Fréq de fin en MHz", .at = {240, ligne(4) + 30, 2100, 255}}};
    TextBox    TxtFreqFin{this, "TxtFreqFin", {.at = {2400, ligne(4), 1320, 315}, .label = &LblFreqFin}, &RLCSerie::TxtFreqFin_Change};
    Label      Label18   {this, "Label18",    {.Caption = "Fréquence active", .at = {240, ligne(5.5) + 30, 2100, 255}}};
    HScrollBar HScroll1  {this, "HScroll1",   {.LargeChange = 10, .at = {240, ligne(6.5) + 30, 4710, 255}, .label = &Label18}, &RLCSerie::HScroll1_Change};
    TextBox    TxtFreq   {this, "TxtFreq",    resultField({2400, ligne(5.5), 1320, 315}, &Label18)};

    Label      LblXl     {this, "LblXl",      {.Caption = "Xl en Ohms", .at = {240, ligne(8) + 30, 2100, 255}}};
    TextBox    TxtXl     {this, "TxtXl",      resultField({2400, ligne(8), 2550, 315}, &LblXl)};
    Label      LblXc     {this, "LblXc",      {.Caption = "Xc en Ohms", .at = {240, ligne(9) + 30, 2100, 255}}};
    TextBox    TxtXc     {this, "TxtXc",      resultField({2400, ligne(9), 2550, 315}, &LblXc)};
    Label      Label15   {this, "Label15",    {.Caption = "Impédance", .at = {240, ligne(10) + 30, 2100, 255}}};
    TextBox    TxtZ      {this, "TxtZ",       resultField({2400, ligne(10), 2550, 315}, &Label15)};
    Label      Label14   {this, "Label14",    {.Caption = "Déphasage", .at = {240, ligne(11) + 30, 2100, 255}}};
    TextBox    TxtPhi    {this, "TxtPhi",     resultField({2400, ligne(11), 2550, 315}, &Label14)};
    Label      Label4    {this, "Label4",     {.Caption = "I commun", .at = {240, ligne(12) + 30, 2100, 255}}};
    Label      Label19   {this, "Label19",    {.at = {2445, ligne(12) + 30, 2505, 255}}};

    Label      LblFormuleXl {this, "LblFormuleXl",  {.Caption = "Xl = L * 2 * Pi * F", .at = {240, ligne(14), 4710, 255}}};
    Label      LblFormuleXc {this, "LblFormuleXc",  {.Caption = "Xc = 1 / (C * 2 * Pi * F)", .at = {240, ligne(15), 4710, 255}}};
    Label      LblFormuleZ  {this, "LblFormuleZ",   {.Caption = "Z = racine [ R² + (Xl - Xc)²]", .at = {240, ligne(16), 4710, 255}}};
    Label      LblFormulePhi{this, "LblFormulePhi", {.Caption = "Phi = atn[ (Xl-Xc) / (R) ]", .at = {240, ligne(17), 4710, 255}}};

    Image      Schema    {this, "Schema",     {.picture = "rlc-serie", .at = {5190, 120, 3765, 2580}}};

    // The diagram: its longest side takes a fifth of the width of the panel, up or down from the origin, or to its
    // right. Lines may lie on one another: the later ones are the thinner.
    Shape      Cadre      {this, "Cadre",       {.at = {5190, 2940, 3765, 3900}}};
    Line       Line3      {this, "Line3",       {.X1 = 5655, .Y1 = 4890, .X2 = 8655, .Y2 = 4890, .BorderColor = diagramme::axe}};
    Line       LXl        {this, "LXl",         {.BorderColor = diagramme::bleu, .BorderWidth = 7, .within = &Cadre}};
    Line       LR         {this, "LR",          {.BorderColor = diagramme::ocre, .BorderWidth = 5, .within = &Cadre}};
    Line       LXc        {this, "LXc",         {.BorderColor = diagramme::vert, .BorderWidth = 4, .within = &Cadre}};
    Line       LResultante{this, "LResultante", {.BorderColor = diagramme::rouge, .BorderWidth = 2, .within = &Cadre}};

    Line       LegendeR         {this, "LegendeR",          {.X1 = 7860, .Y1 = 3187, .X2 = 8160, .Y2 = 3187, .BorderColor = diagramme::ocre, .BorderWidth = 5}};
    Label      LblLegendeR      {this, "LblLegendeR",       {.Caption = "R", .at = {8250, 3060, 600, 255}}};
    Line       LegendeXl        {this, "LegendeXl",         {.X1 = 7860, .Y1 = 3457, .X2 = 8160, .Y2 = 3457, .BorderColor = diagramme::bleu, .BorderWidth = 7}};
    Label      LblLegendeXl     {this, "LblLegendeXl",      {.Caption = "Xl", .at = {8250, 3330, 600, 255}}};
    Line       LegendeXc        {this, "LegendeXc",         {.X1 = 7860, .Y1 = 3727, .X2 = 8160, .Y2 = 3727, .BorderColor = diagramme::vert, .BorderWidth = 4}};
    Label      LblLegendeXc     {this, "LblLegendeXc",      {.Caption = "Xc", .at = {8250, 3600, 600, 255}}};
    Line       LegendeResultante{this, "LegendeResultante", {.X1 = 7860, .Y1 = 3997, .X2 = 8160, .Y2 = 3997, .BorderColor = diagramme::rouge, .BorderWidth = 2}};
    Label      LblLegendeZ      {this, "LblLegendeZ",       {.Caption = "Z", .at = {8250, 3870, 600, 255}}};
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
    void Tracer(Double Xl, Double Xc);

    Double R; ///< ohms
    Double L; ///< H
    Double C; ///< F
    Double Frequence; ///< MHz
};

} // namespace ondelis
