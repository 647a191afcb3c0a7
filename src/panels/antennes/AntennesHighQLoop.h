#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A small tuned polygonal loop of high Q for a band of frequencies, and what it does at both edges of the band.
class AntennesHighQLoop final : public FeuilleCalcul {
public:
    explicit AntennesHighQLoop(Desk& desk);

    // clang-format off
    Label         LblFreqMin     {this, "LblFreqMin",      {.Caption = "Fréquence Mini en MHz", .at = {240, 270, 2520, 255}}};
    TextBox       TxtFreqMin     {this, "TxtFreqMin",      {.at = {2820, 240, 1320, 315}, .label = &LblFreqMin}, &AntennesHighQLoop::TxtFreqMin_Change};
    Label         LblFreqMax     {this, "LblFreqMax",      {.Caption = "Fréquence Maxi en MHz", .at = {240, 630, 2520, 255}}};
    TextBox       TxtFreqMax     {this, "TxtFreqMax",      {.at = {2820, 600, 1320, 315}, .label = &LblFreqMax}, &AntennesHighQLoop::TxtFreqMax_Change};
    Label         LblDeltaFMin   {this, "LblDeltaFMin",    {.Caption = "DeltaF Mini en KHz", .at = {240, 990, 2520, 255}}};
    TextBox       TxtDeltaFMin   {this, "TxtDeltaFMin",    {.at = {2820, 960, 1320, 315}, .label = &LblDeltaFMin}, &AntennesHighQLoop::TxtDeltaFMin_Change};
    Label         LblDeltaFMax   {this, "LblDeltaFMax",    {.Caption = "DeltaF Maxi en KHz", .at = {240, 1350, 2520, 255}}};
    TextBox       TxtDeltaFMax   {this, "TxtDeltaFMax",    {.at = {2820, 1320, 1320, 315}, .label = &LblDeltaFMax}, &AntennesHighQLoop::TxtDeltaFMax_Change};
    Label         LblNbreCotes   {this, "LblNbreCotes",    {.Caption = "Nombre de cotes", .at = {240, 1785, 2520, 255}}};
    ListBox       LstNbreCotes   {this, "LstNbreCotes",    {.Items = {"3", "4", "6", "8"}, .at = {2820, 1755, 1320, 1020}, .label = &LblNbreCotes}, &AntennesHighQLoop::LstNbreCotes_Click};
    Label         LblLambdaSur   {this, "LblLambdaSur",    {.Caption = "Lambda sur ...", .at = {240, 2925, 2520, 255}}};
    ListBox       LstLambdaSur   {this, "LstLambdaSur",    {.Items = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13"}, .at = {2820, 2895, 1320, 3180}, .label = &LblLambdaSur}, &AntennesHighQLoop::LstLambdaSur_Click};
    Label         LblPuissance   {this, "LblPuissance",    {.Caption = "Puissance utilisée en Watts", .at = {240, 6225, 2520, 255}}};
    TextBox       TxtPuissance   {this, "TxtPuissance",    {.at = {2820, 6195, 1320, 315}, .label = &LblPuissance}, &AntennesHighQLoop::TxtPuissance_Change};
    CommandButton BtnCalculer    {this, "BtnCalculer",     {.Caption = "Calculer", .at = {2820, 6705, 1320, 375}}, &AntennesHighQLoop::BtnCalculer_Click};

    Label         LblFreqMoy     {this, "LblFreqMoy",      {.Caption = "Fréquence Moy en MHz", .at = {4440, 270, 2280, 255}}};
    TextBox       TxtFreqMoy     {this, "TxtFreqMoy",      champ({6780, 240, 2400, 315}, &LblFreqMoy)};
    Label         LblDeltaFMoy   {this, "LblDeltaFMoy",    {.Caption = "DeltaF Moy en kHz", .at = {4440, 630, 2280, 255}}};
    TextBox       TxtDeltaFMoy   {this, "TxtDeltaFMoy",    champ({6780, 600, 2400, 315}, &LblDeltaFMoy)};
    Label         LblLambdaMoy   {this, "LblLambdaMoy",    {.Caption = "Lambda moy en m", .at = {4440, 990, 2280, 255}}};
    TextBox       TxtLambdaMoy   {this, "TxtLambdaMoy",    champ({6780, 960, 2400, 315}, &LblLambdaMoy)};
    Label         LblLongueurCote{this, "LblLongueurCote", {.Caption = "Longueur cote en cm", .at = {4440, 1350, 2280, 255}}};
    TextBox       TxtLongueurCote{this, "TxtLongueurCote", champ({6780, 1320, 2400, 315}, &LblLongueurCote)};
    Label         LblRayon       {this, "LblRayon",        {.Caption = "Rayon de la loop en cm", .at = {4440, 1710, 2280, 255}}};
    TextBox       TxtRayon       {this, "TxtRayon",        champ({6780, 1680, 2400, 315}, &LblRayon)};
    Label         LblSurface     {this, "LblSurface",      {.Caption = "Surface de la loop en m²", .at = {4440, 2070, 2280, 255}}};
    TextBox       TxtSurface     {this, "TxtSurface",      champ({6780, 2040, 2400, 315}, &LblSurface)};
    Label         LblInductance  {this, "LblInductance",   {.Caption = "Inductance en µH", .at = {4440, 2430, 2280, 255}}};
    TextBox       TxtInductance  {this, "TxtInductance",   champ({6780, 2400, 2400, 315}, &LblInductance)};
    PictureBox    Picture2       {this, "Picture2",        {.picture = "high-q-loop", .at = {4440, 2955, 4680, 4065}}};

    Frame         FrmFreqMin     {this, "FrmFreqMin",      {.Caption = "Fonctionnement à la fréquence minimum", .at = {9480, 180, 4380, 3360}}};
    Label         LblQ_FreqMin   {this, "LblQ_FreqMin",    {.Caption = "Q", .at = {180, 375, 1560, 255}, .container = &FrmFreqMin}};
    TextBox       TxtQ_FreqMin   {this, "TxtQ_FreqMin",    champ({1800, 345, 2400, 315}, &LblQ_FreqMin, &FrmFreqMin)};
    Label         LblXL_FreqMin  {this, "LblXL_FreqMin",   {.Caption = "XL", .at = {180, 735, 1560, 255}, .container = &FrmFreqMin}};
    TextBox       TxtXL_FreqMin  {this, "TxtXL_FreqMin",   champ({1800, 705, 2400, 315}, &LblXL_FreqMin, &FrmFreqMin)};
    Label         LblRR_FreqMin  {this, "LblRR_FreqMin",   {.Caption = "RR", .at = {180, 1095, 1560, 255}, .container = &FrmFreqMin}};
    TextBox       TxtRR_FreqMin  {this, "TxtRR_FreqMin",   champ({1800, 1065, 2400, 315}, &LblRR_FreqMin, &FrmFreqMin)};
    Label         LblRL_FreqMin  {this, "LblRL_FreqMin",   {.Caption = "RL", .at = {180, 1455, 1560, 255}, .container = &FrmFreqMin}};
    TextBox       TxtRL_FreqMin  {this, "TxtRL_FreqMin",   champ({1800, 1425, 2400, 315}, &LblRL_FreqMin, &FrmFreqMin)};
    Label         LblVC_FreqMin  {this, "LblVC_FreqMin",   {.Caption = "Vc", .at = {180, 1815, 1560, 255}, .container = &FrmFreqMin}};
    TextBox       TxtVC_FreqMin  {this, "TxtVC_FreqMin",   champ({1800, 1785, 2400, 315}, &LblVC_FreqMin, &FrmFreqMin)};
    Label         LblIL_FreqMin  {this, "LblIL_FreqMin",   {.Caption = "IL", .at = {180, 2175, 1560, 255}, .container = &FrmFreqMin}};
    TextBox       TxtIL_FreqMin  {this, "TxtIL_FreqMin",   champ({1800, 2145, 2400, 315}, &LblIL_FreqMin, &FrmFreqMin)};
    Label         LblNeta_FreqMin{this, "LblNeta_FreqMin", {.Caption = "Efficacite", .at = {180, 2535, 1560, 255}, .container = &FrmFreqMin}};
    TextBox       TxtNeta_FreqMin{this, "TxtNeta_FreqMin", champ({1800, 2505, 2400, 315}, &LblNeta_FreqMin, &FrmFreqMin)};
    Label         LblCf_FreqMin  {this, "LblCf_FreqMin",   {.Caption = "Condensateur F", .at = {180, 2895, 1560, 255}, .container = &FrmFreqMin}};
    TextBox       TxtCf_FreqMin  {this, "TxtCf_FreqMin",   champ({1800, 2865, 2400, 315}, &LblCf_FreqMin, &FrmFreqMin)};

    Frame         FrmFreqMax     {this, "FrmFreqMax",      {.Caption = "Fonctionnement à la fréquence maximum", .at = {9480, 3720, 4380, 3360}}};
    Label         LblQ_FreqMax   {this, "LblQ_FreqMax",    {.Caption = "Q", .at = {180, 375, 1560, 255}, .container = &FrmFreqMax}};
    TextBox       TxtQ_FreqMax   {this, "TxtQ_FreqMax",    champ({1800, 345, 2400, 315}, &LblQ_FreqMax, &FrmFreqMax)};
    Label         LblXL_FreqMax  {this, "LblXL_FreqMax",   {.Caption = "XL", .at = {180, 735, 1560, 255}, .container = &FrmFreqMax}};
    TextBox       TxtXL_FreqMax  {this, "TxtXL_FreqMax",   champ({1800, 705, 2400, 315}, &LblXL_FreqMax, &FrmFreqMax)};
    Label         LblRR_FreqMax  {this, "LblRR_FreqMax",   {.Caption = "RR", .at = {180, 1095, 1560, 255}, .container = &FrmFreqMax}};
    TextBox       TxtRR_FreqMax  {this, "TxtRR_FreqMax",   champ({1800, 1065, 2400, 315}, &LblRR_FreqMax, &FrmFreqMax)};
    Label         LblRL_FreqMax  {this, "LblRL_FreqMax",   {.Caption = "RL", .at = {180, 1455, 1560, 255}, .container = &FrmFreqMax}};
    TextBox       TxtRL_FreqMax  {this, "TxtRL_FreqMax",   champ({1800, 1425, 2400, 315}, &LblRL_FreqMax, &FrmFreqMax)};
    Label         LblVC_FreqMax  {this, "LblVC_FreqMax",   {.Caption = "Vc", .at = {180, 1815, 1560, 255}, .container = &FrmFreqMax}};
    TextBox       TxtVC_FreqMax  {this, "TxtVC_FreqMax",   champ({1800, 1785, 2400, 315}, &LblVC_FreqMax, &FrmFreqMax)};
    Label         LblIL_FreqMax  {this, "LblIL_FreqMax",   {.Caption = "IL", .at = {180, 2175, 1560, 255}, .container = &FrmFreqMax}};
    TextBox       TxtIL_FreqMax  {this, "TxtIL_FreqMax",   champ({1800, 2145, 2400, 315}, &LblIL_FreqMax, &FrmFreqMax)};
    Label         LblNeta_FreqMax{this, "LblNeta_FreqMax", {.Caption = "Efficacite", .at = {180, 2535, 1560, 255}, .container = &FrmFreqMax}};
    TextBox       TxtNeta_FreqMax{this, "TxtNeta_FreqMax", champ({1800, 2505, 2400, 315}, &LblNeta_FreqMax, &FrmFreqMax)};
    Label         LblCf_FreqMax  {this, "LblCf_FreqMax",   {.Caption = "Condensateur F", .at = {180, 2895, 1560, 255}, .container = &FrmFreqMax}};
    TextBox       TxtCf_FreqMax  {this, "TxtCf_FreqMax",   champ({1800, 2865, 2400, 315}, &LblCf_FreqMax, &FrmFreqMax)};
    // clang-format on

    Double FreqMin; ///< Hz, as the two below: edges and centre of the band
    Double FreqMax;
    Double FreqMoy;
    Double DeltaFMin; ///< bandwidth at each of them, Hz
    Double DeltaFMax;
    Double DeltaFMoy;
    Double NbSpires; ///< turns: always one
    Integer NbCotes; ///< number of sides
    Double Puissance; ///< W
    Double LambdaMoy; ///< wavelength at the centre, m
    Double Cote; ///< length of a side, m
    Double AngleCote; ///< half the angle that a side subtends, radians
    Double Rayon; ///< radius of the circle through the corners, m
    Double Surface; ///< m²
    Double Inductance; ///< H
    Integer LambdaSur; ///< the perimeter is the wavelength over this

private:
    /// A result, on the light yellow of this panel.
    static TextBox::Design champ(Box at, Label* label, Frame* bloc = nullptr);

    void Form_Load() override;
    void TxtFreqMin_Change();
    void TxtFreqMax_Change();
    void TxtDeltaFMin_Change();
    void TxtDeltaFMax_Change();
    void TxtPuissance_Change();
    void LstNbreCotes_Click();
    void LstLambdaSur_Click();
    void BtnCalculer_Click();
};

} // namespace ondelis
