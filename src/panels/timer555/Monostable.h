#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/timer555/Reglages.h"

namespace ondelis {

/// The pulse of a 555 timer in monostable connection, from its resistor and its capacitor.
class Monostable final : public FeuilleCalcul {
public:
    explicit Monostable(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "Monostable", .Caption = "Montage en monostable", .Width = 7245, .Height = 7785}}
    {
    }

    using Me = Monostable;
    static constexpr Column reglages{.left = 240, .captions = 5580, .top = 4440, .pitch = 1020};

    PictureBox Picture1{this, "Picture1", {.picture = "monostable-555", .at = {240, 240, 6645, 3840}}};

    Label LblRes{this, "LblRes", reglages.caption(0, "Résistance")};
    HScrollBar HscrRes{this, "HscrRes", barre(sousLegende(LblRes, 5580), 1, LblRes), &Me::HscrRes_Change};
    ListBox LstRes{this, "LstRes", unites(LblRes, {"Ohms", "KOhms", "MOhms"}), &Me::LstRes_Click};

    Label LblCapa{this, "LblCapa", reglages.caption(1, "Condensateur")};
    HScrollBar HscrCapa{this, "HscrCapa", barre(sousLegende(LblCapa, 5580), 1, LblCapa), &Me::HscrCapa_Change};
    ListBox LstCapa{this, "LstCapa", unites(LblCapa, {"µF", "nF", "pF"}), &Me::LstCapa_Click};

    Shape Cadre1{this, "Cadre1", {.at = {240, 6390, 6645, 675}}};
    Label LblDuree{this, "LblDuree", {.Caption = "Durée en secondes", .at = {420, 6600, 6285, 255}}};

private:
    void Form_Load() override;
    void HscrRes_Change();
    void LstRes_Click();
    void HscrCapa_Change();
    void LstCapa_Click();
    void CalculMonostable();

    Double Resistance; ///< ohms
    Double Capacite; ///< F
};

} // namespace ondelis
