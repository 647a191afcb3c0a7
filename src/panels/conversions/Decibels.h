#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Ratios of powers and of voltages to decibels, and decibels to ratios. Decibels that are typed leave the powers and
/// voltages as they are.
class Decibels final : public FeuilleCalcul {
public:
    explicit Decibels(Desk& desk);

    // clang-format off
    Shape   Cadre1  {this, "Cadre1",   {.at = {240, 240, 5160, 2640}}};
    Label   Label1  {this, "Label1",   {.Caption = "Décibels en puissance", .at = {420, 330, 4440, 315}, .font = {.bold = true}}};
    Label   Label5  {this, "Label5",   {.Caption = "Puissance en entrée", .at = {420, 810, 2160, 255}}};
    TextBox TxtPe   {this, "TxtPe",    {.at = {2640, 780, 1560, 315}, .label = &Label5}, &Decibels::TxtPe_Change};
    Label   Label6  {this, "Label6",   {.Caption = "Puissance en sortie", .at = {420, 1170, 2160, 255}}};
    TextBox TxtPs   {this, "TxtPs",    {.at = {2640, 1140, 1560, 315}, .label = &Label6}, &Decibels::TxtPs_Change};
    Label   Label7  {this, "Label7",   {.Caption = "Gain en Db Puissance", .at = {420, 1710, 2160, 255}}};
    TextBox TxtGdBp {this, "TxtGdBp",  {.at = {2640, 1680, 2580, 315}, .MaxLength = 6, .label = &Label7}, &Decibels::TxtGdBp_Change};
    Label   Label9  {this, "Label9",   {.Caption = "dB = 10 log (Ps/Pe)", .at = {2640, 2025, 2580, 255}}};
    Label   Label11 {this, "Label11",  {.Caption = "Gain en puissance", .at = {420, 2430, 2160, 255}}};
    TextBox TxtGainP{this, "TxtGainP", resultField({2640, 2400, 2580, 315}, &Label11)};

    Shape   Cadre2  {this, "Cadre2",   {.at = {5520, 240, 5160, 2640}}};
    Label   Label2  {this, "Label2",   {.Caption = "Décibels en tension", .at = {5700, 330, 4440, 315}, .font = {.bold = true}}};
    Label   Label3  {this, "Label3",   {.Caption = "Tension d'entrée", .at = {5700, 810, 2160, 255}}};
    TextBox TxtUe   {this, "TxtUe",    {.at = {7920, 780, 1560, 315}, .label = &Label3}, &Decibels::TxtUe_Change};
    Label   Label4  {this, "Label4",   {.Caption = "Tension de sortie", .at = {5700, 1170, 2160, 255}}};
    TextBox TxtUs   {this, "TxtUs",    {.at = {7920, 1140, 1560, 315}, .label = &Label4}, &Decibels::TxtUs_Change};
    Label   Label8  {this, "Label8",   {.Caption = "Gain en dB Tension", .at = {5700, 1710, 2160, 255}}};
    TextBox TxtGdBU {this, "TxtGdBU",  {.at = {7920, 1680, 2580, 315}, .MaxLength = 6, .label = &Label8}, &Decibels::TxtGdBU_Change};
    Label   Label10 {this, "Label10",  {.Caption = "dB = 20 log (Us/Ue)", .at = {7920, 2025, 2580, 255}}};
    Label   Label12 {this, "Label12",  {.Caption = "Gain en tension", .at = {5700, 2430, 2160, 255}}};
    TextBox TxtGainU{this, "TxtGainU", resultField({7920, 2400, 2580, 315}, &Label12)};
    // clang-format on

private:
    void Form_Load() override;
    void TxtPe_Change();
    void TxtPs_Change();
    void TxtGdBp_Change();
    void TxtUe_Change();
    void TxtUs_Change();
    void TxtGdBU_Change();
    void CalculerdBP();
    void CalculerdBU();

    Double Pe; ///< at the input, in the unit of Ps
    Double Ps; ///< at the output
    Double Ue; ///< at the input, in the unit of Us
    Double Us; ///< at the output
};

} // namespace ondelis
