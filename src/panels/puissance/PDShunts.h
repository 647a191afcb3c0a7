#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A galvanometer made an ammeter by a resistor across it, or a voltmeter by a resistor in series with it; one of the
/// two at a time.
class PDShunts final : public FeuilleCalcul {
public:
    explicit PDShunts(Desk& desk);

    // clang-format off
    Shape        Cadre1          {this, "Cadre1", {.at = {240, 240, 9660, 1080}}};
    Label        Label7          {this, "Label7",           {.Caption = "Caractéristiques du galvanomètre", .at = {420, 330, 4440, 315}, .font = {.bold = true}}};
    Label        LblRint         {this, "LblRint",          {.Caption = "Résinstance interne", .at = {420, 840, 2640, 255}}};
    TextBox      TxtResInt       {this, "TxtResInt",        {.at = {3120, 810, 1440, 315}, .label = &LblRint}, &PDShunts::TxtResInt_Change};
    Label        LblDevTot       {this, "LblDevTot",        {.Caption = "I déviation totale µA", .at = {6120, 840, 2100, 255}}};
    TextBox      TxtDevTot       {this, "TxtDevTot",        {.at = {8280, 810, 1440, 315}, .label = &LblDevTot}, &PDShunts::TxtDevTot_Change};

    Shape        Cadre2          {this, "Cadre2", {.at = {240, 1440, 9660, 1980}}};
    OptionButton OptCourant      {this, "OptCourant",       {.Caption = "Calcul Résitance Parallèle", .at = {420, 1545, 2940, 300}}, &PDShunts::OptCourant_Click};
    Label        LblImax         {this, "LblImax",          {.Caption = "Courant max à mesurer (A)", .at = {420, 2190, 2640, 255}}};
    TextBox      TxtImax         {this, "TxtImax",          {.at = {3120, 2160, 1440, 315}, .label = &LblImax}, &PDShunts::TxtImax_Change};
    Label        LblIShunt       {this, "LblIShunt",        {.Caption = "Valeur du shunt", .at = {420, 2550, 2640, 255}}};
    TextBox      TxTShuntI       {this, "TxTShuntI",        {.at = {3120, 2520, 2820, 315}, .BackColor = 0xFFFFC0, .ForeColor = 0xFF80FF, .Locked = true, .font = {.bold = true}, .label = &LblIShunt}};
    Label        LblAmperemetre  {this, "LblAmperemetre",   {.Caption = "Ampèremètre", .at = {6120, 1530, 3600, 315}, .align = Align::Center, .font = {.bold = true}}};
    Image        SchemaCourant   {this, "SchemaCourant",    {.picture = "shunt-amperemetre", .at = {6120, 1860, 3600, 1440}}};
    Label        LblACourant     {this, "LblACourant",      {.Caption = "A", .at = lettre(SchemaCourant.at(), 0.500, 0.250, 240), .align = Align::Center}};

    Shape        Cadre3          {this, "Cadre3", {.at = {240, 3540, 9660, 1560}}};
    OptionButton OptTension      {this, "OptTension",       {.Caption = "Calcul  Résitance Série", .at = {420, 3645, 2940, 300}}, &PDShunts::OptTension_Click};
    Label        LblTensionMax   {this, "LblTensionMax",    {.Caption = "Tension max à mesurer (V)", .at = {420, 4230, 2640, 255}}};
    TextBox      TxtUmax         {this, "TxtUmax",          {.at = {3120, 4200, 1440, 315}, .label = &LblTensionMax}, &PDShunts::TxtUmax_Change};
    Label        LblVShunt       {this, "LblVShunt",        {.Caption = "Valeur du shunt", .at = {420, 4590, 2640, 255}}};
    TextBox      TxtShuntU       {this, "TxtShuntU",        {.at = {3120, 4560, 2820, 315}, .BackColor = 0xFFFFC0, .ForeColor = 0xFF80FF, .Locked = true, .font = {.bold = true}, .label = &LblVShunt}};
    Label        Label4          {this, "Label4",           {.Caption = "Voltmètre", .at = {6120, 3630, 3600, 315}, .align = Align::Center, .font = {.bold = true}}};
    Image        SchemaTension   {this, "SchemaTension",    {.picture = "shunt-voltmetre", .at = {6120, 3960, 3600, 1020}}};
    Label        LblATension     {this, "LblATension",      {.Caption = "A", .at = lettre(SchemaTension.at(), 0.683, 0.618, 240), .align = Align::Center}};
    // clang-format on

private:
    void Form_Load() override;
    void OptCourant_Click();
    void OptTension_Click();
    void TxtDevTot_Change();
    void TxtResInt_Change();
    void TxtUmax_Change();
    void TxtImax_Change();

    void Presenter(bool courant);
    void Calculer();
    void CalculerTension();
    void CalculerCourant();

    Double Imax; ///< A
    Double Umax; ///< V
    Double Rint; ///< of the galvanometer, ohms
    Double Idev; ///< of its full scale, A
};

} // namespace ondelis
