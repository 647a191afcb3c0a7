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
    Shape         Cadre1         {this, "Cadre1",          {.at = {240, 240, 9000, 3255}}};
    Label         LblFreqMin     {this, "LblFreqMin",      {.Caption = "Fréquence min en MHz", .at = {420, 420, 3600, 255}}};
    TextBox       TxtFreqMin     {this, "TxtFreqMin",      {.at = {4080, 390, 1320, 315}, .label = &LblFreqMin}, {}, &AntennesLPDA1::TxtFreqMin_KeyPress};
    Label         LblFreqMax     {this, "LblFreqMax",      {.Caption = "Fréquence max en MHz", .at = {420, 780, 3600, 255}}};
    TextBox       TxtFreqMax     {this, "TxtFreqMax",      {.at = {4080, 750, 1320, 315}, .label = &LblFreqMax}, {}, &AntennesLPDA1::TxtFreqMax_KeyPress};
    Label         LblTheta       {this, "LblTheta",        {.Caption = "Définition de Theta", .at = {420, 1140, 3600, 255}}};
    TextBox       TxtTheta       {this, "TxtTheta",        {.at = {4080, 1110, 1320, 315}, .label = &LblTheta}, &AntennesLPDA1::TxtTheta_Change};
    Label         LblBornesTheta {this, "LblBornesTheta",  {.Caption = "0.8 =< Theta =< 0.98", .at = {5520, 1140, 3540, 255}}};
    Label         LblRhoOpt      {this, "LblRhoOpt",       {.Caption = "Rho optimum", .at = {420, 1500, 3600, 255}}};
    TextBox       TxtRhoOpt      {this, "TxtRhoOpt",       resultField({4080, 1470, 1950, 315}, &LblRhoOpt)};
    OptionButton  OptRho         {this, "OptRho",          {.Caption = "Rho", .at = {6240, 1485, 840, 300}}, &AntennesLPDA1::OptRho_Click};
    OptionButton  OptRhoOpt      {this, "OptRhoOpt",       {.Caption = "Rho Optimum", .at = {7260, 1485, 1800, 300}}, &AntennesLPDA1::OptRhoOpt_Click};
    Label         LblRho         {this, "LblRho",          {.Caption = "Définition de Rho", .at = {420, 1860, 3600, 255}}};
    TextBox       TxtRho         {this, "TxtRho",          {.at = {4080, 1830, 1320, 315}, .label = &LblRho}, &AntennesLPDA1::TxtRho_Change};
    Label         LblBornesRho   {this, "LblBornesRho",    {.Caption = "0.05 =< Rho =< Rho Optimum", .at = {5520, 1860, 3540, 255}}};
    Label         LblLonBoom     {this, "LblLonBoom",      {.Caption = "Longueur du boom en m", .at = {420, 2340, 3600, 255}}};
    TextBox       TxtLonBoom     {this, "TxtLonBoom",      resultField({4080, 2310, 1950, 315}, &LblLonBoom)};
    Label         LblNbrElements {this, "LblNbrElements",  {.Caption = "Nombre d'éléments", .at = {420, 2700, 3600, 255}}};
    TextBox       TxtNbrElements {this, "TxtNbrElements",  resultField({4080, 2670, 1950, 315}, &LblNbrElements)};
    Label         LblZt          {this, "LblZt",           {.Caption = "Stub Zt", .at = {420, 3060, 3600, 255}}};
    TextBox       TxtZt          {this, "TxtZt",           resultField({4080, 3030, 1950, 315}, &LblZt)};
    CommandButton BtnRetour1     {this, "BtnRetour1",      {.Caption = "Retour", .at = {6600, 2970, 1200, 375}}, &AntennesLPDA1::BtnRetour1_Click};
    CommandButton BtnCalculer1   {this, "BtnCalculer1",    {.Caption = "Calculer", .at = {7860, 2970, 1200, 375}}, &AntennesLPDA1::BtnCalculer1_Click};
    CommandButton BtnSuite1      {this, "BtnSuite1",       {.Caption = "Suite", .at = {7860, 2970, 1200, 375}}, &AntennesLPDA1::BtnSuite1_Click};

    Shape         Cadre2         {this, "Cadre2",          {.at = {240, 3615, 9000, 2775}}};
    Label         LblRZero       {this, "LblRZero",        {.Caption = "R0", .at = {420, 3795, 3600, 255}}};
    TextBox       TxtRZero       {this, "TxtRZero",        {.at = {4080, 3765, 1320, 315}, .label = &LblRZero}, &AntennesLPDA1::TxtRZero_Change};
    Label         LblDiamElement1{this, "LblDiamElement1", {.Caption = "Diamètre du dernier élément mm", .at = {420, 4155, 3600, 255}}};
    TextBox       TxtDiamElement1{this, "TxtDiamElement1", {.at = {4080, 4125, 1320, 315}, .label = &LblDiamElement1}, &AntennesLPDA1::TxtDiamElement1_Change};
    Label         LblRhoPrime    {this, "LblRhoPrime",     {.Caption = "Rho'", .at = {420, 4635, 3600, 255}}};
    TextBox       TxtRhoPrime    {this, "TxtRhoPrime",     resultField({4080, 4605, 1950, 315}, &LblRhoPrime)};
    Label         LblZ0          {this, "LblZ0",           {.Caption = "Z0", .at = {420, 4995, 3600, 255}}};
    TextBox       TxtZ0          {this, "TxtZ0",           resultField({4080, 4965, 1950, 315}, &LblZ0)};
    Label         LblBalun       {this, "LblBalun",        {.at = {4080, 5355, 1950, 255}}};
    Label         Label15        {this, "Label15",         {.Caption = "R0 conditionne l'espacement entre booms. Plus R0 est élevé, plus l'entre-axe des boom est important. Le balun ramène à 50 Ohms.", .at = {6240, 3795, 2820, 1530}}};
    Label         Label20        {this, "Label20",         {.Caption = "Choix de la combinaison dimensions et espacement des booms pour obtenir cette impédance", .at = {420, 5715, 5610, 510}}};
    CommandButton BtnRetour2     {this, "BtnRetour2",      {.Caption = "Retour", .at = {6600, 5865, 1200, 375}}, &AntennesLPDA1::BtnRetour2_Click};
    CommandButton BtnCalculer2   {this, "BtnCalculer2",    {.Caption = "Calculer", .at = {7860, 5865, 1200, 375}, .Visible = false}, &AntennesLPDA1::BtnCalculer2_Click};
    CommandButton BtnSuite2      {this, "BtnSuite2",       {.Caption = "Suite", .at = {7860, 5865, 1200, 375}}, &AntennesLPDA1::BtnSuite2_Click};

    Shape         Cadre3         {this, "Cadre3",          {.at = {240, 6510, 9000, 975}}};
    Label         LblDiamExtBoom {this, "LblDiamExtBoom",  {.Caption = "Diamètre  extérieur des booms en mm", .at = {420, 6690, 3600, 255}}};
    TextBox       TxtDiamExtBoom {this, "TxtDiamExtBoom",  {.at = {4080, 6660, 1320, 315}, .label = &LblDiamExtBoom}};
    Label         LblS           {this, "LblS",            {.Caption = "Entre-axes des booms", .at = {420, 7050, 3600, 255}}};
    TextBox       TxtS           {this, "TxtS",            resultField({4080, 7020, 2460, 315}, &LblS)};
    CommandButton BtnRetour3     {this, "BtnRetour3",      {.Caption = "Retour", .at = {6600, 6960, 1200, 375}}, &AntennesLPDA1::BtnRetour3_Click};
    CommandButton BtnCalculer3   {this, "BtnCalculer3",    {.Caption = "Calculer", .at = {7860, 6960, 1200, 375}, .Visible = false}, &AntennesLPDA1::BtnCalculer3_Click};
    CommandButton BtnSuite3      {this, "BtnSuite3",       {.Caption = "Suite", .at = {7860, 6960, 1200, 375}}, &AntennesLPDA1::BtnSuite3_Click};

    Frame         Frame1         {this, "Frame1",          {.Caption = "Structure de la LPDA", .at = {9420, 240, 5760, 5040}, .picture = "lpda-structure"}};
    Label         LblFrameBalun  {this, "LblFrameBalun",   {.Caption = "Balun", .at = {4470, 2895, 780, 255}, .align = Align::Center, .container = &Frame1}};
    Label         LblFrameZt     {this, "LblFrameZt",      {.Caption = "Stub Zt", .at = {450, 2820, 900, 255}, .align = Align::Center, .container = &Frame1}};
    TextBox       Text1          {this, "Text1",           {.Text = "Si l'aérien est trop grand :\n\taugmenter FreqMin\n\tou réduire Rho\n\tou réduire Theta\n\nRéduire Rho réduit L boom de façon prépondérante",
                                                            .at = {9420, 240, 5760, 2700}, .Locked = true, .multiLine = true}};
    TextBox       Text2          {this, "Text2",           {.Text = "En HF, court-circuiter l'élément le plus long par une \népingle de 6\" (1,8288m) de longueur non pliée\n\nEn VHF et UHF :  Zt = LambdaMax/8",
                                                            .at = {9420, 3060, 5760, 2220}, .Locked = true, .multiLine = true}};
    // These two are never seen: the drawing's frame covers them, and the notes where it is hidden.
    Label         Label8         {this, "Label8",          {.Caption = "Label8", .at = {9600, 1200, 780, 255}}};
    Label         Label23        {this, "Label23",         {.at = {10500, 1200, 780, 255}}};

    Shape         Cadre4         {this, "Cadre4",          {.at = {9420, 5400, 5760, 2085}}};
    Label         LblDimBrin     {this, "LblDimBrin",      {.Caption = "Longueur des brins ", .at = {9600, 5580, 3420, 255}}};
    TextBox       TxtLongBrin    {this, "TxtLongBrin",     {.at = {13080, 5550, 1920, 315}, .label = &LblDimBrin}};
    Label         LblEspacement  {this, "LblEspacement",   {.Caption = "Espacement des brins ", .at = {9600, 5940, 3420, 255}}};
    TextBox       TxtEspacement  {this, "TxtEspacement",   {.at = {13080, 5910, 1920, 315}, .label = &LblEspacement}};
    Label         LblDiamètre    {this, "LblDiamètre",     {.Caption = "Diamètre du brin", .at = {9600, 6300, 3420, 255}}};
    TextBox       TxtDiamètre    {this, "TxtDiamètre",     {.at = {13080, 6270, 1920, 315}, .label = &LblDiamètre}};
    CommandButton BtnAfficher    {this, "BtnAfficher",     {.Caption = "Afficher", .at = {9600, 6960, 1200, 375}}, &AntennesLPDA1::BtnAfficher_Click};
    CommandButton BtnPrecedent   {this, "BtnPrecedent",    {.Caption = "Précédent", .at = {11000, 6960, 1200, 375}}, &AntennesLPDA1::BtnPrecedent_Click};
    CommandButton BtnSuivant     {this, "BtnSuivant",      {.Caption = "Suivant", .at = {12400, 6960, 1200, 375}}, &AntennesLPDA1::BtnSuivant_Click};
    CommandButton BtnRetour4     {this, "BtnRetour4",      {.Caption = "Retour", .at = {13800, 6960, 1200, 375}}, &AntennesLPDA1::BtnRetour4_Click};
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
