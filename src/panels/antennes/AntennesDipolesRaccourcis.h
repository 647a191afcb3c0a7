#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/CouleursDessins.h"

namespace ondelis {

/// The loading coils that bring a dipole shorter than a half wave to resonance.
class AntennesDipolesRaccourcis final : public FeuilleCalcul {
public:
    static constexpr Box drawing{240, 240, 5220, 1680};

    explicit AntennesDipolesRaccourcis(Desk& desk)
        : FeuilleCalcul{
            desk, {.name = "AntennesDipolesRaccourcis", .Caption = "Dipoles raccourcis", .Width = 5820, .Height = 6150}}
    {
    }

    using Me = AntennesDipolesRaccourcis;
    static constexpr Column colonne{.left = 240, .captions = 3300, .inputs = 1860, .results = 1860, .top = 2160};
    static constexpr Column colonne_2 = colonne.from(240);
    static constexpr Column colonne_3 = colonne.from(4080);

    Image Dessin{this, "Dessin", {.picture = "dipole-raccourci", .at = drawing}};
    Label LblA{this, "LblA", dessin::lettreDeCote("A", drawing, 0.500, 0.125)};
    Label LblB{this, "LblB", dessin::lettreDeCote("B", drawing, 0.626, 0.357)};

    Label Label1{this, "Label1", colonne.caption(0, "Longueur totale du dipole en mètres")};
    TextBox TxtA{this, "TxtA", colonne.input(Label1), &Me::TxtA_Change};
    Label Label2{this, "Label2",
        {.Caption = "Distance entre le centre du dipole et la self en mètres", .at = {240, 2550, 3300, 510}}};
    TextBox TxtB{this, "TxtB", {.at = {3600, 2520, 1860, 315}, .label = &Label2}, &Me::TxtB_Change};
    Label Label3{this, "Label3", colonne_2.caption(8, "Diamètre du fil d'antenne en mm")};
    TextBox TxtDiam{this, "TxtDiam", colonne_2.input(Label3), &Me::TxtDiam_Change};
    Label Label4{this, "Label4", colonne_2.caption(9, "Fréquence de travail en MHz")};
    TextBox TxtF{this, "TxtF", colonne_2.input(Label4), &Me::TxtF_Change};

    Label Label5{this, "Label5", colonne_3.caption(0, "Impédance de la self")};
    TextBox TxtXL{this, "TxtXL", colonne_3.result(Label5)};
    Label Label6{this, "Label6", colonne_3.caption(1, "Valeur de la self en H")};
    TextBox TxtValSelf{this, "TxtValSelf", colonne_3.result(Label6)};
    Label Label7{this, "Label7",
        {.Caption = "Plus la distance B est grande, plus la valeur de self nécessaire forte",
            .at = {240, 4980, 5220, 510}}};

private:
    void Form_Load() override;
    void TxtA_Change();
    void TxtB_Change();
    void TxtDiam_Change();
    void TxtF_Change();
    void Calculer();

    Double LongA; ///< ft
    Double LongB; ///< ft
    Double DiamFil; ///< inches
    Double FreqDip; ///< MHz
};

} // namespace ondelis
