#pragma once

#include <string>

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The resonance of an LC circuit, solved for the frequency, the inductance or the capacitance.
class FormuleDeThomson final : public FeuilleCalcul {
public:
    explicit FormuleDeThomson(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "FormuleDeThomson", .Caption = "Formule de Thomson", .Width = 6540, .Height = 3585}}
    {
    }

    using Me = FormuleDeThomson;

    static constexpr Column choix{.left = 240, .captions = 300, .top = 517, .pitch = 960};
    static constexpr Column grandeurs{.left = 600, .captions = 2550, .top = 210, .pitch = 960};
    static constexpr Column egalites{.left = 3210, .captions = 420, .top = 510, .pitch = 960};
    static constexpr Column numerateurs{.left = 3660, .captions = 1710, .top = 330, .pitch = 960};
    static constexpr Column denominateurs = numerateurs.from(690);

    OptionButton OptF{this, "OptF", {.at = choix.optionAt(0), .label = &LblFrequ}, &Me::OptF_Click};
    Label LblFrequ{this, "LblFrequ", grandeurs.caption(0, "Fréquence en MHz")};
    TextBox TxtFreq{this, "TxtFreq", {.at = under(LblFrequ, 2550), .label = &LblFrequ}, &Me::TxtFreq_Change};
    OptionButton OptL{this, "OptL", {.at = choix.optionAt(1), .label = &Label12}, &Me::OptL_Click};
    Label Label12{this, "Label12", grandeurs.caption(1, "Inductance en µH")};
    TextBox TxtSelf{this, "TxtSelf", {.at = under(Label12, 2550), .label = &Label12}, &Me::TxtSelf_Change};
    OptionButton OptC{this, "OptC", {.at = choix.optionAt(2), .label = &LblCapa}, &Me::OptC_Click};
    Label LblCapa{this, "LblCapa", grandeurs.caption(2, "Capacitance en pF")};
    TextBox TxtCapa{this, "TxtCapa", {.at = under(LblCapa, 2550), .label = &LblCapa}, &Me::TxtCapa_Change};

    // The formulas: F = 1 / (2 Pi root(L C)), L = 1 / ((2 Pi F)² C), C = 1 / ((2 Pi F)² L).
    Label LblF{this, "LblF", {.Caption = "F = ", .at = egalites.at(0), .align = Align::Right}};
    Label LblFHaut{this, "LblFHaut", {.Caption = "1", .at = numerateurs.at(0), .align = Align::Center}};
    Line BarreF{this, "BarreF", barreDeFraction(0)};
    Label LblFBas{this, "LblFBas", {.Caption = "2 * Pi *", .at = {3645, 735, 840, 255}, .align = Align::Right}};
    Line RacineF1{this, "RacineF1", {.X1 = 4545, .Y1 = 897, .X2 = 4590, .Y2 = 867}};
    Line RacineF2{this, "RacineF2", {.X1 = 4590, .Y1 = 867, .X2 = 4665, .Y2 = 1000, .BorderWidth = 2}};
    Line RacineF3{this, "RacineF3", {.X1 = 4665, .Y1 = 1000, .X2 = 4740, .Y2 = 742}};
    Line RacineF4{this, "RacineF4", {.X1 = 4740, .Y1 = 742, .X2 = 5190, .Y2 = 742}};
    Label LblFRacine{this, "LblFRacine", {.Caption = "L C", .at = {4755, 757, 420, 255}, .align = Align::Center}};

    Label LblL{this, "LblL", {.Caption = "L = ", .at = egalites.at(1), .align = Align::Right}};
    Label LblLHaut{this, "LblLHaut", {.Caption = "1", .at = numerateurs.at(1), .align = Align::Center}};
    Line BarreL{this, "BarreL", barreDeFraction(1)};
    Label LblLBas{
        this, "LblLBas", {.Caption = "( 2 * Pi * F )² * C", .at = denominateurs.at(1), .align = Align::Center}};

    Label LblC{this, "LblC", {.Caption = "C = ", .at = egalites.at(2), .align = Align::Right}};
    Label LblCHaut{this, "LblCHaut", {.Caption = "1", .at = numerateurs.at(2), .align = Align::Center}};
    Line BarreC{this, "BarreC", barreDeFraction(2)};
    Label LblCBas{
        this, "LblCBas", {.Caption = "( 2 * Pi * F )² * L", .at = denominateurs.at(2), .align = Align::Center}};

    PictureBox Picture1{this, "Picture1", {.picture = "thomson-icone", .at = {5490, 240, 690, 690}}};

private:
    /// The bar of a fraction, under its numerator.
    static Line::Design barreDeFraction(double row)
    {
        const Box numerateur = numerateurs.at(row);
        const double y = numerateur.Top + 307;
        return {.X1 = numerateur.Left, .Y1 = y, .X2 = numerateur.Left + numerateur.Width, .Y2 = y};
    }

    void Form_Load() override;
    void OptF_Click();
    void OptL_Click();
    void OptC_Click();
    void TxtFreq_Change();
    void TxtSelf_Change();
    void TxtCapa_Change();
    void Calculer();

    static void MarquerInconnue(TextBox& champ);
    static void MarquerDonnee(TextBox& champ);

    Double Frequence; ///< Hz
    Double Self; ///< H
    Double Capacite; ///< F
    std::string OptionCalcul; ///< "Frequence", "Self" or "Capacite": what is solved for
};

} // namespace ondelis
