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
    explicit CondensateurVariable(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "CondensateurVariable", .Caption = "Condensateur variable", .Width = 9120, .Height = 5520}}
    {
    }

    using Me = CondensateurVariable;
    static constexpr Column constructions{.left = 240, .captions = 2640};
    static constexpr Column saisies{.left = 240, .captions = 2040, .inputs = 1260, .results = 2820, .top = 1440};
    static constexpr Column resultats = saisies.from(4110);

    OptionButton OptClassique{this, "OptClassique", constructions.option(0, "Cv classique"), &Me::OptClassique_Click};
    OptionButton OptPapSer{this, "OptPapSer", constructions.option(1, "Cv papillon série"), &Me::OptPapSer_Click};
    OptionButton OptPapPar{this, "OptPapPar", constructions.option(2, "CV papillon parallèle"), &Me::OptPapPar_Click};

    Label LblMobiles{this, "LblMobiles", saisies.caption(0, "Lames mobiles")};
    TextBox TxtMobiles{this, "TxtMobiles", saisies.input(LblMobiles), &Me::TxtMobiles_Change};
    Label LblFixes{this, "LblFixes", saisies.caption(1, "Lames fixes")};
    TextBox TxtFixes{this, "TxtFixes", saisies.input(LblFixes), &Me::TxtFixes_Change};
    Label LblEspacement{this, "LblEspacement", saisies.caption(2, "Espacement mm")};
    TextBox TxtEspacement{this, "TxtEspacement", saisies.input(LblEspacement), &Me::TxtEspacement_Change};
    Label LblAngle{this, "LblAngle", saisies.caption(3, "Angle de lames")};
    TextBox TxtAngle{this, "TxtAngle", saisies.input(LblAngle), &Me::TxtAngle_Change};
    Label LblRayon{this, "LblRayon", saisies.caption(4, "Diamètre ext mm")};
    TextBox TxtRayExt{this, "TxtRayExt", saisies.input(LblRayon), &Me::TxtRayExt_Change};
    Label LblRayonInt{this, "LblRayonInt", saisies.caption(5, "Diamètre int mm")};
    TextBox TxtRayInt{this, "TxtRayInt", saisies.input(LblRayonInt), &Me::TxtRayInt_Change};
    Label LblIsolant{this, "LblIsolant", {.Caption = "Diélectrique : Air", .at = under(LblRayonInt, 3360, 255, 165)}};

    Label LblSurfUtile{this, "LblSurfUtile", resultats.caption(0, "Surface utile cm²")};
    TextBox TxtSurfUtile{this, "TxtSurfUtile", resultats.result(LblSurfUtile)};
    Label LblCapacite{this, "LblCapacite", resultats.caption(1, "Capacite max")};
    TextBox TxtCapacite{this, "TxtCapacite", resultats.result(LblCapacite)};

    // The blades from above, as the construction has them.
    Image Classique{this, "Classique", vueDeDessus("condensateur-variable")};
    Image PapillonSerie{this, "PapillonSerie", vueDeDessus("papillon-serie")};
    Image PapillonParallele{this, "PapillonParallele", vueDeDessus("papillon-parallele")};
    // The blades from the side: two combs that reach into one another.
    Line LM{this, "LM", dos(dosMobile, dessin::cuivre)};
    Line LF{this, "LF", dos(dosFixe, dessin::encre)};
    ControlArray<Line> LM1{this, "LM1", 5, &Me::lameMobile};
    ControlArray<Line> LF1{this, "LF1", 5, &Me::lameFixe};

private:
    static Image::Design vueDeDessus(const char* picture) { return {.picture = picture, .at = {5160, 60, 3600, 3300}}; }

    static constexpr double dosMobile = 3660; ///< the height of the back of the moving comb
    static constexpr double dosFixe = 4740; ///< of the fixed one
    static Line::Design dos(double y, Color couleur)
    {
        return {.X1 = 5340, .Y1 = y, .X2 = 8580, .Y2 = y, .BorderColor = couleur, .BorderWidth = 3};
    }
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
    Double Angle; ///< degrees, as the formula takes it: halved or doubled for a butterfly
    Double NbFixes;
    Double NbMobiles;
    Double NbIntervalles;
};

} // namespace ondelis
