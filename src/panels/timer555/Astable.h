#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/timer555/Reglages.h"

namespace ondelis {

/// The two resistors of a 555 timer in astable connection for a wanted frequency and a given capacitor.
class Astable final : public FeuilleCalcul {
public:
    explicit Astable(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Astable", .Caption = "Montage astable", .Width = 7245, .Height = 8400}}
    {
    }

    using Me = Astable;
    static constexpr Column reglages{.left = 240, .captions = 5580, .top = 4440, .pitch = 1020};
    static constexpr Column resistances{.left = 420, .captions = 4440, .top = 6750};

    PictureBox Picture1{this, "Picture1", {.picture = "astable-555", .at = {240, 240, 6645, 3840}}};

    Label LblFreq{this, "LblFreq", reglages.caption(0, "Fréquence")};
    Label Label2{this, "Label2", {.Caption = "1", .at = sousLegende(LblFreq, 180)}};
    HScrollBar HscrFreq{this, "HscrFreq", barre(rightOf(Label2, 4740), 50, LblFreq), &Me::HscrFreq_Change};
    Label Label3{this, "Label3", {.Caption = "1000", .at = rightOf(HscrFreq, 540)}};
    ListBox LstFreq{this, "LstFreq", unites(LblFreq, {"Hz", "KHz"}), &Me::LstFreq_Click};

    Label LblCapa{this, "LblCapa", reglages.caption(1, "Condensateur")};
    Label Label4{this, "Label4", {.Caption = "1", .at = sousLegende(LblCapa, 180)}};
    HScrollBar HscrCapa{this, "HscrCapa", barre(rightOf(Label4, 4740), 10, LblCapa), &Me::HscrCapa_Change};
    Label Label5{this, "Label5", {.Caption = "1000", .at = rightOf(HscrCapa, 540)}};
    ListBox LstCapa{this, "LstCapa", unites(LblCapa, {"µF", "nF", "pF"}), &Me::LstCapa_Click};

    Shape Cadre1{this, "Cadre1", {.at = {240, 6510, 6645, 1155}}};
    Label LblR1{this, "LblR1", resistances.caption(0, "R1")};
    Label LblR2{this, "LblR2", resistances.caption(1, "R2")};
    Label Label1{this, "Label1", {.Caption = "R2 = 3 x R1", .at = {5340, resistances.at(0.5).Top, 1365, 255}}};

private:
    void Form_Load() override;
    void HscrFreq_Change();
    void LstFreq_Click();
    void HscrCapa_Change();
    void LstCapa_Click();
    void CalculResistances();

    Double Frequence; ///< Hz
    Double Capacite; ///< F
};

} // namespace ondelis
