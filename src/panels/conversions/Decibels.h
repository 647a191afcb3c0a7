#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Ratios of powers and of voltages to decibels, and decibels to ratios. Decibels that are typed leave the powers and
/// voltages as they are.
class Decibels final : public FeuilleCalcul {
public:
    explicit Decibels(Desk& desk)
        : FeuilleCalcul{
            desk, {.name = "Decibels", .Caption = "Les dB en Puissance et en Tesnsion", .Width = 11040, .Height = 3600}}
    {
    }

    using Me = Decibels;
    static constexpr Column colonne{.left = 420, .captions = 2160, .inputs = 1560, .results = 2580};
    static constexpr Column colonne2{.left = 5700, .captions = 2160, .inputs = 1560, .results = 2580};

    Shape Cadre1{this, "Cadre1", {.at = {240, 240, 5160, 2640}}};
    Label Label1{
        this, "Label1", {.Caption = "Décibels en puissance", .at = {420, 330, 4440, 315}, .font = {.bold = true}}};
    Label Label5{this, "Label5", colonne.caption(1.5, "Puissance en entrée")};
    TextBox TxtPe{this, "TxtPe", colonne.input(Label5), &Me::TxtPe_Change};
    Label Label6{this, "Label6", colonne.caption(2.5, "Puissance en sortie")};
    TextBox TxtPs{this, "TxtPs", colonne.input(Label6), &Me::TxtPs_Change};
    Label Label7{this, "Label7", colonne.caption(4, "Gain en Db Puissance")};
    TextBox TxtGdBp{
        this, "TxtGdBp", {.at = beside(Label7, 2580), .MaxLength = 6, .label = &Label7}, &Me::TxtGdBp_Change};
    Label Label9{this, "Label9", {.Caption = "dB = 10 log (Ps/Pe)", .at = {2640, 2025, 2580, 255}}};
    Label Label11{this, "Label11", colonne.caption(6, "Gain en puissance")};
    TextBox TxtGainP{this, "TxtGainP", colonne.result(Label11)};

    Shape Cadre2{this, "Cadre2", {.at = {5520, 240, 5160, 2640}}};
    Label Label2{
        this, "Label2", {.Caption = "Décibels en tension", .at = {5700, 330, 4440, 315}, .font = {.bold = true}}};
    Label Label3{this, "Label3", colonne2.caption(1.5, "Tension d'entrée")};
    TextBox TxtUe{this, "TxtUe", colonne2.input(Label3), &Me::TxtUe_Change};
    Label Label4{this, "Label4", colonne2.caption(2.5, "Tension de sortie")};
    TextBox TxtUs{this, "TxtUs", colonne2.input(Label4), &Me::TxtUs_Change};
    Label Label8{this, "Label8", colonne2.caption(4, "Gain en dB Tension")};
    TextBox TxtGdBU{
        this, "TxtGdBU", {.at = beside(Label8, 2580), .MaxLength = 6, .label = &Label8}, &Me::TxtGdBU_Change};
    Label Label10{this, "Label10", {.Caption = "dB = 20 log (Us/Ue)", .at = {7920, 2025, 2580, 255}}};
    Label Label12{this, "Label12", colonne2.caption(6, "Gain en tension")};
    TextBox TxtGainU{this, "TxtGainU", colonne2.result(Label12)};

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
