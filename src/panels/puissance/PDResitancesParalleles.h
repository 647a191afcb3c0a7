#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A voltage divider of R1, a potentiometer and R2, loaded by Rc at the wiper. Fields are read using the region's
/// separators.
class PDResitancesParalleles final : public FeuilleCalcul {
public:
    explicit PDResitancesParalleles(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "PDResitancesParalleles",
                .Caption = "1 Calcul de ponts diviseurs",
                .Width = 10920,
                .Height = 4560}}
    {
    }

    using Me = PDResitancesParalleles;
    static constexpr Column saisies{.left = 240, .captions = 1560, .inputs = 1920};

    Label LblAlim{this, "LblAlim", saisies.caption(0, "Alimentation")};
    TextBox TxtAlim{this, "TxtAlim", saisies.input(LblAlim), &Me::TxtAlim_Change};
    Label LblR1{this, "LblR1", saisies.caption(1, "Valeur R1")};
    TextBox TxtR1{this, "TxtR1", saisies.input(LblR1), &Me::TxtR1_Change};
    Label LblPot{this, "LblPot", saisies.caption(2, "Valeur Pot")};
    TextBox TxtPot{this, "TxtPot", saisies.input(LblPot), &Me::TxtPot_Change};
    Label LblR2{this, "LblR2", saisies.caption(3, "ValeurR2")};
    TextBox TxtR2{this, "TxtR2", saisies.input(LblR2), &Me::TxtR2_Change};
    Label LblRc{this, "LblRc", saisies.caption(4, "Valeur Rc")};
    TextBox TxtRc{this, "TxtRc", saisies.input(LblRc), &Me::TxtRc_Change};

    // The circuit shows its wiper, its currents and its voltage where they are.
    Image Schema{this, "Schema", {.picture = "pont-potentiometre", .at = {4080, 330, 4800, 3540}}};
    VScrollBar VScrollPot{this, "VScrollPot",
        {.Min = 100, .Max = 0, .Value = 50, .LargeChange = 10, .at = {5295, 870, 255, 1590}, .label = &LblPot},
        &Me::VScrollPot_Change};
    TextBox TxtPPot{
        this, "TxtPPot", {.at = {5145, 2520, 555, 315}, .BackColor = 0xE0E0E0, .ForeColor = red, .label = &Label1}};
    Label Label1{this, "Label1", {.Caption = "%", .at = {5730, 2550, 240, 255}}};
    MaskEdBox MebIp{this, "MebIp", mesure(5940, 240, LblA)};
    Label LblA{this, "LblA", unitOf(MebIp, "Ampères", 900)};
    MaskEdBox MebIc{this, "MebIc", mesure(7920, 1680, Lbl2A)};
    Label Lbl2A{this, "Lbl2A", unitOf(MebIc, "Ampères", 900)};
    MaskEdBox MebUs{this, "MebUs", mesure(8700, 2580, Label2)};
    Label Label2{this, "Label2", unitOf(MebUs, "Volts", 540)};

    Label LblRvrai{this, "LblRvrai", legendeSurDeuxLignes(2400, "Résitance vue de l'alimentation")};
    TextBox TxtRAlim{this, "TxtRAlim", resultat(LblRvrai)};
    Label Label4{this, "Label4", legendeSurDeuxLignes(3000, "R équivalente Pot-R2-Rc")};
    TextBox TxtPotR2Rc{this, "TxtPotR2Rc", resultat(Label4)};

private:
    static MaskEdBox::Design mesure(double left, double top, Label& unite)
    {
        return {.at = {left, top, 1260, 315}, .BackColor = resultColor, .label = &unite};
    }
    static Label::Design legendeSurDeuxLignes(double top, const char* text)
    {
        return {.Caption = text, .at = {240, top, 1590, 510}};
    }
    /// Level with the middle of the two lines, under the inputs.
    static TextBox::Design resultat(Label& legende)
    {
        return resultField({1860, legende.at().Top + 90, 1920, 315}, &legende);
    }

    void Form_Load() override;
    void TxtAlim_Change();
    void TxtR1_Change();
    void TxtR2_Change();
    void TxtRc_Change();
    void TxtPot_Change();
    void VScrollPot_Change();

    void Init();
    void Lire(const TextBox& champ, Double& valeur);
    void Calculer();

    Double Alim; ///< V
    Double ValR1; ///< ohms
    Double ValR2; ///< ohms
    Double ValRc; ///< ohms
    Double ValPot; ///< ohms
    Double Curseur; ///< percent of the potentiometer that is under the wiper
};

} // namespace ondelis
