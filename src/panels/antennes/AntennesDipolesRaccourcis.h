#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/CouleursDessins.h"

namespace ondelis {

/// The loading coils that bring a dipole shorter than a half wave to resonance.
class AntennesDipolesRaccourcis final : public FeuilleCalcul {
public:
    explicit AntennesDipolesRaccourcis(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "AntennesDipolesRaccourcis", .Caption = "Dipoles raccourcis", .Width = 5820, .Height = 6150}}
    {
    }

    using Me = AntennesDipolesRaccourcis;
    static constexpr Column dipole{.left = 240, .captions = 3300, .inputs = 1860, .results = 1860, .top = 2160};
    static constexpr Column fil = dipole.from(3120);
    static constexpr Column self = dipole.from(4080);

    Image Dessin{this, "Dessin", {.picture = "dipole-raccourci", .at = {240, 240, 5220, 1680}}};
    Label LblA{this, "LblA", dessin::lettreDeCote("A", Dessin.at(), 0.500, 0.125)};
    Label LblB{this, "LblB", dessin::lettreDeCote("B", Dessin.at(), 0.626, 0.357)};

    Label Label1{this, "Label1", dipole.caption(0, "Longueur totale du dipole en mètres")};
    TextBox TxtA{this, "TxtA", dipole.input(Label1), &Me::TxtA_Change};
    Label Label2{this, "Label2",
        {.Caption = "Distance entre le centre du dipole et la self en mètres", .at = lines(dipole.at(1), 2)}};
    TextBox TxtB{this, "TxtB", dipole.input(Label2), &Me::TxtB_Change};
    Label Label3{this, "Label3", fil.caption(0, "Diamètre du fil d'antenne en mm")};
    TextBox TxtDiam{this, "TxtDiam", fil.input(Label3), &Me::TxtDiam_Change};
    Label Label4{this, "Label4", fil.caption(1, "Fréquence de travail en MHz")};
    TextBox TxtF{this, "TxtF", fil.input(Label4), &Me::TxtF_Change};

    Label Label5{this, "Label5", self.caption(0, "Impédance de la self")};
    TextBox TxtXL{this, "TxtXL", self.result(Label5)};
    Label Label6{this, "Label6", self.caption(1, "Valeur de la self en H")};
    TextBox TxtValSelf{this, "TxtValSelf", self.result(Label6)};
    Label Label7{this, "Label7",
        {.Caption = "Plus la distance B est grande, plus la valeur de self nécessaire forte",
            .at = under(Label6, Dessin.at().Width, 510, 255)}};

private:
    void Form_Load() override;
    void TxtA_Change();
    void TxtB_Change();
    void TxtDiam_Change();
    void TxtF_Change();
    void Calculer();

    Double LongA; ///< length of the whole dipole, feet
    Double LongB; ///< from the centre of the dipole to a coil, feet
    Double DiamFil; ///< diameter of the wire, inches
    Double FreqDip; ///< MHz
};

} // namespace ondelis
