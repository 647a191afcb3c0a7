#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/timer555/Reglages.h"

namespace ondelis {

/// The two resistors of a 555 timer in astable connection for a wanted frequency and a given capacitor.
class Astable final : public FeuilleCalcul {
public:
    explicit Astable(Desk& desk);

    // clang-format off
    PictureBox Picture1 {this, "Picture1",  {.picture = "astable-555", .at = {240, 240, 6645, 3840}}};

    Label      LblFreq  {this, "LblFreq",   {.Caption = "Fréquence", .at = {240, 4470, 5580, 255}}};
    Label      Label2   {this, "Label2",    {.Caption = "1", .at = {240, 4755, 180, 255}}};
    HScrollBar HscrFreq {this, "HscrFreq",  barre({480, 4755, 4740, 255}, 50, &LblFreq), &Astable::HscrFreq_Change};
    Label      Label3   {this, "Label3",    {.Caption = "1000", .at = {5280, 4755, 540, 255}}};
    ListBox    LstFreq  {this, "LstFreq",   {.Items = {"Hz", "KHz"}, .at = {5925, 4470, 960, 540}, .label = &LblFreq}, &Astable::LstFreq_Click};

    Label      LblCapa  {this, "LblCapa",   {.Caption = "Condensateur", .at = {240, 5490, 5580, 255}}};
    Label      Label4   {this, "Label4",    {.Caption = "1", .at = {240, 5775, 180, 255}}};
    HScrollBar HscrCapa {this, "HscrCapa",  barre({480, 5775, 4740, 255}, 10, &LblCapa), &Astable::HscrCapa_Change};
    Label      Label5   {this, "Label5",    {.Caption = "1000", .at = {5280, 5775, 540, 255}}};
    ListBox    LstCapa  {this, "LstCapa",   {.Items = {"µF", "nF", "pF"}, .at = {5925, 5370, 960, 780}, .label = &LblCapa}, &Astable::LstCapa_Click};

    Shape      Cadre1   {this, "Cadre1",    {.at = {240, 6510, 6645, 1155}}};
    Label      LblR1    {this, "LblR1",     {.Caption = "R1", .at = {420, 6780, 4440, 255}}};
    Label      LblR2    {this, "LblR2",     {.Caption = "R2", .at = {420, 7140, 4440, 255}}};
    Label      Label1   {this, "Label1",    {.Caption = "R2 = 3 x R1", .at = {5340, 6960, 1365, 255}}};
    // clang-format on

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
