#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/timer555/Reglages.h"

namespace ondelis {

/// The pulse of a 555 timer in monostable connection, from its resistor and its capacitor.
class Monostable final : public FeuilleCalcul {
public:
    explicit Monostable(Desk& desk);

    // clang-format off
    PictureBox Picture1 {this, "Picture1",  {.picture = "monostable-555", .at = {240, 240, 6645, 3840}}};

    Label      LblRes   {this, "LblRes",    {.Caption = "Résistance", .at = {240, 4470, 5580, 255}}};
    HScrollBar HscrRes  {this, "HscrRes",   barre({240, 4755, 5580, 255}, 1, &LblRes), &Monostable::HscrRes_Change};
    ListBox    LstRes   {this, "LstRes",    {.Items = {"Ohms", "KOhms", "MOhms"}, .at = {5925, 4350, 960, 780}, .label = &LblRes}, &Monostable::LstRes_Click};

    Label      LblCapa  {this, "LblCapa",   {.Caption = "Condensateur", .at = {240, 5490, 5580, 255}}};
    HScrollBar HscrCapa {this, "HscrCapa",  barre({240, 5775, 5580, 255}, 1, &LblCapa), &Monostable::HscrCapa_Change};
    ListBox    LstCapa  {this, "LstCapa",   {.Items = {"µF", "nF", "pF"}, .at = {5925, 5370, 960, 780}, .label = &LblCapa}, &Monostable::LstCapa_Click};

    Shape      Cadre1   {this, "Cadre1",    {.at = {240, 6390, 6645, 675}}};
    Label      LblDuree {this, "LblDuree",  {.Caption = "Durée en secondes", .at = {420, 6600, 6285, 255}}};
    // clang-format on

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
