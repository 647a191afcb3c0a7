#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/CouleursDessins.h"
#include "panels/timer555/Reglages.h"

namespace ondelis {

/// A 555 oscillator of constant frequency whose duty cycle a potentiometer varies: the fixed resistor R1, the two parts
/// of the potentiometer, and the wave.
class RapportCyclique final : public FeuilleCalcul {
public:
    explicit RapportCyclique(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "RapportCyclique",
                .Caption = "Le 555 : Rapport Cyclique variable à fréquence constante",
                .Width = 6555,
                .Height = 8085}}
    {
    }

    using Me = RapportCyclique;
    static constexpr Column reglages{.left = 240, .captions = 4890, .top = 4140, .pitch = 720};
    static constexpr Column rapport{.left = 240, .captions = 3480, .top = 5640};
    static constexpr Column resultats{.left = 420, .captions = 5595, .top = 6375, .pitch = 270};

    PictureBox Picture1{this, "Picture1", {.picture = "rapport-cyclique-555", .at = {240, 180, 5955, 3840}}};

    Label LblFreq{this, "LblFreq", reglages.caption(0, "Fréquence")};
    Label Label1{this, "Label1", {.Caption = "1", .at = sousLegende(LblFreq, 180)}};
    HScrollBar HScrlFreq{this, "HScrlFreq", barre(rightOf(Label1, 4050), 1, LblFreq), &Me::HScrlFreq_Change};
    Label Label2{this, "Label2", {.Caption = "1000", .at = rightOf(HScrlFreq, 540)}};
    ListBox LstFreq{this, "LstFreq", unites(LblFreq, {"Hz", "KHz"}), &Me::LstFreq_Click};

    Label LblCondo{this, "LblCondo", reglages.caption(1, "Condensateur")};
    Label Label4{this, "Label4", {.Caption = "1", .at = sousLegende(LblCondo, 180)}};
    HScrollBar HScrlCondo{this, "HScrlCondo", barre(rightOf(Label4, 4050), 1, LblCondo), &Me::HScrlCondo_Change};
    Label Label3{this, "Label3", {.Caption = "1000", .at = rightOf(HScrlCondo, 540)}};
    ListBox LstCondo{this, "LstCondo", unites(LblCondo, {"µF", "nF", "pF"}), &Me::LstCondo_Click};

    Label LblRapportCyclique{this, "LblRapportCyclique", rapport.caption(0, "Rapport cyclique")};
    Label Label5{this, "Label5", {.Caption = "1%", .at = sousLegende(LblRapportCyclique, 360)}};
    HScrollBar HScrlRapportCyclique{this, "HScrlRapportCyclique",
        {.Min = 1, .Max = 99, .Value = 1, .LargeChange = 10, .at = rightOf(Label5, 2520), .label = &LblRapportCyclique},
        &Me::HScrlRapportCyclique_Change};
    Label Label6{this, "Label6", {.Caption = "99%", .at = rightOf(HScrlRapportCyclique, 480)}};

    // The wave, as at 50 percent.
    static constexpr double debut = 3960;
    static constexpr double milieu = 4940;
    static constexpr double fin = 5960;
    static constexpr double haut = 5640;
    static constexpr double bas = 6240;
    Line Line1{this, "Line1", onde(debut, bas, debut, haut)};
    Line Line2{this, "Line2", onde(debut, bas, milieu, bas)};
    Line Line3{this, "Line3", onde(milieu, bas, milieu, haut)};
    Line Line4{this, "Line4", onde(milieu, haut, fin, haut)};
    Line Line5{this, "Line5", onde(fin, haut, fin, bas)};

    Shape Cadre1{this, "Cadre1", {.at = {240, 6345, 5955, 1185}}};
    Label LblR1{this, "LblR1", resultats.caption(0, "R1")};
    Label LblP1a{this, "LblP1a", resultats.caption(1, "P1a")};
    Label LblP1b{this, "LblP1b", resultats.caption(2, "P1b")};
    Label LblPotar{this, "LblPotar", resultats.caption(3, "Potentiometre")};

private:
    static Line::Design onde(double x1, double y1, double x2, double y2)
    {
        return {.X1 = x1, .Y1 = y1, .X2 = x2, .Y2 = y2, .BorderColor = dessin::encre, .BorderWidth = 2};
    }

    void Form_Load() override;
    void LstFreq_Click();
    void HScrlFreq_Change();
    void LstCondo_Click();
    void HScrlCondo_Change();
    void HScrlRapportCyclique_Change();
    void Calculer();
    void TracerOnde(Double LargeurA, Integer LargeurB);

    Double Frequence; ///< Hz
    Double Capacite; ///< F
    Double RapportCyc; ///< percent
};

} // namespace ondelis
