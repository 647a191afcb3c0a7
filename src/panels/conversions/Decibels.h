#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Ratios of powers and of voltages to decibels, and decibels to ratios. Typing decibels leaves the powers and voltages
/// unchanged.
class Decibels final : public FeuilleCalcul {
public:
    explicit Decibels(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "Decibels", .Caption = "Les dB en Puissance et en Tesnsion", .Width = 11040, .Height = 3600}}
    {
    }

    using Me = Decibels;
    static constexpr Column puissance{.left = 420, .captions = 2160, .inputs = 1560, .results = 2580};
    static constexpr Column tension{.left = 5700, .captions = 2160, .inputs = 1560, .results = 2580};

    Shape Cadre1{this, "Cadre1", cadre(puissance)};
    Label Label1{this, "Label1", titre(puissance, "Décibels en puissance")};
    Label Label5{this, "Label5", puissance.caption(1.5, "Puissance en entrée")};
    TextBox TxtPe{this, "TxtPe", puissance.input(Label5), &Me::TxtPe_Change};
    Label Label6{this, "Label6", puissance.caption(2.5, "Puissance en sortie")};
    TextBox TxtPs{this, "TxtPs", puissance.input(Label6), &Me::TxtPs_Change};
    Label Label7{this, "Label7", puissance.caption(4, "Gain en Db Puissance")};
    TextBox TxtGdBp{this, "TxtGdBp", decibels(Label7), &Me::TxtGdBp_Change};
    Label Label9{this, "Label9", formule(TxtGdBp, "dB = 10 log (Ps/Pe)")};
    Label Label11{this, "Label11", puissance.caption(6, "Gain en puissance")};
    TextBox TxtGainP{this, "TxtGainP", puissance.result(Label11)};

    Shape Cadre2{this, "Cadre2", cadre(tension)};
    Label Label2{this, "Label2", titre(tension, "Décibels en tension")};
    Label Label3{this, "Label3", tension.caption(1.5, "Tension d'entrée")};
    TextBox TxtUe{this, "TxtUe", tension.input(Label3), &Me::TxtUe_Change};
    Label Label4{this, "Label4", tension.caption(2.5, "Tension de sortie")};
    TextBox TxtUs{this, "TxtUs", tension.input(Label4), &Me::TxtUs_Change};
    Label Label8{this, "Label8", tension.caption(4, "Gain en dB Tension")};
    TextBox TxtGdBU{this, "TxtGdBU", decibels(Label8), &Me::TxtGdBU_Change};
    Label Label10{this, "Label10", formule(TxtGdBU, "dB = 20 log (Us/Ue)")};
    Label Label12{this, "Label12", tension.caption(6, "Gain en tension")};
    TextBox TxtGainU{this, "TxtGainU", tension.result(Label12)};

private:
    static Shape::Design cadre(const Column& colonne) { return {.at = {colonne.left - 180, colonne.top, 5160, 2640}}; }
    static Label::Design titre(const Column& colonne, const char* text)
    {
        return {.Caption = text, .at = {colonne.left, colonne.top + 90, 4440, 315}, .font = {.bold = true}};
    }
    static TextBox::Design decibels(Label& legende)
    {
        return {.at = beside(legende, puissance.results), .MaxLength = 6, .label = &legende};
    }
    static Label::Design formule(const TextBox& champ, const char* text)
    {
        return {.Caption = text, .at = under(champ, puissance.results, 255, 30)};
    }

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
