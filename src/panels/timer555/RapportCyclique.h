#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/CouleursDessins.h"
#include "panels/timer555/Reglages.h"

namespace ondelis {

/// A 555 oscillator of constant frequency whose duty cycle a potentiometer varies: the fixed resistor R1, the two parts
/// of the potentiometer, and the wave.
class RapportCyclique final : public FeuilleCalcul {
public:
    explicit RapportCyclique(Desk& desk);

    // clang-format off
    PictureBox Picture1            {this, "Picture1", {.picture = "rapport-cyclique-555", .at = {240, 180, 5955, 3840}}};

    Label      LblFreq             {this, "LblFreq",              {.Caption = "Fréquence", .at = {240, 4170, 4890, 255}}};
    Label      Label1              {this, "Label1",               {.Caption = "1", .at = {240, 4455, 180, 255}}};
    HScrollBar HScrlFreq           {this, "HScrlFreq",            barre({480, 4455, 4050, 255}, 1, &LblFreq), &RapportCyclique::HScrlFreq_Change};
    Label      Label2              {this, "Label2",               {.Caption = "1000", .at = {4590, 4455, 540, 255}}};
    ListBox    LstFreq             {this, "LstFreq",              {.Items = {"Hz", "KHz"}, .at = {5235, 4170, 960, 540}, .label = &LblFreq}, &RapportCyclique::LstFreq_Click};

    Label      LblCondo            {this, "LblCondo",             {.Caption = "Condensateur", .at = {240, 4890, 4890, 255}}};
    Label      Label4              {this, "Label4",               {.Caption = "1", .at = {240, 5175, 180, 255}}};
    HScrollBar HScrlCondo          {this, "HScrlCondo",           barre({480, 5175, 4050, 255}, 1, &LblCondo), &RapportCyclique::HScrlCondo_Change};
    Label      Label3              {this, "Label3",               {.Caption = "1000", .at = {4590, 5175, 540, 255}}};
    ListBox    LstCondo            {this, "LstCondo",             {.Items = {"µF", "nF", "pF"}, .at = {5235, 4770, 960, 780}, .label = &LblCondo}, &RapportCyclique::LstCondo_Click};

    Label      LblRapportCyclique  {this, "LblRapportCyclique",   {.Caption = "Rapport cyclique", .at = {240, 5670, 3480, 255}}};
    Label      Label5              {this, "Label5",               {.Caption = "1%", .at = {240, 5955, 360, 255}}};
    HScrollBar HScrlRapportCyclique{this, "HScrlRapportCyclique", {.Min = 1, .Max = 99, .Value = 1, .LargeChange = 10, .at = {660, 5955, 2520, 255}, .label = &LblRapportCyclique}, &RapportCyclique::HScrlRapportCyclique_Change};
    Label      Label6              {this, "Label6",               {.Caption = "99%", .at = {3240, 5955, 480, 255}}};

    // The wave, as at 50 percent.
    Line       Line1               {this, "Line1", {.X1 = 3960, .Y1 = 6240, .X2 = 3960, .Y2 = 5640, .BorderColor = dessin::encre, .BorderWidth = 2}};
    Line       Line2               {this, "Line2", {.X1 = 3960, .Y1 = 6240, .X2 = 4940, .Y2 = 6240, .BorderColor = dessin::encre, .BorderWidth = 2}};
    Line       Line3               {this, "Line3", {.X1 = 4940, .Y1 = 6240, .X2 = 4940, .Y2 = 5640, .BorderColor = dessin::encre, .BorderWidth = 2}};
    Line       Line4               {this, "Line4", {.X1 = 4940, .Y1 = 5640, .X2 = 5960, .Y2 = 5640, .BorderColor = dessin::encre, .BorderWidth = 2}};
    Line       Line5               {this, "Line5", {.X1 = 5960, .Y1 = 5640, .X2 = 5960, .Y2 = 6240, .BorderColor = dessin::encre, .BorderWidth = 2}};

    Shape      Cadre1              {this, "Cadre1",   {.at = {240, 6345, 5955, 1185}}};
    Label      LblR1               {this, "LblR1",    {.Caption = "R1", .at = {420, 6405, 5595, 255}}};
    Label      LblP1a              {this, "LblP1a",   {.Caption = "P1a", .at = {420, 6675, 5595, 255}}};
    Label      LblP1b              {this, "LblP1b",   {.Caption = "P1b", .at = {420, 6945, 5595, 255}}};
    Label      LblPotar            {this, "LblPotar", {.Caption = "Potentiometre", .at = {420, 7215, 5595, 255}}};
    // clang-format on

private:
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
