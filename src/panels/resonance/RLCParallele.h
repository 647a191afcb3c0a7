#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/resonance/Diagramme.h"

namespace ondelis {

/// A coil with its resistance in parallel with a capacitor, under one volt, swept in frequency: impedances and
/// currents of the two branches, phase, and the diagram of the currents.
class RLCParallele final : public FeuilleCalcul {
public:
    explicit RLCParallele(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "RLCParallele", .Caption = "Resolution graphique RLC parallele", .Width = 8325, .Height = 7680}}
    {
    }

    using Me = RLCParallele;
    static constexpr Column saisies{.left = 240, .captions = 2100, .results = 1320};
    static constexpr Column resultats{.left = 240, .captions = 1350, .results = 2400, .top = 3120};
    static constexpr Column courants{.left = 240, .captions = 600, .top = 4560};
    static constexpr diagramme::Legende legende{
        .traits = 240, .noms = {.left = 660, .captions = 1500, .top = 5925, .pitch = 270}};

    Label LblR{this, "LblR", saisies.caption(0, "R en Ohms")};
    TextBox TxtR{this, "TxtR", saisies.input(LblR), &Me::TxtR_Change};
    Label LblL{this, "LblL", saisies.caption(1, "L en µH")};
    TextBox TxtL{this, "TxtL", saisies.input(LblL), &Me::TxtL_Change};
    Label LblC{this, "LblC", saisies.caption(2, "C en pF")};
    TextBox TxtC{this, "TxtC", saisies.input(LblC), &Me::TxtC_Change};
    Label Label12{this, "Label12", saisies.caption(3, "Fréq de début en MHz")};
    TextBox TxtFreqDeb{this, "TxtFreqDeb", saisies.input(Label12), &Me::TxtFreqDeb_Change};
    Label Label10{this, "Label10", saisies.caption(4, "Fréq de fin en MHz")};
    TextBox TxtFreqFin{this, "TxtFreqFin", saisies.input(Label10), &Me::TxtFreqFin_Change};

    Label Label22{this, "Label22", saisies.caption(5.5, "Fréquence")};
    HScrollBar HScroll1{
        this, "HScroll1", {.LargeChange = 10, .at = resultats.across(-1.5), .label = &Label22}, &Me::HScroll1_Change};
    TextBox TxtFreq{this, "TxtFreq", saisies.result(Label22)};

    Label Label5{this, "Label5", resultats.caption(0, "sqr(R² + L² w²)")};
    TextBox TxtXl{this, "TxtXl", resultats.result(Label5)};
    Label Label6{this, "Label6", resultats.caption(1, "1/Cw")};
    TextBox TxtXc{this, "TxtXc", resultats.result(Label6)};
    Label Label15{this, "Label15", resultats.caption(2, "Impédance")};
    TextBox TxtZ{this, "TxtZ", resultats.result(Label15)};
    Label Label14{this, "Label14", resultats.caption(3, "Déphasage")};
    TextBox TxtPhi{this, "TxtPhi", resultats.result(Label14)};

    Label Label20{this, "Label20", courants.caption(0, "I1 = ")};
    Label Label13{this, "Label13", {.at = rightOf(Label20, 3150)}};
    Label Label21{this, "Label21", courants.caption(1, "I2 = ")};
    Label Label16{this, "Label16", {.at = rightOf(Label21, 3150)}};

    Image Schema{this, "Schema", {.picture = "rlc-parallele", .at = {4260, 120, 3705, 2745}}};

    // The diagram. Lines may lie on one another: the later ones are thinner.
    Label LblIc{this, "LblIc", {.Caption = "Ic en avance sur U", .at = under(Schema, 3705, 255, 135)}};
    Shape Cadre{this, "Cadre", {.at = under(LblIc, 3705, 3420, 45)}};
    Line Line1{this, "Line1", {.X1 = 4560, .Y1 = 5010, .X2 = 7845, .Y2 = 5010, .BorderColor = diagramme::axe}};
    Label LblU{this, "LblU", {.Caption = "U", .at = {7605, 5055, 285, 255}}};
    Line LXl{this, "LXl", {.BorderColor = diagramme::bobine, .BorderWidth = 7, .within = &Cadre}};
    Line LR{this, "LR", {.BorderColor = diagramme::resistance, .BorderWidth = 5, .within = &Cadre}};
    Line LXc{this, "LXc", {.BorderColor = diagramme::condensateur, .BorderWidth = 4, .within = &Cadre}};
    Line LRes{this, "LRes", {.BorderColor = diagramme::resultante, .BorderWidth = 2, .within = &Cadre}};
    Label LblIz{this, "LblIz", {.Caption = "Iz en retard sur U", .at = under(Cadre, 1875, 255, 45)}};
    Label LblZlr{this, "LblZlr", {.Caption = "Zlr=sqr(R² + Xl²)", .at = rightOf(LblIz, 1770), .align = Align::Right}};

    Line LegendeXl{this, "LegendeXl", legende.trait(0, diagramme::bobine, 7)};
    Label LblLegendeXl{this, "LblLegendeXl", legende.nom(0, "Xl / Zlr")};
    Line LegendeR{this, "LegendeR", legende.trait(1, diagramme::resistance, 5)};
    Label LblLegendeR{this, "LblLegendeR", legende.nom(1, "R / Z")};
    Line LegendeXc{this, "LegendeXc", legende.trait(2, diagramme::condensateur, 4)};
    Label LblLegendeXc{this, "LblLegendeXc", legende.nom(2, "Xc")};
    Line LegendeRes{this, "LegendeRes", legende.trait(3, diagramme::resultante, 2)};
    Label LblLegendeRes{this, "LblLegendeRes", legende.nom(3, "Résultante")};

private:
    void Form_Load() override;
    void TxtR_Change();
    void TxtL_Change();
    void TxtC_Change();
    void TxtFreqDeb_Change();
    void TxtFreqFin_Change();
    void HScroll1_Change();
    void Calculer();
    void Tracer(Double Echelle, Double I1, Double I2);

    Double F; ///< Hz
    Double R; ///< ohms
    Double L; ///< H
    Double C; ///< F
    Double Pi; ///< stored by Form_Load
};

} // namespace ondelis
