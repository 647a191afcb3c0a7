#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A Pi, T or L network that matches a high resistance R to a lower one, r, at one frequency. Two bars steer it:
/// its quality Q and its phase shift P. Formulas: The ARRL Antenna Compendium, 1989, vol. 2, p. 187.
class FiltrePasseBasEnPi final : public FeuilleCalcul {
public:
    explicit FiltrePasseBasEnPi(Desk& desk)
        : FeuilleCalcul{
            desk, {.name = "FiltrePasseBasEnPi", .Caption = "Filtre passe bas Pi T L", .Width = 7500, .Height = 7200}}
    {
    }

    using Me = FiltrePasseBasEnPi;
    static constexpr Column colonne{.left = 5880, .captions = 240, .results = 960, .top = 2610};
    static constexpr Column colonne2{.left = 240, .captions = 900};
    static constexpr Column colonne2_2 = colonne2.from(3420);
    static constexpr Column colonne3{.left = 3780, .captions = 900, .top = 3420};
    static constexpr Column colonne3_2 = colonne3.from(240);

    Label LblFreq{this, "LblFreq", {.Caption = "Frequence MHz", .at = {240, 270, 1500, 255}}};
    TextBox TxtFreq{this, "TxtFreq", champ(240, &LblFreq), &Me::TxtFreq_Change};
    Label LblRin{this, "LblRin", colonne2.caption(1, "R entree")};
    TextBox TxtRin{this, "TxtRin", champ(600, &LblRin), &Me::TxtRin_Change};
    Label LblRout{this, "LblRout", colonne2.caption(2, "r sortie")};
    TextBox TxtRout{this, "TxtRout", champ(960, &LblRout), &Me::TxtRout_Change};
    Label Label21{
        this, "Label21", {.Caption = "R > r", .at = {1140, 990, 600, 255}, .ForeColor = red, .align = Align::Center}};

    Label Label22{this, "Label22", {.Caption = "Choix du type de filtre", .at = {240, 1410, 2640, 255}}};
    ListBox LstType{this, "LstType",
        {.Items = {"Filtre en Pi", "Filtre en T", "Filtre en L"}, .at = {240, 1670, 2640, 780}, .label = &Label22},
        &Me::LstType_Click};

    PictureBox ConvPi{this, "ConvPi", schema("conv-pi")};
    PictureBox UnconvPi{this, "UnconvPi", schema("unconv-pi")};
    PictureBox ConvT{this, "ConvT", schema("conv-t")};
    PictureBox UnconvT{this, "UnconvT", schema("unconv-t")};
    PictureBox Lnet{this, "Lnet", schema("filtre-l")};
    Label LblInfo{this, "LblInfo",
        {.Caption = "Pas de solution", .at = {3060, 1215, 4080, 255}, .align = Align::Center, .Visible = false}};

    Label LblQQ{this, "LblQQ", {.Caption = "Q", .at = {240, 2640, 1050, 255}}};
    HScrollBar Qscroll{this, "Qscroll",
        {.Min = 10, .Max = 1000, .Value = 10, .LargeChange = 10, .at = {1320, 2640, 4440, 255}, .label = &LblQQ},
        &Me::Qscroll_Change};
    Label LblQ{this, "LblQ", colonne.caption(0, "Q")};
    TextBox TxtQ{this, "TxtQ", colonne.result(LblQ)};
    Label LblP{this, "LblP", {.Caption = "P désiré", .at = {240, 3000, 1050, 255}}};
    HScrollBar Pscroll{this, "Pscroll",
        {.Min = 1, .Max = 17999, .Value = 100, .LargeChange = 100, .at = {1320, 3000, 4440, 255}, .label = &LblP},
        &Me::Pscroll_Change};

    Label LblN{this, "LblN", colonne2_2.caption(0, "N")};
    TextBox TxtN{this, "TxtN", colonne2_2.result(LblN)};
    Label LblT{this, "LblT", colonne3.caption(0, "T")};
    TextBox TxtT{this, "TxtT", colonne3.result(LblT)};
    Label LblPm{this, "LblPm", colonne2_2.caption(1, "Pm")};
    TextBox TxtPm{this, "TxtPm", colonne2_2.result(LblPm)};
    Label LblQm{this, "LblQm", colonne3.caption(1, "Qm")};
    TextBox TxtQm{this, "TxtQm", colonne3.result(LblQm)};
    Label LblPc{this, "LblPc", colonne2_2.caption(2, "P conv")};
    TextBox TxtPc{this, "TxtPc", colonne2_2.result(LblPc)};
    Label LblQc{this, "LblQc", colonne3.caption(2, "Q conv")};
    TextBox TxtQc{this, "TxtQc", colonne3.openResult(LblQc)};
    Label LblPu{this, "LblPu", colonne2_2.caption(3, "P unconv")};
    TextBox TxtPu{this, "TxtPu", colonne2_2.result(LblPu)};
    Label LblQu{this, "LblQu", colonne3.caption(3, "Q unconv")};
    TextBox TxtQu{this, "TxtQu", colonne3.openResult(LblQu)};

    // The reactances of the Pi and of the T share one place: only one of them is ever shown.
    Label LblXa{this, "LblXa", colonne2.caption(13.25, "Xa")};
    TextBox TxtXa{this, "TxtXa", colonne2.result(LblXa)};
    Label LblX1{this, "LblX1", colonne2.caption(13.25, "X1")};
    TextBox TxtX1{this, "TxtX1", colonne2.result(LblX1)};
    Label LblC1{this, "LblC1", colonne3_2.caption(13.25, "C1 pF")};
    TextBox TxtC1{this, "TxtC1", colonne3_2.result(LblC1)};
    Label LblXb{this, "LblXb", colonne2.caption(14.25, "Xb")};
    TextBox TxtXb{this, "TxtXb", colonne2.result(LblXb)};
    Label LblX2{this, "LblX2", colonne2.caption(14.25, "X2")};
    TextBox TxtX2{this, "TxtX2", colonne2.result(LblX2)};
    Label LblL1{this, "LblL1", colonne3_2.caption(14.25, "L1 µH")};
    TextBox TxtL1{this, "TxtL1", colonne3_2.result(LblL1)};
    Label LblXc{this, "LblXc", colonne2.caption(15.25, "Xc")};
    TextBox TxtXc{this, "TxtXc", colonne2.result(LblXc)};
    Label LblX3{this, "LblX3", colonne2.caption(15.25, "X3")};
    TextBox TxtX3{this, "TxtX3", colonne2.result(LblX3)};
    Label LblC2{this, "LblC2", colonne3_2.caption(15.25, "C2 pF")};
    TextBox TxtC2{this, "TxtC2", colonne3_2.result(LblC2)};

    Label Label23{this, "Label23", {.at = {240, 6210, 6900, 255}}};

private:
    /// The cases that the signs of the reactances of the Pi make.
    enum class Cas { Conventionnel, NonConventionnel, Aucun };

    static TextBox::Design champ(double top, Label* label);
    static Picture::Design schema(const char* dessin);

    void Form_Load() override;
    void TxtFreq_Change();
    void TxtRin_Change();
    void TxtRout_Change();
    void LstType_Click();
    void Qscroll_Change();
    void Pscroll_Change();

    void GrandeursDeBase();

    // The solver in three passes, made of the steps below them. A store into a bar may run a whole pass inside
    // the present one, which then goes on with the variables as it finds them.
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

    void ZComplexes(Double phase);
    void Reseau();
    void PiNetwork();
    void TNetwork();
    void LNetwork();
    [[nodiscard]] Cas CasDuReseau() const;
    void MontrerPi(PictureBox& dessin);
    void MontrerT(PictureBox& dessin);
    void Choisir(PictureBox& dessin);
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
