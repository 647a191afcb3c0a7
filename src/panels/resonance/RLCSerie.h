#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/resonance/Diagramme.h"

namespace ondelis {

/// R, L and C in series under one volt, swept in frequency: reactances, impedance, phase, current, and the diagram
/// of the impedances.
class RLCSerie final : public FeuilleCalcul {
public:
    explicit RLCSerie(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "RLCSerie", .Caption = "Résolution graphique RLC série", .Width = 9315, .Height = 7560}}
    {
    }

    using Me = RLCSerie;
    static constexpr Column saisies{.left = 240, .captions = 2100, .results = 1320};
    static constexpr Column resultats{.left = 240, .captions = 2100, .results = 2550, .top = 3120};
    static constexpr Column formules{.left = 240, .captions = 4710, .top = 5250};
    static constexpr diagramme::Legende legende{
        .traits = 7860, .noms = {.left = 8250, .captions = 600, .top = 3030, .pitch = 270}};

    Label LblR{this, "LblR", saisies.caption(0, "R en Ohms")};
    TextBox TxtR{this, "TxtR", saisies.input(LblR), &Me::TxtR_Change};
    Label LblL{this, "LblL", saisies.caption(1, "L en µH")};
    TextBox TxtL{this, "TxtL", saisies.input(LblL), &Me::TxtL_Change};
    Label LblC{this, "LblC", saisies.caption(2, "C en pF")};
    TextBox TxtC{this, "TxtC", saisies.input(LblC), &Me::TxtC_Change};
    Label LblFreqDeb{this, "LblFreqDeb", saisies.caption(3, "Fréq de début en MHz")};
    TextBox TxtFreqDeb{this, "TxtFreqDeb", saisies.input(LblFreqDeb), &Me::TxtFreqDeb_Change};
    Label LblFreqFin{this, "LblFreqFin", saisies.caption(4, "Fréq de fin en MHz")};
    TextBox TxtFreqFin{this, "TxtFreqFin", saisies.input(LblFreqFin), &Me::TxtFreqFin_Change};

    Label Label18{this, "Label18", saisies.caption(5.5, "Fréquence active")};
    HScrollBar HScroll1{
        this, "HScroll1", {.LargeChange = 10, .at = resultats.across(-1.5), .label = &Label18}, &Me::HScroll1_Change};
    TextBox TxtFreq{this, "TxtFreq", saisies.result(Label18)};

    Label LblXl{this, "LblXl", resultats.caption(0, "Xl en Ohms")};
    TextBox TxtXl{this, "TxtXl", resultats.result(LblXl)};
    Label LblXc{this, "LblXc", resultats.caption(1, "Xc en Ohms")};
    TextBox TxtXc{this, "TxtXc", resultats.result(LblXc)};
    Label Label15{this, "Label15", resultats.caption(2, "Impédance")};
    TextBox TxtZ{this, "TxtZ", resultats.result(Label15)};
    Label Label14{this, "Label14", resultats.caption(3, "Déphasage")};
    TextBox TxtPhi{this, "TxtPhi", resultats.result(Label14)};
    Label Label4{this, "Label4", resultats.caption(4, "I commun")};
    Label Label19{this, "Label19", {.at = {2445, resultats.at(4).Top, 2505, 255}}};

    Label LblFormuleXl{this, "LblFormuleXl", formules.caption(0, "Xl = L * 2 * Pi * F")};
    Label LblFormuleXc{this, "LblFormuleXc", formules.caption(1, "Xc = 1 / (C * 2 * Pi * F)")};
    Label LblFormuleZ{this, "LblFormuleZ", formules.caption(2, "Z = racine [ R² + (Xl - Xc)²]")};
    Label LblFormulePhi{this, "LblFormulePhi", formules.caption(3, "Phi = atn[ (Xl-Xc) / (R) ]")};

    Image Schema{this, "Schema", {.picture = "rlc-serie", .at = {5190, 120, 3765, 2580}}};

    // The diagram: its longest side takes a fifth of the width of the panel, up or down from the origin, or to its
    // right. Lines may lie on one another: the later ones are thinner.
    Shape Cadre{this, "Cadre", {.at = under(Schema, 3765, 3900, 240)}};
    Line Line3{this, "Line3", {.X1 = 5655, .Y1 = 4890, .X2 = 8655, .Y2 = 4890, .BorderColor = diagramme::axe}};
    Line LXl{this, "LXl", {.BorderColor = diagramme::bobine, .BorderWidth = 7, .within = &Cadre}};
    Line LR{this, "LR", {.BorderColor = diagramme::resistance, .BorderWidth = 5, .within = &Cadre}};
    Line LXc{this, "LXc", {.BorderColor = diagramme::condensateur, .BorderWidth = 4, .within = &Cadre}};
    Line LResultante{this, "LResultante", {.BorderColor = diagramme::resultante, .BorderWidth = 2, .within = &Cadre}};

    Line LegendeR{this, "LegendeR", legende.trait(0, diagramme::resistance, 5)};
    Label LblLegendeR{this, "LblLegendeR", legende.nom(0, "R")};
    Line LegendeXl{this, "LegendeXl", legende.trait(1, diagramme::bobine, 7)};
    Label LblLegendeXl{this, "LblLegendeXl", legende.nom(1, "Xl")};
    Line LegendeXc{this, "LegendeXc", legende.trait(2, diagramme::condensateur, 4)};
    Label LblLegendeXc{this, "LblLegendeXc", legende.nom(2, "Xc")};
    Line LegendeResultante{this, "LegendeResultante", legende.trait(3, diagramme::resultante, 2)};
    Label LblLegendeZ{this, "LblLegendeZ", legende.nom(3, "Z")};

private:
    void Form_Load() override;
    void TxtR_Change();
    void TxtL_Change();
    void TxtC_Change();
    void TxtFreqDeb_Change();
    void TxtFreqFin_Change();
    void HScroll1_Change();
    void Calculer();
    void Tracer(Double Xl, Double Xc);

    Double R; ///< ohms
    Double L; ///< H
    Double C; ///< F
    Double Frequence; ///< MHz
};

} // namespace ondelis
