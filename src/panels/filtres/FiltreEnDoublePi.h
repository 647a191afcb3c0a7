#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A band-pass filter of two Pi sections in cascade, C1 L1 C2 and C3 L2 C4.
class FiltreEnDoublePi final : public FeuilleCalcul {
public:
    static constexpr Box drawing{4320, 600, 8370, 1800};

    explicit FiltreEnDoublePi(Desk& desk)
        : FeuilleCalcul{
            desk, {.name = "FiltreEnDoublePi", .Caption = "Filtre en douple Pi", .Width = 13050, .Height = 3450}}
    {
    }

    using Me = FiltreEnDoublePi;
    static constexpr Column colonne{.left = 240, .captions = 1860};

    Label Label19{this, "Label19",
        {.Caption = "Entrer vos valeurs dans les champs sur fond vert", .at = {240, rowTop(0) + 30, 5040, 255}}};
    Label Label8{this, "Label8", colonne.caption(2, "Fréquence centrale")};
    TextBox TxtF0{
        this, "TxtF0", {.at = beside(Label8, 1320), .BackColor = entree, .label = &Label8}, &Me::TxtF0_Change};
    Label Label10{this, "Label10", unitOf(TxtF0, "MHz", 540)};
    Label Label9{this, "Label9", colonne.caption(3, "Bande passante")};
    TextBox TxtBP{
        this, "TxtBP", {.at = beside(Label9, 1320), .BackColor = entree, .label = &Label9}, &Me::TxtBP_Change};
    Label Label11{this, "Label11", unitOf(TxtBP, "MHz", 540)};
    Label Label1{this, "Label1", colonne.caption(4, "Z in en Ohms")};
    TextBox TxtZin{
        this, "TxtZin", {.at = beside(Label1, 1320), .BackColor = entree, .label = &Label1}, &Me::TxtZin_Change};
    Label Label7{this, "Label7", colonne.caption(5, "Z out en Ohms")};
    TextBox TxtZout{
        this, "TxtZout", {.at = beside(Label7, 1320), .BackColor = entree, .label = &Label7}, &Me::TxtZout_Change};

    Image Schema{this, "Schema", {.picture = "double-pi", .at = drawing}};
    Label Label2{this, "Label2", letter("C1", drawing, 0.159, 0.567)};
    Label Label3{this, "Label3", letter("C2", drawing, 0.416, 0.567)};
    Label Label4{this, "Label4", letter("L1", drawing, 0.246, 0.071)};
    Label Label6{this, "Label6", letter("C3", drawing, 0.671, 0.567)};
    Label Label5{this, "Label5", letter("L2", drawing, 0.754, 0.071)};
    Label Label12{this, "Label12", letter("C4", drawing, 0.925, 0.567)};

    // Each result stands over or under its part.
    TextBox TxtL1{this, "TxtL1", resultat("L1", {5385, 240, 1980, 315}, &Label4)};
    TextBox TxtL2{this, "TxtL2", resultat("L2", {9645, 240, 1980, 315}, &Label5)};
    TextBox TxtC1{this, "TxtC1", resultat("C1", {4320, 2460, 1980, 315}, &Label2)};
    TextBox TxtC2{this, "TxtC2", resultat("C2", {6450, 2460, 1980, 315}, &Label3)};
    TextBox TxtC3{this, "TxtC3", resultat("C3", {8580, 2460, 1980, 315}, &Label6)};
    TextBox TxtC4{this, "TxtC4", resultat("C4", {10710, 2460, 1980, 315}, &Label12)};

private:
    static constexpr Color entree = givenColor;

    static TextBox::Design resultat(const char* text, Box at, Label* label);

    void Form_Load() override;
    void TxtF0_Change();
    void TxtBP_Change();
    void TxtZin_Change();
    void TxtZout_Change();
    void CalculerDoublePi();
    Double Controler(Double v);
    void Bobiner();

    Double Echelle; ///< hertz in a megahertz
};

} // namespace ondelis
