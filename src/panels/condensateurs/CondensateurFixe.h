#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "kit/Table.h"

namespace ondelis {

/// Capacitance of a plane capacitor, and a table of twelve dielectrics.
class CondensateurFixe final : public FeuilleCalcul {
public:
    explicit CondensateurFixe(Desk& desk)
        : FeuilleCalcul{
            desk, {.name = "CondensateurFixe", .Caption = "Condensateurs fixes", .Width = 10050, .Height = 6480}}
    {
    }

    using Me = CondensateurFixe;
    static constexpr Column colonne{.left = 2460, .captions = 2220, .inputs = 1560, .results = 1560, .top = 660};
    static constexpr Column colonne_2 = colonne.from(240);

    Shape Cadre1{this, "Cadre1", {.at = {240, 240, 9450, 3540}}};
    Label Lbl_Isolant{this, "Lbl_Isolant", {.Caption = "Diélectrique", .at = {420, 360, 1800, 255}}};
    ListBox LstDielectrique{this, "LstDielectrique",
        {.Items = {"Air", "Céramique I", "Céramique II", "Electrolytique", "Mica", "Mylar", "Papier", "Polycarbonate",
             "Polystyrène", "Tantale", "Téflon", "Verre"},
            .at = {420, 660, 1800, 2940},
            .clickOnChosenRow = true,
            .label = &Lbl_Isolant},
        &Me::LstDielectrique_Click};
    Label LblCsteDiel{this, "LblCsteDiel",
        {.Caption = "Constante diélectrique", .at = {2460, 330, 2760, 315}, .font = {.bold = true}}};
    Label Label3{this, "Label3", colonne.caption(0, "Valeur de calcul")};
    TextBox TxtCstDiel{this, "TxtCstDiel", colonne.input(Label3), &Me::TxtCstDiel_Change};
    Label Label1{this, "Label1", colonne.caption(1, "Valeur Min")};
    TextBox TxtCstDielMin{this, "TxtCstDielMin", colonne.result(Label1)};
    Label LblCstDielMax{this, "LblCstDielMax", colonne.caption(2, "Valeur Max")};
    TextBox TxtCstDielMax{this, "TxtCstDielMax", colonne.result(LblCstDielMax)};
    Label LblDomFreq{this, "LblDomFreq", colonne_2.caption(5, "Domaine de Fréquence")};
    TextBox TxtDomFreq{this, "TxtDomFreq", colonne_2.result(LblDomFreq)};
    Label LblPhi{this, "LblPhi", colonne_2.caption(6, "Angle de pertes")};
    TextBox TxtPhi{this, "TxtPhi", colonne_2.result(LblPhi)};
    Label LblUtilisation{this, "LblUtilisation", colonne_2.caption(7, "Utilisation")};
    TextBox TxtUtil{this, "TxtUtil",
        {.at = {4740, 2760, 4770, 840},
            .BackColor = resultColor,
            .Locked = true,
            .multiLine = true,
            .label = &LblUtilisation}};
    Image Icone{this, "Icone", {.picture = "condensateur-plan", .at = {6240, 450, 3450, 2100}}};

    Shape Cadre2{this, "Cadre2", {.at = {240, 3900, 5460, 1860}}};
    Label LblSurface{this, "LblSurface", {.Caption = "Surface", .at = {420, 4215, 1320, 255}}};
    TextBox TxtSurface{
        this, "TxtSurface", {.at = {420, 4560, 1320, 315}, .label = &LblSurface}, &Me::TxtSurface_Change};
    Label LblUnitésS{this, "LblUnitésS", {.Caption = "Unité", .at = {1860, 4215, 900, 255}}};
    ListBox LstUnités{this, "LstUnités",
        {.Items = {"m²", "dm²", "cm²", "mm²"}, .at = {1860, 4560, 900, 1020}, .label = &LblUnitésS},
        &Me::LstUnités_Click};
    Label LblEspace{this, "LblEspace", {.Caption = "Epaisseur diélectrique", .at = {3180, 4005, 1320, 510}}};
    TextBox TxtEpaisseur{
        this, "TxtEpaisseur", {.at = {3180, 4560, 1320, 315}, .label = &LblEspace}, &Me::TxtEpaisseur_Change};
    Label LblUnitéE{this, "LblUnitéE", {.Caption = "Unité", .at = {4620, 4215, 900, 255}}};
    ListBox LstUniteE{this, "LstUniteE",
        {.Items = {"m", "dm", "cm", "mm"}, .at = {4620, 4560, 900, 1020}, .label = &LblUnitéE}, &Me::LstUniteE_Click};

    Shape Cadre3{this, "Cadre3", {.at = {5820, 3900, 3870, 1860}}};
    Label Lbl_Capacité{this, "Lbl_Capacité", {.Caption = "Capacité", .at = {6000, 4215, 3510, 255}}};
    TextBox TxtCapacite{this, "TxtCapacite",
        {.at = {6000, 4560, 3510, 480},
            .BackColor = resultColor,
            .ForeColor = 0xFF80FF,
            .Locked = true,
            .font = {.size = 14},
            .label = &Lbl_Capacité}};

private:
    void Form_Load() override;
    void LstDielectrique_Click();
    void TxtCstDiel_Change();
    void TxtEpaisseur_Change();
    void TxtSurface_Change();
    void LstUniteE_Click();
    void LstUnités_Click();
    void Calculer();

    static constexpr int dernierDiviseur = 4;

    Double Epsilon; ///< relative permittivity in use
    Double Epaisseur; ///< as typed
    Double Surface; ///< as typed
    Double DiviseurSurface; ///< units of the surface in 1 m²
    Double DiviseurEpaisseur; ///< units of the thickness in 1 m
    Table<Double, dernierDiviseur> DiviseursSurface; ///< by the row of LstUnités
    Table<Double, dernierDiviseur> DiviseursEpaisseur; ///< by the row of LstUniteE
};

} // namespace ondelis
