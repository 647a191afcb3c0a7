#pragma once

#include <string>

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "kit/Table.h"

namespace ondelis {

/// A log-periodic dipole array from its band, its scale factor Theta and its relative spacing Rho, in four steps. Each
/// step shows the buttons of the next one: which buttons are visible is all the state that the sequence has.
class AntennesLPDA1 final : public FeuilleCalcul {
public:
    explicit AntennesLPDA1(Desk& desk);

    using Me = AntennesLPDA1;
    static constexpr Column colonne{.left = 420, .captions = 3600, .results = 1950, .top = 390};
    static constexpr Column colonne_2 = colonne.from(240);
    static constexpr Column colonne_3 = colonne.from(3765);
    static constexpr Column colonne_4 = colonne.from(4605);
    static constexpr Column colonne_5 = colonne.from(6660);
    static constexpr Column colonne2{.left = 9600, .captions = 3420, .inputs = 1920};

    Shape Cadre1{this, "Cadre1", {.at = {240, 240, 9000, 3255}}};
    Label LblFreqMin{this, "LblFreqMin", colonne.caption(0, "Fréquence min en MHz")};
    TextBox TxtFreqMin{this, "TxtFreqMin", colonne.input(LblFreqMin), {}, &Me::TxtFreqMin_KeyPress};
    Label LblFreqMax{this, "LblFreqMax", colonne.caption(1, "Fréquence max en MHz")};
    TextBox TxtFreqMax{this, "TxtFreqMax", colonne.input(LblFreqMax), {}, &Me::TxtFreqMax_KeyPress};
    Label LblTheta{this, "LblTheta", colonne.caption(2, "Définition de Theta")};
    TextBox TxtTheta{this, "TxtTheta", colonne.input(LblTheta), &Me::TxtTheta_Change};
    Label LblBornesTheta{this, "LblBornesTheta", {.Caption = "0.8 =< Theta =< 0.98", .at = {5520, 1140, 3540, 255}}};
    Label LblRhoOpt{this, "LblRhoOpt", colonne.caption(3, "Rho optimum")};
    TextBox TxtRhoOpt{this, "TxtRhoOpt", colonne.result(LblRhoOpt)};
    OptionButton OptRho{this, "OptRho", {.Caption = "Rho", .at = {6240, 1485, 840, 300}}, &Me::OptRho_Click};
    OptionButton OptRhoOpt{
        this, "OptRhoOpt", {.Caption = "Rho Optimum", .at = {7260, 1485, 1800, 300}}, &Me::OptRhoOpt_Click};
    Label LblRho{this, "LblRho", colonne.caption(4, "Définition de Rho")};
    TextBox TxtRho{this, "TxtRho", colonne.input(LblRho), &Me::TxtRho_Change};
    Label LblBornesRho{this, "LblBornesRho", {.Caption = "0.05 =< Rho =< Rho Optimum", .at = {5520, 1860, 3540, 255}}};
    Label LblLonBoom{this, "LblLonBoom", colonne_2.caption(5.75, "Longueur du boom en m")};
    TextBox TxtLonBoom{this, "TxtLonBoom", colonne_2.result(LblLonBoom)};
    Label LblNbrElements{this, "LblNbrElements", colonne_2.caption(6.75, "Nombre d'éléments")};
    TextBox TxtNbrElements{this, "TxtNbrElements", colonne_2.result(LblNbrElements)};
    Label LblZt{this, "LblZt", colonne_2.caption(7.75, "Stub Zt")};
    TextBox TxtZt{this, "TxtZt", colonne_2.result(LblZt)};
    CommandButton BtnRetour1{
        this, "BtnRetour1", {.Caption = "Retour", .at = {6600, 2970, 1200, 375}}, &Me::BtnRetour1_Click};
    CommandButton BtnCalculer1{
        this, "BtnCalculer1", {.Caption = "Calculer", .at = {7860, 2970, 1200, 375}}, &Me::BtnCalculer1_Click};
    CommandButton BtnSuite1{
        this, "BtnSuite1", {.Caption = "Suite", .at = {7860, 2970, 1200, 375}}, &Me::BtnSuite1_Click};

    Shape Cadre2{this, "Cadre2", {.at = {240, 3615, 9000, 2775}}};
    Label LblRZero{this, "LblRZero", colonne_3.caption(0, "R0")};
    TextBox TxtRZero{this, "TxtRZero", colonne_3.input(LblRZero), &Me::TxtRZero_Change};
    Label LblDiamElement1{this, "LblDiamElement1", colonne_3.caption(1, "Diamètre du dernier élément mm")};
    TextBox TxtDiamElement1{this, "TxtDiamElement1", colonne_3.input(LblDiamElement1), &Me::TxtDiamElement1_Change};
    Label LblRhoPrime{this, "LblRhoPrime", colonne_4.caption(0, "Rho'")};
    TextBox TxtRhoPrime{this, "TxtRhoPrime", colonne_4.result(LblRhoPrime)};
    Label LblZ0{this, "LblZ0", colonne_4.caption(1, "Z0")};
    TextBox TxtZ0{this, "TxtZ0", colonne_4.result(LblZ0)};
    Label LblBalun{this, "LblBalun", {.at = {4080, 5355, 1950, 255}}};
    Label Label15{this, "Label15",
        {.Caption = "R0 conditionne l'espacement entre booms. Plus R0 est élevé, plus l'entre-axe des boom est "
                    "important. Le balun ramène à 50 Ohms.",
            .at = {6240, 3795, 2820, 1530}}};
    Label Label20{this, "Label20",
        {.Caption = "Choix de la combinaison dimensions et espacement des booms pour obtenir cette impédance",
            .at = {420, 5715, 5610, 510}}};
    CommandButton BtnRetour2{
        this, "BtnRetour2", {.Caption = "Retour", .at = {6600, 5865, 1200, 375}}, &Me::BtnRetour2_Click};
    CommandButton BtnCalculer2{this, "BtnCalculer2",
        {.Caption = "Calculer", .at = {7860, 5865, 1200, 375}, .Visible = false}, &Me::BtnCalculer2_Click};
    CommandButton BtnSuite2{
        this, "BtnSuite2", {.Caption = "Suite", .at = {7860, 5865, 1200, 375}}, &Me::BtnSuite2_Click};

    Shape Cadre3{this, "Cadre3", {.at = {240, 6510, 9000, 975}}};
    Label LblDiamExtBoom{this, "LblDiamExtBoom", colonne_5.caption(0, "Diamètre  extérieur des booms en mm")};
    TextBox TxtDiamExtBoom{this, "TxtDiamExtBoom", colonne_5.input(LblDiamExtBoom)};
    Label LblS{this, "LblS", colonne_5.caption(1, "Entre-axes des booms")};
    TextBox TxtS{this, "TxtS", resultField(LblS, 2460)};
    CommandButton BtnRetour3{
        this, "BtnRetour3", {.Caption = "Retour", .at = {6600, 6960, 1200, 375}}, &Me::BtnRetour3_Click};
    CommandButton BtnCalculer3{this, "BtnCalculer3",
        {.Caption = "Calculer", .at = {7860, 6960, 1200, 375}, .Visible = false}, &Me::BtnCalculer3_Click};
    CommandButton BtnSuite3{
        this, "BtnSuite3", {.Caption = "Suite", .at = {7860, 6960, 1200, 375}}, &Me::BtnSuite3_Click};

    Frame Frame1{this, "Frame1",
        {.Caption = "Structure de la LPDA", .at = {9420, 240, 5760, 5040}, .picture = "lpda-structure"}};
    Label LblFrameBalun{this, "LblFrameBalun",
        {.Caption = "Balun", .at = {4470, 2895, 780, 255}, .align = Align::Center, .container = &Frame1}};
    Label LblFrameZt{this, "LblFrameZt",
        {.Caption = "Stub Zt", .at = {450, 2820, 900, 255}, .align = Align::Center, .container = &Frame1}};
    TextBox Text1{this, "Text1",
        {.Text = "Si l'aérien est trop grand :\n\taugmenter FreqMin\n\tou réduire Rho\n\tou réduire Theta\n\nRéduire "
                 "Rho réduit L boom de façon prépondérante",
            .at = {9420, 240, 5760, 2700},
            .Locked = true,
            .multiLine = true}};
    TextBox Text2{this, "Text2",
        {.Text = "En HF, court-circuiter l'élément le plus long par une \népingle de 6\" (1,8288m) de longueur non "
                 "pliée\n\nEn VHF et UHF :  Zt = LambdaMax/8",
            .at = {9420, 3060, 5760, 2220},
            .Locked = true,
            .multiLine = true}};
    // These two are never seen: the drawing's frame covers them, and the notes where it is hidden.
    Label Label8{this, "Label8", {.Caption = "Label8", .at = {9600, 1200, 780, 255}}};
    Label Label23{this, "Label23", {.at = {10500, 1200, 780, 255}}};

    Shape Cadre4{this, "Cadre4", {.at = {9420, 5400, 5760, 2085}}};
    Label LblDimBrin{this, "LblDimBrin", colonne2.caption(14.75, "Longueur des brins ")};
    TextBox TxtLongBrin{this, "TxtLongBrin", colonne2.input(LblDimBrin)};
    Label LblEspacement{this, "LblEspacement", colonne2.caption(15.75, "Espacement des brins ")};
    TextBox TxtEspacement{this, "TxtEspacement", colonne2.input(LblEspacement)};
    Label LblDiamètre{this, "LblDiamètre", colonne2.caption(16.75, "Diamètre du brin")};
    TextBox TxtDiamètre{this, "TxtDiamètre", colonne2.input(LblDiamètre)};
    CommandButton BtnAfficher{
        this, "BtnAfficher", {.Caption = "Afficher", .at = {9600, 6960, 1200, 375}}, &Me::BtnAfficher_Click};
    CommandButton BtnPrecedent{
        this, "BtnPrecedent", {.Caption = "Précédent", .at = {11000, 6960, 1200, 375}}, &Me::BtnPrecedent_Click};
    CommandButton BtnSuivant{
        this, "BtnSuivant", {.Caption = "Suivant", .at = {12400, 6960, 1200, 375}}, &Me::BtnSuivant_Click};
    CommandButton BtnRetour4{
        this, "BtnRetour4", {.Caption = "Retour", .at = {13800, 6960, 1200, 375}}, &Me::BtnRetour4_Click};

private:
    static constexpr Color ferme = resultColor;
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
