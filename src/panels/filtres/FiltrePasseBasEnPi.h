#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A Pi, T or L network that matches a high resistance R to a lower one, r, at one frequency. Two bars steer it:
/// its quality Q and its phase shift P. Formulas: The ARRL Antenna Compendium, 1989, vol. 2, p. 187.
class FiltrePasseBasEnPi final : public FeuilleCalcul {
public:
    explicit FiltrePasseBasEnPi(Desk& desk);

    // clang-format off
    Label      LblFreq {this, "LblFreq", {.Caption = "Frequence MHz", .at = {240, 270, 1500, 255}}};
    TextBox    TxtFreq {this, "TxtFreq", champ(240, &LblFreq), &FiltrePasseBasEnPi::TxtFreq_Change};
    Label      LblRin  {this, "LblRin",  {.Caption = "R entree", .at = {240, 630, 900, 255}}};
    TextBox    TxtRin  {this, "TxtRin",  champ(600, &LblRin), &FiltrePasseBasEnPi::TxtRin_Change};
    Label      LblRout {this, "LblRout", {.Caption = "r sortie", .at = {240, 990, 900, 255}}};
    TextBox    TxtRout {this, "TxtRout", champ(960, &LblRout), &FiltrePasseBasEnPi::TxtRout_Change};
    Label      Label21 {this, "Label21", {.Caption = "R > r", .at = {1140, 990, 600, 255}, .ForeColor = 0x0000FF, .align = Align::Center}};

    Label      Label22 {this, "Label22", {.Caption = "Choix du type de filtre", .at = {240, 1410, 2640, 255}}};
    ListBox    LstType {this, "LstType", {.Items = {"Filtre en Pi", "Filtre en T", "Filtre en L"}, .at = {240, 1670, 2640, 780}, .label = &Label22},
                        &FiltrePasseBasEnPi::LstType_Click};

    PictureBox ConvPi  {this, "ConvPi",   schema("conv-pi")};
    PictureBox UnconvPi{this, "UnconvPi", schema("unconv-pi")};
    PictureBox ConvT   {this, "ConvT",    schema("conv-t")};
    PictureBox UnconvT {this, "UnconvT",  schema("unconv-t")};
    PictureBox Lnet    {this, "Lnet",     schema("filtre-l")};
    Label      LblInfo {this, "LblInfo",  {.Caption = "Pas de solution", .at = {3060, 1215, 4080, 255}, .align = Align::Center, .Visible = false}};

    Label      LblQQ   {this, "LblQQ",   {.Caption = "Q", .at = {240, 2640, 1050, 255}}};
    HScrollBar Qscroll {this, "Qscroll", {.Min = 10, .Max = 1000, .Value = 10, .LargeChange = 10, .at = {1320, 2640, 4440, 255}, .label = &LblQQ},
                        &FiltrePasseBasEnPi::Qscroll_Change};
    Label      LblQ    {this, "LblQ",    {.Caption = "Q", .at = {5880, 2640, 240, 255}}};
    TextBox    TxtQ    {this, "TxtQ",    resultField({6180, 2610, 960, 315}, &LblQ)};
    Label      LblP    {this, "LblP",    {.Caption = "P désiré", .at = {240, 3000, 1050, 255}}};
    HScrollBar Pscroll {this, "Pscroll", {.Min = 1, .Max = 17999, .Value = 100, .LargeChange = 100, .at = {1320, 3000, 4440, 255}, .label = &LblP},
                        &FiltrePasseBasEnPi::Pscroll_Change};

    Label      LblN    {this, "LblN",  {.Caption = "N", .at = {240, 3450, 900, 255}}};
    TextBox    TxtN    {this, "TxtN",  resultField({1200, 3420, 2400, 315}, &LblN)};
    Label      LblT    {this, "LblT",  {.Caption = "T", .at = {3780, 3450, 900, 255}}};
    TextBox    TxtT    {this, "TxtT",  resultField({4740, 3420, 2400, 315}, &LblT)};
    Label      LblPm   {this, "LblPm", {.Caption = "Pm", .at = {240, 3810, 900, 255}}};
    TextBox    TxtPm   {this, "TxtPm", resultField({1200, 3780, 2400, 315}, &LblPm)};
    Label      LblQm   {this, "LblQm", {.Caption = "Qm", .at = {3780, 3810, 900, 255}}};
    TextBox    TxtQm   {this, "TxtQm", resultField({4740, 3780, 2400, 315}, &LblQm)};
    Label      LblPc   {this, "LblPc", {.Caption = "P conv", .at = {240, 4170, 900, 255}}};
    TextBox    TxtPc   {this, "TxtPc", resultField({1200, 4140, 2400, 315}, &LblPc)};
    Label      LblQc   {this, "LblQc", {.Caption = "Q conv", .at = {3780, 4170, 900, 255}}};
    TextBox    TxtQc   {this, "TxtQc", openResultField({4740, 4140, 2400, 315}, &LblQc)};
    Label      LblPu   {this, "LblPu", {.Caption = "P unconv", .at = {240, 4530, 900, 255}}};
    TextBox    TxtPu   {this, "TxtPu", resultField({1200, 4500, 2400, 315}, &LblPu)};
    Label      LblQu   {this, "LblQu", {.Caption = "Q unconv", .at = {3780, 4530, 900, 255}}};
    TextBox    TxtQu   {this, "TxtQu", openResultField({4740, 4500, 2400, 315}, &LblQu)};

    // The reactances of the Pi and of the T share one place: only one of them is ever shown.
    Label      LblXa   {this, "LblXa", {.Caption = "Xa", .at = {240, 5040, 900, 255}}};
    TextBox    TxtXa   {this, "TxtXa", resultField({1200, 5010, 2400, 315}, &LblXa)};
    Label      LblX1   {this, "LblX1", {.Caption = "X1", .at = {240, 5040, 900, 255}}};
    TextBox    TxtX1   {this, "TxtX1", resultField({1200, 5010, 2400, 315}, &LblX1)};
    Label      LblC1   {this, "LblC1", {.Caption = "C1 pF", .at = {3780, 5040, 900, 255}}};
    TextBox    TxtC1   {this, "TxtC1", resultField({4740, 5010, 2400, 315}, &LblC1)};
    Label      LblXb   {this, "LblXb", {.Caption = "Xb", .at = {240, 5400, 900, 255}}};
    TextBox    TxtXb   {this, "TxtXb", resultField({1200, 5370, 2400, 315}, &LblXb)};
    Label      LblX2   {this, "LblX2", {.Caption = "X2", .at = {240, 5400, 900, 255}}};
    TextBox    TxtX2   {this, "TxtX2", resultField({1200, 5370, 2400, 315}, &LblX2)};
    Label      LblL1   {this, "LblL1", {.Caption = "L1 µH", .at = {3780, 5400, 900, 255}}};
    TextBox    TxtL1   {this, "TxtL1", resultField({4740, 5370, 2400, 315}, &LblL1)};
    Label      LblXc   {this, "LblXc", {.Caption = "Xc", .at = {240, 5760, 900, 255}}};
    TextBox    TxtXc   {this, "TxtXc", resultField({1200, 5730, 2400, 315}, &LblXc)};
    Label      LblX3   {this, "LblX3", {.Caption = "X3", .at = {240, 5760, 900, 255}}};
    TextBox    TxtX3   {this, "TxtX3", resultField({1200, 5730, 2400, 315}, &LblX3)};
    Label      LblC2   {this, "LblC2", {.Caption = "C2 pF", .at = {3780, 5760, 900, 255}}};
    TextBox    TxtC2   {this, "TxtC2", resultField({4740, 5730, 2400, 315}, &LblC2)};

    Label      Label23 {this, "Label23", {.at = {240, 6210, 6900, 255}}};
    // clang-format on

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
