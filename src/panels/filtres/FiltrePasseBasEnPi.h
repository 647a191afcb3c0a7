#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A Pi, T or L network that matches a high resistance R to a lower one, r, at one frequency. Two bars steer it:
/// its quality Q and its phase shift P. Formulas: The ARRL Antenna Compendium, 1989, vol. 2, p. 187.
class FiltrePasseBasEnPi final : public FeuilleCalcul {
public:
    explicit FiltrePasseBasEnPi(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "FiltrePasseBasEnPi", .Caption = "Filtre passe bas Pi T L", .Width = 7500, .Height = 7200}}
    {
    }

    using Me = FiltrePasseBasEnPi;
    static constexpr Column gauche{.left = 240, .captions = 900, .top = 3420};
    static constexpr Column droite{.left = 3780, .captions = 900, .top = gauche.top};
    static constexpr Column resistances = gauche.from(600);
    static constexpr Column reglages{.left = 240, .captions = 1050, .top = 2610};
    static constexpr Column qualite{.left = 5880, .captions = 240, .results = 960, .top = reglages.top};
    static constexpr Column reactances = gauche.from(5010);
    static constexpr Column composants = droite.from(reactances.top);

    Label LblFreq{this, "LblFreq", {.Caption = "Frequence MHz", .at = {240, 270, 1500, 255}}};
    TextBox TxtFreq{this, "TxtFreq", saisie(LblFreq), &Me::TxtFreq_Change};
    Label LblRin{this, "LblRin", resistances.caption(0, "R entree")};
    TextBox TxtRin{this, "TxtRin", saisie(LblRin), &Me::TxtRin_Change};
    Label LblRout{this, "LblRout", resistances.caption(1, "r sortie")};
    TextBox TxtRout{this, "TxtRout", saisie(LblRout), &Me::TxtRout_Change};
    Label Label21{this, "Label21",
        {.Caption = "R > r", .at = {1140, LblRout.at().Top, 600, 255}, .ForeColor = red, .align = Align::Center}};

    Label Label22{this, "Label22", {.Caption = "Choix du type de filtre", .at = {240, 1410, 2640, 255}}};
    ListBox LstType{this, "LstType",
        {.Items = {"Filtre en Pi", "Filtre en T", "Filtre en L"},
            .at = under(Label22, 2640, listHeight(3), 5),
            .label = &Label22},
        &Me::LstType_Click};

    PictureBox ConvPi{this, "ConvPi", schema("conv-pi")};
    PictureBox UnconvPi{this, "UnconvPi", schema("unconv-pi")};
    PictureBox ConvT{this, "ConvT", schema("conv-t")};
    PictureBox UnconvT{this, "UnconvT", schema("unconv-t")};
    PictureBox Lnet{this, "Lnet", schema("filtre-l")};
    Label LblInfo{this, "LblInfo",
        {.Caption = "Pas de solution", .at = {3060, 1215, 4080, 255}, .align = Align::Center, .Visible = false}};

    Label LblQQ{this, "LblQQ", reglages.caption(0, "Q")};
    HScrollBar Qscroll{this, "Qscroll",
        {.Min = 10, .Max = 1000, .Value = 10, .LargeChange = 10, .at = placeDeLaBarre(LblQQ), .label = &LblQQ},
        &Me::Qscroll_Change};
    Label LblQ{this, "LblQ", qualite.caption(0, "Q")};
    TextBox TxtQ{this, "TxtQ", qualite.result(LblQ)};
    Label LblP{this, "LblP", reglages.caption(1, "P désiré")};
    HScrollBar Pscroll{this, "Pscroll",
        {.Min = 1, .Max = 17999, .Value = 100, .LargeChange = 100, .at = placeDeLaBarre(LblP), .label = &LblP},
        &Me::Pscroll_Change};

    Label LblN{this, "LblN", gauche.caption(0, "N")};
    TextBox TxtN{this, "TxtN", gauche.result(LblN)};
    Label LblT{this, "LblT", droite.caption(0, "T")};
    TextBox TxtT{this, "TxtT", droite.result(LblT)};
    Label LblPm{this, "LblPm", gauche.caption(1, "Pm")};
    TextBox TxtPm{this, "TxtPm", gauche.result(LblPm)};
    Label LblQm{this, "LblQm", droite.caption(1, "Qm")};
    TextBox TxtQm{this, "TxtQm", droite.result(LblQm)};
    Label LblPc{this, "LblPc", gauche.caption(2, "P conv")};
    TextBox TxtPc{this, "TxtPc", gauche.result(LblPc)};
    Label LblQc{this, "LblQc", droite.caption(2, "Q conv")};
    TextBox TxtQc{this, "TxtQc", droite.openResult(LblQc)};
    Label LblPu{this, "LblPu", gauche.caption(3, "P unconv")};
    TextBox TxtPu{this, "TxtPu", gauche.result(LblPu)};
    Label LblQu{this, "LblQu", droite.caption(3, "Q unconv")};
    TextBox TxtQu{this, "TxtQu", droite.openResult(LblQu)};

    // The reactances of the Pi and of the T share one place: only one of them is ever shown.
    Label LblXa{this, "LblXa", reactances.caption(0, "Xa")};
    TextBox TxtXa{this, "TxtXa", reactances.result(LblXa)};
    Label LblX1{this, "LblX1", reactances.caption(0, "X1")};
    TextBox TxtX1{this, "TxtX1", reactances.result(LblX1)};
    Label LblC1{this, "LblC1", composants.caption(0, "C1 pF")};
    TextBox TxtC1{this, "TxtC1", composants.result(LblC1)};
    Label LblXb{this, "LblXb", reactances.caption(1, "Xb")};
    TextBox TxtXb{this, "TxtXb", reactances.result(LblXb)};
    Label LblX2{this, "LblX2", reactances.caption(1, "X2")};
    TextBox TxtX2{this, "TxtX2", reactances.result(LblX2)};
    Label LblL1{this, "LblL1", composants.caption(1, "L1 µH")};
    TextBox TxtL1{this, "TxtL1", composants.result(LblL1)};
    Label LblXc{this, "LblXc", reactances.caption(2, "Xc")};
    TextBox TxtXc{this, "TxtXc", reactances.result(LblXc)};
    Label LblX3{this, "LblX3", reactances.caption(2, "X3")};
    TextBox TxtX3{this, "TxtX3", reactances.result(LblX3)};
    Label LblC2{this, "LblC2", composants.caption(2, "C2 pF")};
    TextBox TxtC2{this, "TxtC2", composants.result(LblC2)};

    Label Label23{this, "Label23", {.at = {240, reactances.at(3.25).Top, 6900, 255}}};

private:
    /// The signs of the reactances of the Pi tell these cases apart.
    enum class Cas { Conventionnel, NonConventionnel, Aucun };

    static TextBox::Design saisie(Label& legende)
    {
        return {.at = {1800, legende.at().Top - 30, 1080, 315}, .BackColor = givenColor, .label = &legende};
    }
    static Picture::Design schema(const char* picture)
    {
        return {.picture = picture, .at = {3060, 240, 4020, 2145}, .Visible = false};
    }
    static Box placeDeLaBarre(const Label& legende) { return {1320, legende.at().Top, 4440, 255}; }

    void Form_Load() override;
    void TxtFreq_Change();
    void TxtRin_Change();
    void TxtRout_Change();
    void LstType_Click();
    void Qscroll_Change();
    void Pscroll_Change();

    void CalculerDepuisResistances();

    // The solver in three passes, made of the steps below them. A store into a bar may run a whole pass inside the
    // present one, which then continues with the variables as that left them.
    void Calculer();
    void QCompute();
    void PCompute();
    void Effacer();
    [[nodiscard]] bool Complet() const;
    void Preparer();
    void Resoudre();
    [[nodiscard]] Double A() const;
    [[nodiscard]] Double B() const;
    [[nodiscard]] Double DephasageNonConv() const;
    [[nodiscard]] Double DephasageConv() const;

    void ZComplexes(Double dephasage);
    void AfficherReseau();
    void PiNetwork();
    void TNetwork();
    void LNetwork();
    [[nodiscard]] Cas CasDuReseau() const;
    void MontrerPi(PictureBox& schema);
    void MontrerT(PictureBox& schema);
    void ChoisirSchema(PictureBox& schema);
    [[nodiscard]] Double Cap(Double x) const;
    [[nodiscard]] Double Ind(Double x) const;

    Double R; ///< input resistance, ohms
    Double r; ///< output resistance, ohms
    Double N; ///< sqrt(R r), ohms
    Double T; ///< R / r
    Double P; ///< phase shift in force, rad
    Double Pm; ///< phase shift of the L, rad
    Double Pc; ///< conventional solution for Q, rad
    Double Pu; ///< unconventional solution for Q, rad
    Double Q; ///< working quality
    Double Qm; ///< quality of the L
    Double Qc; ///< quality of the conventional solution
    Double Qu; ///< quality of the unconventional solution
    Double Xa, Xb, Xc; ///< reactances of the Pi, ohms
    Double X1, X2, X3; ///< reactances of the T, ohms
    Double K; ///< pi
    Double D; ///< radians per degree
    Double F; ///< frequency: MHz as typed, Hz once a pass has run
    Double W; ///< rad/s
};

} // namespace ondelis
