#pragma once

#include <string>

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The gamma match that feeds a monopole or a dipole: the length of its rod and its series capacitor. Formulas of The
/// ARRL Antenna Book, 1985.
class GammaMatch final : public FeuilleCalcul {
public:
    explicit GammaMatch(Desk& desk);

    // clang-format off
    OptionButton  OptMonopole  {this, "OptMonopole",   {.Caption = "Monopôle", .at = {240, 240, 1800, 300}}, &GammaMatch::OptMonopole_Click};
    OptionButton  OptDipôle    {this, "OptDipôle",     {.Caption = "Dipôle", .at = {2160, 240, 1800, 300}}, &GammaMatch::OptDipôle_Click};

    Label         LblFreq      {this, "LblFreq",       {.Caption = "Frequence (MHz)", .at = {240, 930, 3150, 255}}};
    TextBox       TxtFreq      {this, "TxtFreq",       {.at = {3420, 900, 1320, 315}, .label = &LblFreq}, &GammaMatch::TxtFreq_Change};
    Label         LblRA        {this, "LblRA",         {.Caption = "Feed Point Résistance RA  (Ohms)", .at = {240, 1290, 3150, 255}}};
    TextBox       TxtRA        {this, "TxtRA",         {.at = {3420, 1260, 1320, 315}, .label = &LblRA}, &GammaMatch::TxtRA_Change};
    Label         LblXa        {this, "LblXa",         {.Caption = "Feed Point Réactance  XA (Ohms)", .at = {240, 1650, 3150, 255}}};
    TextBox       TxtXa        {this, "TxtXa",         {.at = {3420, 1620, 1320, 315}, .label = &LblXa}, &GammaMatch::TxtXa_Change};
    Label         LblR0        {this, "LblR0",         {.Caption = "Feed Line impédance R0 (Ohms)", .at = {240, 2010, 3150, 255}}};
    TextBox       TxtR0        {this, "TxtR0",         {.at = {3420, 1980, 1320, 315}, .label = &LblR0}, &GammaMatch::TxtR0_Change};

    Label         LblDE        {this, "LblDE",         {.Caption = "Diamètre Elément Piloté DE (mm)", .at = {240, 2670, 3150, 255}}};
    TextBox       TxtDE        {this, "TxtDE",         {.at = {3420, 2640, 1320, 315}, .label = &LblDE}, &GammaMatch::TxtDE_Change};
    Label         LblDR        {this, "LblDR",         {.Caption = "Diamètre du Gamma DR (mm)", .at = {240, 3030, 3150, 255}}};
    TextBox       TxtDR        {this, "TxtDR",         {.at = {3420, 3000, 1320, 315}, .label = &LblDR}, &GammaMatch::TxtDR_Change};
    Label         LblS         {this, "LblS",          {.Caption = "Entre axes S (mm)", .at = {240, 3390, 3150, 255}}};
    TextBox       TxtS         {this, "TxtS",          {.at = {3420, 3360, 1320, 315}, .label = &LblS}, &GammaMatch::TxtS_Change};
    Label         Label4       {this, "Label4",        {.Caption = "Entre-axes conseillé", .at = {240, 3750, 5490, 255}}};

    CommandButton BtnCalculer  {this, "BtnCalculer",   {.Caption = "Calculer", .at = {3420, 4350, 1320, 375}}, &GammaMatch::BtnCalculer_Click};

    Label         LblLongPilote{this, "LblLongPilote", {.Caption = "Longueur de brin piloté (mm)", .at = {240, 5130, 3150, 255}}};
    TextBox       TxtLongPilote{this, "TxtLongPilote", resultField({3420, 5100, 2355, 315}, &LblLongPilote)};
    Label         LblGamma     {this, "LblGamma",      {.Caption = "Longueur du Gamma Match (mm)", .at = {240, 5490, 3150, 255}}};
    TextBox       TxtGamma     {this, "TxtGamma",      resultField({3420, 5460, 2355, 315}, &LblGamma)};
    Label         LblCapa      {this, "LblCapa",       {.Caption = "Capacité du Gamma (pF)", .at = {240, 5850, 3150, 255}}};
    TextBox       TxtCapa      {this, "TxtCapa",       resultField({3420, 5820, 2355, 315}, &LblCapa)};

    Label         LblReference {this, "LblReference",  {.Caption = "Référence :  The ARRL ANTENNA BOOK 1985", .at = {240, 6840, 5490, 255}}};

    // One at a time, at one place.
    Image         Image1       {this, "Image1",        {.picture = "gamma-monopole", .at = {5790, 360, 6300, 6600}}};
    Image         Image2       {this, "Image2",        {.picture = "gamma-dipole", .at = {5790, 360, 6300, 6600}, .Visible = false}};
    // clang-format on

private:
    void Form_Load() override;
    void OptMonopole_Click();
    void OptDipôle_Click();
    void TxtFreq_Change();
    void TxtRA_Change();
    void TxtXa_Change();
    void TxtR0_Change();
    void TxtDE_Change();
    void TxtDR_Change();
    void TxtS_Change();
    void BtnCalculer_Click();

    /// Says why the value of a field is refused, and empties the field.
    void Refuser(TextBox& champ, const std::string& message);

    // The last accepted values: a refused field leaves its own as it was.
    Double Freq; ///< MHz
    Double R0; ///< impedance of the line, ohms
    Double DE; ///< diameter of the driven element, inches
    Double DR; ///< diameter of the gamma rod, inches
    Double S; ///< spacing of their axes, inches
};

} // namespace ondelis
