#pragma once

#include <string>

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "kit/Table.h"

namespace ondelis {

/// A log-periodic dipole array from its band, its scale factor Theta and its relative spacing Rho, in four steps. Each
/// step shows the buttons of the next one: which buttons are visible is all the state that the sequence has.
class AntennesLPDA1 final : public FeuilleCalcul {
public:
    explicit AntennesLPDA1(Desk& desk);

    // clang-format off
    Shape         Cadre1         {this, "Cadre1", {.at = {240, 180, 8610, 3225}}};
    Label         LblFreqMin     {this, "LblFreqMin",      {.Caption = "Fréquence min en MHz", .at = {420, 330, 3600, 255}}};
    TextBox       TxtFreqMin     {this, "TxtFreqMin",      {.at = {4080, 300, 1320, 315}, .label = &LblFreqMin}, {}, &AntennesLPDA1::TxtFreqMin_KeyPress};
    Label         LblFreqMax     {this, "LblFreqMax",      {.Caption = "Fréquence max en MHz", .at = {420, 690, 3600, 255}}};
    TextBox       TxtFreqMax     {this, "TxtFreqMax",      {.at = {4080, 660, 1320, 315}, .label = &LblFreqMax}, {}, &AntennesLPDA1::TxtFreqMax_KeyPress};
    Label         LblTheta       {this, "LblTheta",        {.Caption = "Définition de Theta", .at = {420, 1050, 3600, 255}}};
    TextBox       TxtTheta       {this, "TxtTheta",        {.at = {4080, 1020, 1320, 315}, .label = &LblTheta}, &AntennesLPDA1::TxtTheta_Change};
    Label         LblBornesTheta {this, "LblBornesTheta",  {.Caption = "0.8 =< Theta =< 0.98", .at = {5520, 1050, 3150, 255}}};
    Label         LblRhoOpt      {this, "LblRhoOpt",       {.Caption = "Rho optimum", .at = {420, 1410, 3600, 255}}};
    TextBox       TxtRhoOpt      {this, "TxtRhoOpt",       resultField({4080, 1380, 1950, 315}, &LblRhoOpt)};
    OptionButton  OptRho         {this, "OptRho",          {.Caption = "Rho", .at = {6150, 1388, 780, 300}}, &AntennesLPDA1::OptRho_Click};
    OptionButton  OptRhoOpt      {this, "OptRhoOpt",       {.Caption = "Rho Optimum", .at = {6990, 1388, 1680, 300}}, &AntennesLPDA1::OptRhoOpt_Click};
    Label         LblRho         {this, "LblRho",          {.Caption = "Définition de Rho", .at = {420, 1770, 3600, 255}}};
    TextBox       TxtRho         {this, "TxtRho",          {.at = {4080, 1740, 1320, 315}, .label = &LblRho}, &AntennesLPDA1::TxtRho_Change};
    Label         LblBornesRho   {this, "LblBornesRho",    {.Caption = "0.05 =< Rho =< Rho Optimum", .at = {5520, 1770, 3150, 255}}};
    Label         LblLonBoom     {this, "LblLonBoom",      {.Caption = "Longueur du boom en m", .at = {420, 2250, 3600, 255}}};
    TextBox       TxtLonBoom     {this, "TxtLonBoom",      resultField({4080, 2220, 1950, 315}, &LblLonBoom)};
    Label         LblNbrElements {this, "LblNbrElements",  {.Caption = "Nombre d'éléments", .at = {420, 2610, 3600, 255}}};
    TextBox       TxtNbrElements {this, "TxtNbrElements",  resultField({4080, 2580, 1950, 315}, &LblNbrElements)};
    Label         LblZt          {this, "LblZt",           {.Caption = "Stub Zt", .at = {420, 2970, 3600, 255}}};
    TextBox       TxtZt          {this, "TxtZt",           resultField({4080, 2940, 1950, 315}, &LblZt)};
    CommandButton BtnRetour1     {this, "BtnRetour1",      {.Caption = "Retour", .at = {6150, 2880, 1200, 375}}, &AntennesLPDA1::BtnRetour1_Click};
    CommandButton BtnCalculer1   {this, "BtnCalculer1",    {.Caption = "Calculer", .at = {7470, 2880, 1200, 375}}, &AntennesLPDA1::BtnCalculer1_Click};
    CommandButton BtnSuite1      {this, "BtnSuite1",       {.Caption = "Suite", .at = {7470, 2880, 1200, 375}}, &AntennesLPDA1::BtnSuite1_Click};

    Shape         Cadre2         {this, "Cadre2", {.at = {240, 3525, 8610, 2775}}};
    Label         LblRZero       {this, "LblRZero",        {.Caption = "R0", .at = {420, 3675, 3600, 255}}};
    TextBox       TxtRZero       {this, "TxtRZero",        {.at = {4080, 3645, 1320, 315}, .label = &LblRZero}, &AntennesLPDA1::TxtRZero_Change};
    Label         LblDiamElement1{this, "LblDiamElement1", {.Caption = "Diamètre du dernier élément mm", .at = {420, 4035, 3600, 255}}};
    TextBox       TxtDiamElement1{this, "TxtDiamElement1", {.at = {4080, 4005, 1320, 315}, .label = &LblDiamElement1}, &AntennesLPDA1::TxtDiamElement1_Change};
    Label         LblRhoPrime    {this, "LblRhoPrime",     {.Caption = "Rho'", .at = {420, 4515, 3600, 255}}};
    TextBox       TxtRhoPrime    {this, "TxtRhoPrime",     resultField({4080, 4485, 1950, 315}, &LblRhoPrime)};
    Label         LblZ0          {this, "LblZ0",           {.Caption = "Z0", .at = {420, 4875, 3600, 255}}};
    TextBox       TxtZ0          {this, "TxtZ0",           resultField({4080, 4845, 1950, 315}, &LblZ0)};
    Label         LblBalun       {this, "LblBalun",        {.at = {4080, 5235, 1950, 255}}};
    Label         Label15        {this, "Label15",         {.Caption = "R0 conditionne l'espacement entre booms. Plus R0 est élevé, plus l'entre-axe des boom est important. Le balun ramène à 50 Ohms.", .at = {6150, 3675, 2520, 1785}}};
    Label         Label20        {this, "Label20",         {.Caption = "Choix de la combinaison dimensions et espacement des booms pour obtenir cette impédance", .at = {420, 5670, 5610, 510}}};
    CommandButton BtnRetour2     {this, "BtnRetour2",      {.Caption = "Retour", .at = {6150, 5805, 1200, 375}}, &AntennesLPDA1::BtnRetour2_Click};
    CommandButton BtnCalculer2   {this, "BtnCalculer2",    {.Caption = "Calculer", .at = {7470, 5805, 1200, 375}, .Visible = false}, &AntennesLPDA1::BtnCalculer2_Click};
    CommandButton BtnSuite2      {this, "BtnSuite2",       {.Caption = "Suite", .at = {7470, 5805, 1200, 375}}, &AntennesLPDA1::BtnSuite2_Click};

    Frame         Frame1         {this, "Frame1",          {.Caption = "Structure de la LPDA", .at = {9030, 180, 5460, 4980}, .picture = "lpda-structure"}};
    Label         LblFrameBalun  {this, "LblFrameBalun",   {.Caption = "Balun", .at = {3980, 2945, 780, 255}, .align = Align::Center, .container = &Frame1}};
    Label         LblFrameZt     {this, "LblFrameZt",      {.Caption = "Stub Zt", .at = {206, 2880, 900, 255}, .align = Align::Center, .container = &Frame1}};
    TextBox       Text1          {this, "Text1",           {.Text = "Si l'aérien est trop grand :\n\taugmenter FreqMin\n\tou réduire Rho\n\tou réduire Theta\n\nRéduire Rho réduit L boom de façon prépondérante",
                                                            .at = {9030, 180, 5460, 2700}, .Locked = true, .multiLine = true}};
    TextBox       Text2          {this, "Text2",           {.Text = "En HF, court-circuiter l'élément le plus long par une \népingle de 6\" (1,8288m) de longueur non pliée\n\nEn VHF et UHF :  Zt = LambdaMax/8",
                                                            .at = {9030, 3000, 5460, 2160}, .Locked = true, .multiLine = true}};

    Shape         Cadre3         {this, "Cadre3", {.at = {240, 6420, 8610, 945}}};
    Label         LblDiamExtBoom {this, "LblDiamExtBoom",  {.Caption = "Diamètre  extérieur des booms en mm", .at = {420, 6570, 3600, 255}}};
    TextBox       TxtDiamExtBoom {this, "TxtDiamExtBoom",  {.at = {4080, 6540, 1320, 315}, .label = &LblDiamExtBoom}};
    Label         LblS           {this, "LblS",            {.Caption = "Entre-axes des booms", .at = {420, 6930, 3600, 255}}};
    TextBox       TxtS           {this, "TxtS",            resultField({4080, 6900, 1950, 315}, &LblS)};
    CommandButton BtnRetour3     {this, "BtnRetour3",      {.Caption = "Retour", .at = {6150, 6870, 1200, 375}}, &AntennesLPDA1::BtnRetour3_Click};
    CommandButton BtnCalculer3   {this, "BtnCalculer3",    {.Caption = "Calculer", .at = {7470, 6870, 1200, 375}, .Visible = false}, &AntennesLPDA1::BtnCalculer3_Click};
    CommandButton BtnSuite3      {this, "BtnSuite3",       {.Caption = "Suite", .at = {7470, 6870, 1200, 375}}, &AntennesLPDA1::BtnSuite3_Click};

    Shape         Cadre4         {this, "Cadre4", {.at = {9030, 5280, 5460, 2085}}};
    Label         LblDimBrin     {this, "LblDimBrin",      {.Caption = "Longueur des brins ", .at = {9210, 5430, 3660, 255}}};
    TextBox       TxtLongBrin    {this, "TxtLongBrin",     {.at = {12930, 5400, 1380, 315}, .label = &LblDimBrin}};
    Label         LblEspacement  {this, "LblEspacement",   {.Caption = "Espacement des brins ", .at = {9210, 5790, 3660, 255}}};
    TextBox       TxtEspacement  {this, "TxtEspacement",   {.at = {12930, 5760, 1380, 315}, .label = &LblEspacement}};
    Label         LblDiamètre    {this, "LblDiamètre",     {.Caption = "Diamètre du brin", .at = {9210, 6150, 3660, 255}}};
    TextBox       TxtDiamètre    {this, "TxtDiamètre",     {.at = {12930, 6120, 1380, 315}, .label = &LblDiamètre}};
    Label         Label8         {this, "Label8",          {.Caption = "Label8", .at = {9210, 6510, 780, 255}}};
    Label         Label23        {this, "Label23",         {.at = {10110, 6510, 780, 255}}};
    CommandButton BtnAfficher    {this, "BtnAfficher",     {.Caption = "Afficher", .at = {9210, 6870, 1200, 375}}, &AntennesLPDA1::BtnAfficher_Click};
    CommandButton BtnPrecedent   {this, "BtnPrecedent",    {.Caption = "Précédent", .at = {10500, 6870, 1200, 375}}, &AntennesLPDA1::BtnPrecedent_Click};
    CommandButton BtnSuivant     {this, "BtnSuivant",      {.Caption = "Suivant", .at = {11790, 6870, 1200, 375}}, &AntennesLPDA1::BtnSuivant_Click};
    CommandButton BtnRetour4     {this, "BtnRetour4",      {.Caption = "Retour", .at = {13110, 6870, 1200, 375}}, &AntennesLPDA1::BtnRetour4_Click};
    // clang-format on

private:
    static constexpr Color ferme = 0xFFFFC0;
    static constexpr int dernierBrin = 30;

    void Form_Load() override;
    void OptRho_Click();
    void OptRhoOpt_Click();
    void TxtTheta_Change();
    void TxtRho_Change();
    void TxtRZero_Change();
    void TxtDiamElement1_Change();
    void TxtFreqMin_KeyPress(Integer& KeyAscii);
    void TxtFreqMax_KeyPress(Integer& KeyAscii);
    void BtnCalculer1_Click();
    void BtnCalculer2_Click();
    void BtnCalculer3_Click();
    void BtnSuite1_Click();
    void BtnSuite2_Click();
    void BtnSuite3_Click();
    void BtnRetour1_Click();
    void BtnRetour2_Click();
    void BtnRetour3_Click();
    void BtnRetour4_Click();
    void BtnAfficher_Click();
    void BtnPrecedent_Click();
    void BtnSuivant_Click();

    void FiltrerTouche(Integer touche, TextBox& champ, Double& frequence);
    void PresenterBrin(Integer k);

    Double FreqMin; ///< MHz
    Double FreqMax; ///< MHz
    Double LambdaMax; ///< feet
    Double RZero; ///< ohms
    Double RhoOpt;
    Double Rho;
    Double Theta;
    Double BandeB; ///< FreqMax / FreqMin
    Double BandeAr; ///< band factor of the active region
    Double BandeS; ///< band ratio of the structure
    Double CotAlpha; ///< cotangent of the half angle at the apex
    Double LongBoom; ///< feet
    Double NbElements; ///< a whole number once step 1 is through
    Double LongStub; ///< as shown with " cm"
    Double DiamDernier; ///< inches
    Double ZZero; ///< ohms
    Integer IndexBrin; ///< the element that the browser shows, from 0, the longest
    Table<Double, dernierBrin> TabLongueurs; ///< feet; from step 3 on metres
    Table<Double, dernierBrin> TabEspacements; ///< feet, i for the spacing of the elements i and i + 1, counted from 1
    Table<Double, dernierBrin> TabDiametres; ///< inches; from step 3 on millimetres
    Table<std::string, dernierBrin> TabLibLongueurs; ///< captions of the browser, as the two below
    Table<std::string, dernierBrin> TabLibEspacements;
    Table<std::string, dernierBrin> TabLibDiametres;
};

} // namespace ondelis
