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
    static constexpr Column colonneFer{.left = 240, .captions = 2520, .results = 2040};
    static constexpr Column colonneFerrite{.left = 5520, .captions = 2520, .results = 2040};

    Label Label1{this, "Label1", titre(colonneFer, "Tores à fer pulvérisé")};
    Label Label3{this, "Label3", colonneFer.caption(1, "AL (µH par 100 tours)")};
    TextBox TxtAlFerPulverise{this, "TxtAlFerPulverise", colonneFer.input(Label3), &Me::TxtAlFerPulverise_Change};
    Label Label4{this, "Label4", colonneFer.caption(2, "Diamètre intérieur en mm")};
    TextBox TxtDiamIntFerPul{this, "TxtDiamIntFerPul", colonneFer.input(Label4), &Me::TxtDiamIntFerPul_Change};
    Label Label5{this, "Label5", colonneFer.caption(3, "Diamètre extérieur en mm")};
    TextBox TxtDiamExtFerPul{this, "TxtDiamExtFerPul", colonneFer.input(Label5), &Me::TxtDiamExtFerPul_Change};
    Label Label6{this, "Label6", colonneFer.caption(4, "Epaisseur du tore en mm")};
    TextBox TxtEpFePul{this, "TxtEpFePul", colonneFer.input(Label6), &Me::TxtEpFePul_Change};
    Label Label7{this, "Label7", colonneFer.caption(5.75, "Nombre de spires")};
    TextBox TxtSpiresFerPul{this, "TxtSpiresFerPul", colonneFer.input(Label7), &Me::TxtSpiresFerPul_Change};
    VScrollBar VScrollSpiresFerPul{
        this, "VScrollSpiresFerPul", barreSpires(colonneFer, Label7), &Me::VScrollSpiresFerPul_Change};
    Label Label8{this, "Label8", colonneFer.caption(7.75, "Valeur d'inductance en H")};
    TextBox TxtInductanceFerPul{this, "TxtInductanceFerPul", colonneFer.result(Label8)};

    Line Line1{this, "Line1", {.X1 = 5190, .Y1 = 240, .X2 = 5190, .Y2 = 3345, .BorderColor = 0x808080}};

    Label Label2{this, "Label2", titre(colonneFerrite, "Tores en ferrites")};
    Label Label9{this, "Label9", colonneFerrite.caption(1, "AL (mH par 1000 tours)")};
    TextBox TxtAlFerrite{this, "TxtAlFerrite", colonneFerrite.input(Label9), &Me::TxtAlFerrite_Change};
    Label Label10{this, "Label10", colonneFerrite.caption(2, "Diamètre intérieur en mm")};
    TextBox TxtDiamIntFerrite{this, "TxtDiamIntFerrite", colonneFerrite.input(Label10), &Me::TxtDiamIntFerrite_Change};
    Label Label11{this, "Label11", colonneFerrite.caption(3, "Diamètre extérieur en mm")};
    TextBox TxtDiamExtFerrite{this, "TxtDiamExtFerrite", colonneFerrite.input(Label11), &Me::TxtDiamExtFerrite_Change};
    Label Label12{this, "Label12", colonneFerrite.caption(4, "Epaisseur du tore en mm")};
    TextBox TxtEpFerrite{this, "TxtEpFerrite", colonneFerrite.input(Label12), &Me::TxtEpFerrite_Change};
    Label Label13{this, "Label13", colonneFerrite.caption(5.75, "Nombre de spires")};
    TextBox TxtSpiresFerrite{this, "TxtSpiresFerrite", colonneFerrite.input(Label13), &Me::TxtSpiresFerrite_Change};
    VScrollBar VScrollSpiresFerrite{
        this, "VScrollSpiresFerrite", barreSpires(colonneFerrite, Label13), &Me::VScrollSpiresFerrite_Change};
    Label Label14{this, "Label14", colonneFerrite.caption(7.75, "Valeur d'inductance en H")};
    TextBox TxtInductanceFerrite{this, "TxtInductanceFerrite", colonneFerrite.result(Label14)};

    PictureBox Picture1{this, "Picture1", {.picture = "tore", .at = {10440, 240, 4140, 3105}}};

private:
    static constexpr double rowWidth = 3900; ///< of a caption with its input

    static Label::Design titre(const Column& colonne, const char* text)
    {
        return {.Caption = text, .at = {colonne.left, colonne.top, rowWidth, 315}, .font = {.bold = true}};
    }
    /// Right of the inputs, from the title down to the result: a pixel of the bar is worth many turns.
    static VScrollBar::Design barreSpires(const Column& colonne, Label& legende)
    {
        return {.Min = 32767,
            .Max = 0,
            .SmallChange = 1,
            .LargeChange = 10,
            .at = {colonne.left + rowWidth + 120, colonne.top, 255, 2670},
            .label = &legende};
    }

    /// The inputs of one column.
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
    /// One column: `carreSpires` is the square of the turns that AL is given for, `facteur` brings the inductance to
    /// henrys, and `c` the constant of the inductance by geometry.
    static void CalculerColonne(const Tore& tore, TextBox& resultat, Double carreSpires, Double facteur, Double c);

    Tore FerPulverise;
    Tore Ferrite;
};

} // namespace ondelis
