#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A band-pass filter of two Pi sections in cascade, C1 L1 C2 and C3 L2 C4.
class FiltreEnDoublePi final : public FeuilleCalcul {
public:
    explicit FiltreEnDoublePi(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "FiltreEnDoublePi", .Caption = "Filtre en douple Pi", .Width = 13050, .Height = 3450}}
    {
    }

    using Me = FiltreEnDoublePi;
    static constexpr Column saisies{.left = 240, .captions = 1860};
    static constexpr Box drawing{4320, 600, 8370, 1800};

    Label Label19{this, "Label19",
        {.Caption = "Entrer vos valeurs dans les champs sur fond vert", .at = {240, saisies.at(0).Top, 5040, 255}}};
    Label Label8{this, "Label8", saisies.caption(2, "Fréquence centrale")};
    TextBox TxtF0{this, "TxtF0", saisie(Label8), &Me::TxtF0_Change};
    Label Label10{this, "Label10", unitOf(TxtF0, "MHz", 540)};
    Label Label9{this, "Label9", saisies.caption(3, "Bande passante")};
    TextBox TxtBP{this, "TxtBP", saisie(Label9), &Me::TxtBP_Change};
    Label Label11{this, "Label11", unitOf(TxtBP, "MHz", 540)};
    Label Label1{this, "Label1", saisies.caption(4, "Z in en Ohms")};
    TextBox TxtZin{this, "TxtZin", saisie(Label1), &Me::TxtZin_Change};
    Label Label7{this, "Label7", saisies.caption(5, "Z out en Ohms")};
    TextBox TxtZout{this, "TxtZout", saisie(Label7), &Me::TxtZout_Change};

    Image Schema{this, "Schema", {.picture = "double-pi", .at = drawing}};
    Label Label2{this, "Label2", letter("C1", drawing, 0.159, 0.567)};
    Label Label3{this, "Label3", letter("C2", drawing, 0.416, 0.567)};
    Label Label4{this, "Label4", letter("L1", drawing, 0.246, 0.071)};
    Label Label6{this, "Label6", letter("C3", drawing, 0.671, 0.567)};
    Label Label5{this, "Label5", letter("L2", drawing, 0.754, 0.071)};
    Label Label12{this, "Label12", letter("C4", drawing, 0.925, 0.567)};

    // Each result stands over or under its part.
    TextBox TxtL1{this, "TxtL1", resultat(Label4, 5385, dessus)};
    TextBox TxtL2{this, "TxtL2", resultat(Label5, 9645, dessus)};
    TextBox TxtC1{this, "TxtC1", resultat(Label2, 4320, dessous)};
    TextBox TxtC2{this, "TxtC2", resultat(Label3, 6450, dessous)};
    TextBox TxtC3{this, "TxtC3", resultat(Label6, 8580, dessous)};
    TextBox TxtC4{this, "TxtC4", resultat(Label12, 10710, dessous)};

private:
    static constexpr double dessus = 240; ///< the top of the results over the drawing
    static constexpr double dessous = drawing.Top + drawing.Height + 60; ///< of those under it

    static TextBox::Design saisie(Label& legende)
    {
        TextBox::Design design = saisies.input(legende);
        design.BackColor = givenColor;
        return design;
    }
    /// Shows the letter of its part until there is a value.
    static TextBox::Design resultat(Label& lettre, double left, double top)
    {
        TextBox::Design design = resultField({left, top, 1980, 315}, &lettre);
        design.Text = lettre.design().Caption;
        return design;
    }

    void Form_Load() override;
    void TxtF0_Change();
    void TxtBP_Change();
    void TxtZin_Change();
    void TxtZout_Change();
    void CalculerDoublePi();
    Double Controler(Double valeur);
    void RemplirNombreSpires();

    Double FacteurMHz; ///< hertz in a megahertz
};

} // namespace ondelis
