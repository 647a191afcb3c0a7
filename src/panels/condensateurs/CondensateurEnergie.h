#pragma once

#include <string>
#include <utility>

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Voltage, charge and charging time of a capacitor that stores a wanted energy, and the current of its discharge.
/// The fields stand inside sentences.
class CondensateurEnergie final : public FeuilleCalcul {
public:
    explicit CondensateurEnergie(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "CondensateurEnergie",
                .Caption = "Energie emmagasinée dans un condensateur",
                .Width = 7500,
                .Height = 6870}}
    {
    }

    using Me = CondensateurEnergie;
    static constexpr Column phrases{.left = 420, .captions = 3480, .top = 2460};

    Image Schema{this, "Schema", {.picture = "energie-condensateur", .at = {1590, 180, 4200, 1950}}};

    Shape Cadre1{this, "Cadre1", {.at = {240, 2310, 6900, 1320}}};
    Label Label1{this, "Label1", debut(0, "Pour obtenir un éclat de")};
    TextBox TxtJoules{this, "TxtJoules", saisie(Label1), &Me::TxtJoules_Change};
    Label Label2{this, "Label2", fin(TxtJoules, "Joules")};
    Label Label3{this, "Label3", debut(1, "Il faut charger un condensateur de")};
    TextBox TxtCapa{this, "TxtCapa", saisie(Label3), &Me::TxtCapa_Change};
    Label Label4{this, "Label4", fin(TxtCapa, "µF")};
    Label Label5{this, "Label5", debut(2, "Sous un courant constant de ")};
    TextBox TxtCourant{this, "TxtCourant", saisie(Label5), &Me::TxtCourant_Change};
    Label Label6{this, "Label6", fin(TxtCourant, "Ampères")};

    Shape Cadre2{this, "Cadre2", {.at = under(Cadre1, 6900, 1320, 120)}};
    Label Label7{this, "Label7", debut(4, "Pendant")};
    TextBox TxtTemps{this, "TxtTemps", resultat(Label7)};
    Label Label8{this, "Label8", fin(TxtTemps, "secondes")};
    Label Label10{this, "Label10", debut(5, "La tension atteinte est de ")};
    TextBox TxtTension{this, "TxtTension", resultat(Label10)};
    Label Label11{this, "Label11", fin(TxtTension, "Volts")};
    Label Label9{this, "Label9", debut(6, "La quantité de coulombs est")};
    TextBox TxtCoulombs{this, "TxtCoulombs", resultat(Label9)};

    Shape Cadre3{this, "Cadre3", {.at = under(Cadre2, 6900, 960, 120)}};
    Label Label12{this, "Label12", debut(8, "Une décharge en")};
    TextBox TxtDecharge{this, "TxtDecharge", saisie(Label12), &Me::TxtDecharge_Change};
    Label Label13{this, "Label13", fin(TxtDecharge, "ms")};
    Label Label14{this, "Label14", debut(9, "Donne un courant de ")};
    TextBox TxTCD{this, "TxTCD", resultat(Label14)};
    Label Label15{this, "Label15", fin(TxTCD, "Ampères")};

private:
    static constexpr double gap = 120; ///< between the words of a sentence and its field

    /// The words before the field. Those that end in a blank are set one blank further right, so that the sentences
    /// line up at their fields.
    static Label::Design debut(double row, const char* text)
    {
        constexpr double blankWidth = 60;
        Label::Design design = phrases.caption(row, text);
        design.align = Align::Right;
        if (std::string_view{text}.ends_with(' '))
            design.at.Left += blankWidth;
        return design;
    }
    static Box placeDuChamp(const Label& legende)
    {
        return {phrases.left + phrases.captions + gap, legende.at().Top - 30, 1980, 315};
    }
    static TextBox::Design saisie(Label& legende) { return {.at = placeDuChamp(legende), .label = &legende}; }
    static TextBox::Design resultat(Label& legende) { return resultField(placeDuChamp(legende), &legende); }
    /// The words after the field.
    static Label::Design fin(const TextBox& champ, const char* text)
    {
        const Box& at = champ.at();
        return {.Caption = text, .at = {at.Left + at.Width + gap, at.Top + 30, 960, 255}};
    }

    void Form_Load() override;
    void TxtJoules_Change();
    void TxtCapa_Change();
    void TxtCourant_Change();
    void TxtDecharge_Change();
    void Calculer();

    Double Joules; ///< J
    Double Capa; ///< F
    Double Courant; ///< A
    Double Tension; ///< V
    Double Charge; ///< C
    Double Temps; ///< s
};

} // namespace ondelis
