#pragma once

#include <string>

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "kit/Table.h"

namespace ondelis {

/// A log-periodic dipole array from its band, its scale factor Theta and its relative spacing Rho, in four steps. Each
/// step shows the buttons of the next one: which buttons are visible is the only state of the sequence.
class AntennesLPDA1 final : public FeuilleCalcul {
public:
    explicit AntennesLPDA1(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "AntennesLPDA1",
                .Caption = "Eléments de base pour le calcul de la LPDA",
                .Width = 15540,
                .Height = 8145}}
    {
    }

    using Me = AntennesLPDA1;
    static constexpr Column bande{.left = 420, .captions = 3600, .results = 1950, .top = 390};
    static constexpr Column bornes{.left = 5520, .captions = 3540, .top = bande.top};
    static constexpr Column antenne = bande.from(2310);
    static constexpr Column alimentation = bande.from(3765);
    static constexpr Column ligne = bande.from(4605);
    static constexpr Column booms = bande.from(6660);
    static constexpr Column brins{.left = 9600, .captions = 3420, .inputs = 1920, .top = 5550};
    static constexpr Box structure{9420, 240, 5760, 5040};

    Shape Cadre1{this, "Cadre1", {.at = {240, 240, 9000, 3255}}};
    Label LblFreqMin{this, "LblFreqMin", bande.caption(0, "Fréquence min en MHz")};
    TextBox TxtFreqMin{this, "TxtFreqMin", bande.input(LblFreqMin), {}, &Me::TxtFreqMin_KeyPress};
    Label LblFreqMax{this, "LblFreqMax", bande.caption(1, "Fréquence max en MHz")};
    TextBox TxtFreqMax{this, "TxtFreqMax", bande.input(LblFreqMax), {}, &Me::TxtFreqMax_KeyPress};
    Label LblTheta{this, "LblTheta", bande.caption(2, "Définition de Theta")};
    TextBox TxtTheta{this, "TxtTheta", bande.input(LblTheta), &Me::TxtTheta_Change};
    Label LblBornesTheta{this, "LblBornesTheta", bornes.caption(2, "0.8 =< Theta =< 0.98")};
    Label LblRhoOpt{this, "LblRhoOpt", bande.caption(3, "Rho optimum")};
    TextBox TxtRhoOpt{this, "TxtRhoOpt", bande.result(LblRhoOpt)};
    OptionButton OptRho{this, "OptRho", {.Caption = "Rho", .at = {6240, 1485, 840, 300}}, &Me::OptRho_Click};
    OptionButton OptRhoOpt{
        this, "OptRhoOpt", {.Caption = "Rho Optimum", .at = {7260, OptRho.at().Top, 1800, 300}}, &Me::OptRhoOpt_Click};
    Label LblRho{this, "LblRho", bande.caption(4, "Définition de Rho")};
    TextBox TxtRho{this, "TxtRho", bande.input(LblRho), &Me::TxtRho_Change};
    Label LblBornesRho{this, "LblBornesRho", bornes.caption(4, "0.05 =< Rho =< Rho Optimum")};

    Label LblLonBoom{this, "LblLonBoom", antenne.caption(0, "Longueur du boom en m")};
    TextBox TxtLonBoom{this, "TxtLonBoom", antenne.result(LblLonBoom)};
    Label LblNbrElements{this, "LblNbrElements", antenne.caption(1, "Nombre d'éléments")};
    TextBox TxtNbrElements{this, "TxtNbrElements", antenne.result(LblNbrElements)};
    Label LblZt{this, "LblZt", antenne.caption(2, "Stub Zt")};
    TextBox TxtZt{this, "TxtZt", antenne.result(LblZt)};

    CommandButton BtnRetour1{this, "BtnRetour1", bouton(Cadre1, backLeft, "Retour"), &Me::BtnRetour1_Click};
    CommandButton BtnCalculer1{this, "BtnCalculer1", bouton(Cadre1, nextLeft, "Calculer"), &Me::BtnCalculer1_Click};
    CommandButton BtnSuite1{this, "BtnSuite1", bouton(Cadre1, nextLeft, "Suite"), &Me::BtnSuite1_Click};

    Shape Cadre2{this, "Cadre2", {.at = under(Cadre1, 9000, 2775, 120)}};
    Label LblRZero{this, "LblRZero", alimentation.caption(0, "R0")};
    TextBox TxtRZero{this, "TxtRZero", alimentation.input(LblRZero), &Me::TxtRZero_Change};
    Label LblDiamElement1{this, "LblDiamElement1", alimentation.caption(1, "Diamètre du dernier élément mm")};
    TextBox TxtDiamElement1{this, "TxtDiamElement1", alimentation.input(LblDiamElement1), &Me::TxtDiamElement1_Change};
    Label LblRhoPrime{this, "LblRhoPrime", ligne.caption(0, "Rho'")};
    TextBox TxtRhoPrime{this, "TxtRhoPrime", ligne.result(LblRhoPrime)};
    Label LblZ0{this, "LblZ0", ligne.caption(1, "Z0")};
    TextBox TxtZ0{this, "TxtZ0", ligne.result(LblZ0)};
    Label LblBalun{this, "LblBalun", {.at = under(TxtZ0, ligne.results, 255, 75)}};
    Label Label15{this, "Label15",
        {.Caption = "R0 conditionne l'espacement entre booms. Plus R0 est élevé, plus l'entre-axe des boom est "
                    "important. Le balun ramène à 50 Ohms.",
            .at = lines({6240, LblRZero.at().Top, 2820}, 6)}};
    Label Label20{this, "Label20",
        {.Caption = "Choix de la combinaison dimensions et espacement des booms pour obtenir cette impédance",
            .at = lines(ligne.across(3), 2)}};

    CommandButton BtnRetour2{this, "BtnRetour2", bouton(Cadre2, backLeft, "Retour"), &Me::BtnRetour2_Click};
    CommandButton BtnCalculer2{
        this, "BtnCalculer2", bouton(Cadre2, nextLeft, "Calculer", false), &Me::BtnCalculer2_Click};
    CommandButton BtnSuite2{this, "BtnSuite2", bouton(Cadre2, nextLeft, "Suite"), &Me::BtnSuite2_Click};

    Shape Cadre3{this, "Cadre3", {.at = under(Cadre2, 9000, 975, 120)}};
    Label LblDiamExtBoom{this, "LblDiamExtBoom", booms.caption(0, "Diamètre  extérieur des booms en mm")};
    TextBox TxtDiamExtBoom{this, "TxtDiamExtBoom", booms.input(LblDiamExtBoom)};
    Label LblS{this, "LblS", booms.caption(1, "Entre-axes des booms")};
    TextBox TxtS{this, "TxtS", resultField(LblS, 2460)};

    CommandButton BtnRetour3{this, "BtnRetour3", bouton(Cadre3, backLeft, "Retour"), &Me::BtnRetour3_Click};
    CommandButton BtnCalculer3{
        this, "BtnCalculer3", bouton(Cadre3, nextLeft, "Calculer", false), &Me::BtnCalculer3_Click};
    CommandButton BtnSuite3{this, "BtnSuite3", bouton(Cadre3, nextLeft, "Suite"), &Me::BtnSuite3_Click};

    Frame Frame1{this, "Frame1", {.Caption = "Structure de la LPDA", .at = structure, .picture = "lpda-structure"}};
    Label LblFrameBalun{this, "LblFrameBalun",
        {.Caption = "Balun", .at = {4470, 2895, 780, 255}, .align = Align::Center, .container = &Frame1}};
    Label LblFrameZt{this, "LblFrameZt",
        {.Caption = "Stub Zt", .at = {450, 2820, 900, 255}, .align = Align::Center, .container = &Frame1}};
    TextBox Text1{this, "Text1",
        {.Text = "Si l'aérien est trop grand :\n\taugmenter FreqMin\n\tou réduire Rho\n\tou réduire Theta\n\nRéduire "
                 "Rho réduit L boom de façon prépondérante",
            .at = {structure.Left, structure.Top, structure.Width, 2700},
            .Locked = true,
            .multiLine = true}};
    TextBox Text2{this, "Text2",
        {.Text = "En HF, court-circuiter l'élément le plus long par une \népingle de 6\" (1,8288m) de longueur non "
                 "pliée\n\nEn VHF et UHF :  Zt = LambdaMax/8",
            .at = under(Text1, structure.Width, 2220, 120),
            .Locked = true,
            .multiLine = true}};
    // These two are never seen: the drawing's frame covers them, or the notes do where it is hidden.
    Label Label8{this, "Label8", {.Caption = "Label8", .at = {9600, 1200, 780, 255}}};
    Label Label23{this, "Label23", {.at = {10500, 1200, 780, 255}}};

    Shape Cadre4{this, "Cadre4", {.at = under(Frame1, structure.Width, 2085, 120)}};
    Label LblDimBrin{this, "LblDimBrin", brins.caption(0, "Longueur des brins ")};
    TextBox TxtLongBrin{this, "TxtLongBrin", brins.input(LblDimBrin)};
    Label LblEspacement{this, "LblEspacement", brins.caption(1, "Espacement des brins ")};
    TextBox TxtEspacement{this, "TxtEspacement", brins.input(LblEspacement)};
    Label LblDiamètre{this, "LblDiamètre", brins.caption(2, "Diamètre du brin")};
    TextBox TxtDiamètre{this, "TxtDiamètre", brins.input(LblDiamètre)};

    CommandButton BtnAfficher{this, "BtnAfficher", bouton(Cadre4, brins.left, "Afficher"), &Me::BtnAfficher_Click};
    CommandButton BtnPrecedent{
        this, "BtnPrecedent", bouton(Cadre4, brins.left + 1400, "Précédent"), &Me::BtnPrecedent_Click};
    CommandButton BtnSuivant{this, "BtnSuivant", bouton(Cadre4, brins.left + 2800, "Suivant"), &Me::BtnSuivant_Click};
    CommandButton BtnRetour4{this, "BtnRetour4", bouton(Cadre4, brins.left + 4200, "Retour"), &Me::BtnRetour4_Click};

private:
    static constexpr int lastIndex = 30; ///< in the tables of the elements
    static constexpr double backLeft = 6600; ///< the left edge of a button that goes back to the previous step
    static constexpr double nextLeft = 7860; ///< of one that computes or goes on

    /// At the bottom of the frame of its step.
    static CommandButton::Design bouton(const Shape& cadre, double left, const char* text, bool visible = true)
    {
        return {.Caption = text, .at = {left, cadre.at().Top + cadre.at().Height - 525, 1200, 375}, .Visible = visible};
    }

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

    void TraiterTouche(Integer touche, TextBox& champ, Double& frequence);
    void PresenterBrin(Integer index);

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
    Table<Double, lastIndex> TabLongueurs; ///< feet; from step 3 on metres
    Table<Double, lastIndex> TabEspacements; ///< feet; at i, between the elements i and i + 1, counted from 1
    Table<Double, lastIndex> TabDiametres; ///< inches; from step 3 on millimetres
    Table<std::string, lastIndex> TabLibLongueurs; ///< captions of the browser, as the two below
    Table<std::string, lastIndex> TabLibEspacements;
    Table<std::string, lastIndex> TabLibDiametres;
};

} // namespace ondelis
