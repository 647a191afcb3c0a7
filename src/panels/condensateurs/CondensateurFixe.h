#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "kit/Table.h"

namespace ondelis {

/// Capacitance of a plane capacitor, and a table of twelve dielectrics.
class CondensateurFixe final : public FeuilleCalcul {
public:
    explicit CondensateurFixe(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "CondensateurFixe", .Caption = "Condensateurs fixes", .Width = 10050, .Height = 6480}}
    {
    }

    using Me = CondensateurFixe;
    static constexpr Column constante{.left = 2460, .captions = 2220, .inputs = 1560, .results = 1560, .top = 660};
    static constexpr Column proprietes = constante.from(2040);

    Shape Cadre1{this, "Cadre1", {.at = {240, 240, 9450, 3540}}};
    Label Lbl_Isolant{this, "Lbl_Isolant", {.Caption = "Diélectrique", .at = {420, 360, 1800, 255}}};
    ListBox LstDielectrique{this, "LstDielectrique",
        {.Items = {"Air", "Céramique I", "Céramique II", "Electrolytique", "Mica", "Mylar", "Papier", "Polycarbonate",
             "Polystyrène", "Tantale", "Téflon", "Verre"},
            .at = under(Lbl_Isolant, 1800, listHeight(12), 45),
            .clickOnChosenRow = true,
            .label = &Lbl_Isolant},
        &Me::LstDielectrique_Click};
    Label LblCsteDiel{this, "LblCsteDiel",
        {.Caption = "Constante diélectrique", .at = {constante.left, 330, 2760, 315}, .font = {.bold = true}}};
    Label Label3{this, "Label3", constante.caption(0, "Valeur de calcul")};
    TextBox TxtCstDiel{this, "TxtCstDiel", constante.input(Label3), &Me::TxtCstDiel_Change};
    Label Label1{this, "Label1", constante.caption(1, "Valeur Min")};
    TextBox TxtCstDielMin{this, "TxtCstDielMin", constante.result(Label1)};
    Label LblCstDielMax{this, "LblCstDielMax", constante.caption(2, "Valeur Max")};
    TextBox TxtCstDielMax{this, "TxtCstDielMax", constante.result(LblCstDielMax)};
    Label LblDomFreq{this, "LblDomFreq", proprietes.caption(0, "Domaine de Fréquence")};
    TextBox TxtDomFreq{this, "TxtDomFreq", proprietes.result(LblDomFreq)};
    Label LblPhi{this, "LblPhi", proprietes.caption(1, "Angle de pertes")};
    TextBox TxtPhi{this, "TxtPhi", proprietes.result(LblPhi)};
    Label LblUtilisation{this, "LblUtilisation", proprietes.caption(2, "Utilisation")};
    TextBox TxtUtil{this, "TxtUtil", resultatMultiligne(LblUtilisation)};
    Image Icone{this, "Icone", {.picture = "condensateur-plan", .at = {6240, 450, 3450, 2100}}};

    Shape Cadre2{this, "Cadre2", {.at = under(Cadre1, 5460, 1860, 120)}};
    Label LblSurface{this, "LblSurface", legende(420, 1320, "Surface")};
    TextBox TxtSurface{this, "TxtSurface", {.at = sous(LblSurface), .label = &LblSurface}, &Me::TxtSurface_Change};
    Label LblUnitésS{this, "LblUnitésS", legende(1860, 900, "Unité")};
    ListBox LstUnités{this, "LstUnités", unites(LblUnitésS, {"m²", "dm²", "cm²", "mm²"}), &Me::LstUnités_Click};
    Label LblEspace{this, "LblEspace", {.Caption = "Epaisseur diélectrique", .at = {3180, 4005, 1320, 510}}};
    TextBox TxtEpaisseur{this, "TxtEpaisseur", {.at = sous(LblEspace), .label = &LblEspace}, &Me::TxtEpaisseur_Change};
    Label LblUnitéE{this, "LblUnitéE", legende(4620, 900, "Unité")};
    ListBox LstUniteE{this, "LstUniteE", unites(LblUnitéE, {"m", "dm", "cm", "mm"}), &Me::LstUniteE_Click};

    Shape Cadre3{this, "Cadre3", {.at = {5820, Cadre2.at().Top, 3870, 1860}}};
    Label Lbl_Capacité{this, "Lbl_Capacité", legende(6000, 3510, "Capacité")};
    TextBox TxtCapacite{this, "TxtCapacite",
        {.at = sous(Lbl_Capacité, 480),
            .BackColor = resultColor,
            .ForeColor = 0xFF80FF,
            .Locked = true,
            .font = {.size = 14},
            .label = &Lbl_Capacité}};

private:
    /// A result of several lines.
    static TextBox::Design resultatMultiligne(Label& legende)
    {
        TextBox::Design design = resultField(legende, 4770);
        design.at.Height = 840;
        design.multiLine = true;
        return design;
    }
    // In the lower frames each caption stands over its field or its list, which is as wide.
    static Label::Design legende(double left, double width, const char* text)
    {
        return {.Caption = text, .at = {left, 4215, width, 255}};
    }
    static Box sous(const Label& legende, double height = 315)
    {
        return {legende.at().Left, 4560, legende.at().Width, height};
    }
    static ListBox::Design unites(Label& legende, std::vector<std::string> items)
    {
        const double height = listHeight(static_cast<int>(items.size()));
        return {.Items = std::move(items), .at = sous(legende, height), .label = &legende};
    }

    void Form_Load() override;
    void LstDielectrique_Click();
    void TxtCstDiel_Change();
    void TxtEpaisseur_Change();
    void TxtSurface_Change();
    void LstUniteE_Click();
    void LstUnités_Click();
    void Calculer();

    static constexpr int lastIndex = 4; ///< in the tables of divisors: one more than the lists need

    Double Epsilon; ///< relative permittivity in use
    Double Epaisseur; ///< as typed
    Double Surface; ///< as typed
    Double DiviseurSurface; ///< units of the surface in 1 m²
    Double DiviseurEpaisseur; ///< units of the thickness in 1 m
    Table<Double, lastIndex> DiviseursSurface; ///< by the row of LstUnités
    Table<Double, lastIndex> DiviseursEpaisseur; ///< by the row of LstUniteE
};

} // namespace ondelis
