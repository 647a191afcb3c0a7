#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The inductance of a winding on a toroidal core, for iron powder and for ferrite side by side.
class CalculSurTores final : public FeuilleCalcul {
public:
    explicit CalculSurTores(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "CalculSurTores", .Caption = "Calcul des inductances sur tores", .Width = 14940, .Height = 4020}}
    {
    }

    using Me = CalculSurTores;
    static constexpr Column fer{.left = 240, .captions = 2520, .results = 2040};
    static constexpr Column ferrite{.left = 5520, .captions = 2520, .results = 2040};

    Label Label1{this, "Label1", titre(fer, "Tores à fer pulvérisé")};
    Label Label3{this, "Label3", fer.caption(1, "AL (µH par 100 tours)")};
    TextBox TxtAlFerPulverise{this, "TxtAlFerPulverise", fer.input(Label3), &Me::TxtAlFerPulverise_Change};
    Label Label4{this, "Label4", fer.caption(2, "Diamètre intérieur en mm")};
    TextBox TxtDiamIntFerPul{this, "TxtDiamIntFerPul", fer.input(Label4), &Me::TxtDiamIntFerPul_Change};
    Label Label5{this, "Label5", fer.caption(3, "Diamètre extérieur en mm")};
    TextBox TxtDiamExtFerPul{this, "TxtDiamExtFerPul", fer.input(Label5), &Me::TxtDiamExtFerPul_Change};
    Label Label6{this, "Label6", fer.caption(4, "Epaisseur du tore en mm")};
    TextBox TxtEpFePul{this, "TxtEpFePul", fer.input(Label6), &Me::TxtEpFePul_Change};
    Label Label7{this, "Label7", fer.caption(5.75, "Nombre de spires")};
    TextBox TxtSpiresFerPul{this, "TxtSpiresFerPul", fer.input(Label7), &Me::TxtSpiresFerPul_Change};
    VScrollBar VScrollSpiresFerPul{
        this, "VScrollSpiresFerPul", barreSpires(fer, Label7), &Me::VScrollSpiresFerPul_Change};
    Label Label8{this, "Label8", fer.caption(7.75, "Valeur d'inductance en H")};
    TextBox TxtInductanceFerPul{this, "TxtInductanceFerPul", fer.result(Label8)};

    Line Line1{this, "Line1", {.X1 = 5190, .Y1 = 240, .X2 = 5190, .Y2 = 3345, .BorderColor = 0x808080}};

    Label Label2{this, "Label2", titre(ferrite, "Tores en ferrites")};
    Label Label9{this, "Label9", ferrite.caption(1, "AL (mH par 1000 tours)")};
    TextBox TxtAlFerrite{this, "TxtAlFerrite", ferrite.input(Label9), &Me::TxtAlFerrite_Change};
    Label Label10{this, "Label10", ferrite.caption(2, "Diamètre intérieur en mm")};
    TextBox TxtDiamIntFerrite{this, "TxtDiamIntFerrite", ferrite.input(Label10), &Me::TxtDiamIntFerrite_Change};
    Label Label11{this, "Label11", ferrite.caption(3, "Diamètre extérieur en mm")};
    TextBox TxtDiamExtFerrite{this, "TxtDiamExtFerrite", ferrite.input(Label11), &Me::TxtDiamExtFerrite_Change};
    Label Label12{this, "Label12", ferrite.caption(4, "Epaisseur du tore en mm")};
    TextBox TxtEpFerrite{this, "TxtEpFerrite", ferrite.input(Label12), &Me::TxtEpFerrite_Change};
    Label Label13{this, "Label13", ferrite.caption(5.75, "Nombre de spires")};
    TextBox TxtSpiresFerrite{this, "TxtSpiresFerrite", ferrite.input(Label13), &Me::TxtSpiresFerrite_Change};
    VScrollBar VScrollSpiresFerrite{
        this, "VScrollSpiresFerrite", barreSpires(ferrite, Label13), &Me::VScrollSpiresFerrite_Change};
    Label Label14{this, "Label14", ferrite.caption(7.75, "Valeur d'inductance en H")};
    TextBox TxtInductanceFerrite{this, "TxtInductanceFerrite", ferrite.result(Label14)};

    PictureBox Picture1{this, "Picture1", {.picture = "tore", .at = {10440, 240, 4140, 3105}}};

private:
    static constexpr double largeur = 3900; ///< of the captions with their inputs

    static Label::Design titre(const Column& tores, const char* texte)
    {
        return {.Caption = texte, .at = {tores.left, tores.top, largeur, 315}, .font = {.bold = true}};
    }
    /// Right of the inputs, from the title down to the result: a pixel of the bar is worth many turns.
    static VScrollBar::Design barreSpires(const Column& tores, Label& legende)
    {
        return {.Min = 32767,
            .Max = 0,
            .SmallChange = 1,
            .LargeChange = 10,
            .at = {tores.left + largeur + 120, tores.top, 255, 2670},
            .label = &legende};
    }

    /// What is known of one column.
    struct Tore {
        Double AL; ///< µH per 100 turns, or mH per 1000
        Double Ep; ///< cm
        Double DiamInt; ///< cm
        Double DiamExt; ///< cm
        Double N; ///< turns
    };

    void Form_Load() override;
    void TxtAlFerPulverise_Change();
    void TxtDiamIntFerPul_Change();
    void TxtDiamExtFerPul_Change();
    void TxtEpFePul_Change();
    void TxtSpiresFerPul_Change();
    void VScrollSpiresFerPul_Change();
    void TxtAlFerrite_Change();
    void TxtDiamIntFerrite_Change();
    void TxtDiamExtFerrite_Change();
    void TxtEpFerrite_Change();
    void TxtSpiresFerrite_Change();
    void VScrollSpiresFerrite_Change();

    void Calculer();
    /// One column: `tours` is the square of the turns that AL is given for, `unite` the unit of the inductance in
    /// henrys, and `c` the constant of the inductance by geometry.
    static void CalculerColonne(const Tore& tore, TextBox& resultat, Double tours, Double unite, Double c);

    Tore FerPulverise;
    Tore Ferrite;
};

} // namespace ondelis
