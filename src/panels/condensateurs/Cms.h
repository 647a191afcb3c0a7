#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Marking and size of surface-mount resistors. The value is read as `TxtValeur` times 10 to the power
/// `TxtExposant`.
class Cms final : public FeuilleCalcul {
public:
    explicit Cms(Desk& desk);

    // clang-format off
    Shape         Cadre1        {this, "Cadre1", {.at = {240, 240, 8160, 1860}}};
    Label         LblTaille     {this, "LblTaille",      {.Caption = "Taille CMS", .at = {420, 360, 1320, 255}}};
    ListBox       LstCms        {this, "LstCms",         {.Items = {"402", "603", "805", "1206", "2010"}, .at = {420, 660, 1320, 1260}, .label = &LblTaille}, &Cms::LstCms_Click};
    Label         LblLongueur   {this, "LblLongueur",    {.Caption = "Longueur (mm)", .at = {2040, 690, 1560, 255}}};
    TextBox       TxtLongueur   {this, "TxtLongueur",    resultField({3660, 660, 960, 315}, &LblLongueur)};
    Label         LblLargeur    {this, "LblLargeur",     {.Caption = "Largeur (mm)", .at = {2040, 1050, 1560, 255}}};
    TextBox       TxtLargeur    {this, "TxtLargeur",     resultField({3660, 1020, 960, 315}, &LblLargeur)};
    Image         Schema        {this, "Schema",         {.picture = "cms", .at = {4920, 300, 3300, 1740}}};

    Shape         Cadre2        {this, "Cadre2", {.at = {240, 2220, 8160, 1380}}};
    OptionButton  Opt3Digits    {this, "Opt3Digits",     {.Caption = "Marquage sur 3 digits", .at = {420, 2415, 2520, 300}}};
    OptionButton  Opt4Digits    {this, "Opt4Digits",     {.Caption = "Marquage sur 4 digits", .at = {420, 2775, 2520, 300}}};
    OptionButton  OptE96        {this, "OptE96",         {.Caption = "Série E96", .at = {420, 3135, 2520, 300}}};
    Label         LblMarquage   {this, "LblMarquage",    {.Caption = "Marquage", .at = {3240, 2430, 1500, 255}}};
    TextBox       TxtMarquage   {this, "TxtMarquage",    {.at = {4800, 2400, 1980, 315}, .label = &LblMarquage}, &Cms::TxtMarquage_Change};
    CommandButton BtnCmsCalculer{this, "BtnCmsCalculer", {.Caption = "Calculer", .at = {7020, 2370, 1200, 375}}, &Cms::BtnCmsCalculer_Click};
    Label         LblValeur     {this, "LblValeur",      {.Caption = "Valeur (Ohms)", .at = {3240, 3150, 1500, 255}}};
    TextBox       TxtValeur     {this, "TxtValeur",      openResultField({4800, 3120, 1260, 315}, &LblValeur)};
    Label         LblExposant   {this, "LblExposant",    {.Caption = "x 10 puissance", .at = {6165, 3150, 1395, 255}}};
    TextBox       TxtExposant   {this, "TxtExposant",    openResultField({7620, 3120, 600, 315}, &LblExposant)};
    // clang-format on

private:
    void Form_Load() override;
    void LstCms_Click();
    void TxtMarquage_Change();
    void BtnCmsCalculer_Click();

    void Decoder3Digits();
    void Decoder4Digits();
    void DecoderE96();
};

} // namespace ondelis
