#pragma once

#include <string>

#include "forms/Column.h"
#include "forms/ControlArray.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/CouleursDessins.h"

namespace ondelis {

/// Useful surface and greatest capacitance of an air-spaced variable capacitor with half-disc blades. The fields
/// of the two radii hold diameters.
class CondensateurVariable final : public FeuilleCalcul {
public:
    explicit CondensateurVariable(Desk& desk)
        : FeuilleCalcul{
            desk, {.name = "CondensateurVariable", .Caption = "Condensateur variable", .Width = 9120, .Height = 5520}}
    {
    }

    using Me = CondensateurVariable;
    static constexpr Column colonne{.left = 240, .captions = 2040, .inputs = 1260, .results = 2820, .top = 1440};
    static constexpr Column colonne_2 = colonne.from(240);

    OptionButton OptClassique{
        this, "OptClassique", {.Caption = "Cv classique", .at = {240, 240, 2640, 300}}, &Me::OptClassique_Click};
    OptionButton OptPapSer{
        this, "OptPapSer", {.Caption = "Cv papillon série", .at = {240, 600, 2640, 300}}, &Me::OptPapSer_Click};
    OptionButton OptPapPar{
        this, "OptPapPar", {.Caption = "CV papillon parallèle", .at = {240, 960, 2640, 300}}, &Me::OptPapPar_Click};

    Label LblMobiles{this, "LblMobiles", colonne.caption(0, "Lames mobiles")};
    TextBox TxtMobiles{this, "TxtMobiles", colonne.input(LblMobiles), &Me::TxtMobiles_Change};
    Label LblFixes{this, "LblFixes", colonne.caption(1, "Lames fixes")};
    TextBox TxtFixes{this, "TxtFixes", colonne.input(LblFixes), &Me::TxtFixes_Change};
    Label LblEspacement{this, "LblEspacement", colonne.caption(2, "Espacement mm")};
    TextBox TxtEspacement{this, "TxtEspacement", colonne.input(LblEspacement), &Me::TxtEspacement_Change};
    Label LblAngle{this, "LblAngle", colonne.caption(3, "Angle de lames")};
    TextBox TxtAngle{this, "TxtAngle", colonne.input(LblAngle), &Me::TxtAngle_Change};
    Label LblRayon{this, "LblRayon", colonne.caption(4, "Diamètre ext mm")};
    TextBox TxtRayExt{this, "TxtRayExt", colonne.input(LblRayon), &Me::TxtRayExt_Change};
    Label LblRayonInt{this, "LblRayonInt", colonne.caption(5, "Diamètre int mm")};
    TextBox TxtRayInt{this, "TxtRayInt", colonne.input(LblRayonInt), &Me::TxtRayInt_Change};
    Label LblIsolant{this, "LblIsolant", {.Caption = "Diélectrique : Air", .at = {240, 3690, 3360, 255}}};

    Label LblSurfUtile{this, "LblSurfUtile", colonne_2.caption(10.75, "Surface utile cm²")};
    TextBox TxtSurfUtile{this, "TxtSurfUtile", colonne_2.result(LblSurfUtile)};
    Label LblCapacite{this, "LblCapacite", colonne_2.caption(11.75, "Capacite max")};
    TextBox TxtCapacite{this, "TxtCapacite", colonne_2.result(LblCapacite)};

    // The blades from above, as the construction has them.
    Image Classique{this, "Classique", lames("condensateur-variable")};
    Image PapillonSerie{this, "PapillonSerie", lames("papillon-serie")};
    Image PapillonParallele{this, "PapillonParallele", lames("papillon-parallele")};
    // The blades from the side: two combs that reach into one another.
    Line LM{
        this, "LM", {.X1 = 5340, .Y1 = 3660, .X2 = 8580, .Y2 = 3660, .BorderColor = dessin::cuivre, .BorderWidth = 3}};
    Line LF{
        this, "LF", {.X1 = 5340, .Y1 = 4740, .X2 = 8580, .Y2 = 4740, .BorderColor = dessin::encre, .BorderWidth = 3}};
    ControlArray<Line> LM1{this, "LM1", 5, &CondensateurVariable::lameMobile};
    ControlArray<Line> LF1{this, "LF1", 5, &CondensateurVariable::lameFixe};

private:
    static Image::Design lames(const char* dessin) { return {.picture = dessin, .at = {5160, 60, 3600, 3300}}; }
    static Line::Design lameMobile(int index);
    static Line::Design lameFixe(int index);

    void Form_Load() override;
    void OptClassique_Click();
    void OptPapSer_Click();
    void OptPapPar_Click();
    void TxtRayExt_Change();
    void TxtRayInt_Change();
    void TxtEspacement_Change();
    void TxtAngle_Change();
    void TxtFixes_Change();
    void TxtMobiles_Change();

    void Montrer(const Image& construction);
    static void DessinerLames(Double n, ControlArray<Line>& lames);
    void Calculer();
    void RefuserAngle(const std::string& message);

    Double RayonInt; ///< cm
    Double RayonExt; ///< cm
    Double Espacement; ///< cm
    Double Angle; ///< degrees, as the construction counts them
    Double NbFixes;
    Double NbMobiles;
    Double NbIntervalles;
};

} // namespace ondelis
