#pragma once

#include <string>

#include "forms/ControlArray.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/CouleursDessins.h"

namespace ondelis {

/// Useful surface and greatest capacitance of an air-spaced variable capacitor with half-disc blades. The fields
/// of the two radii hold diameters.
class CondensateurVariable final : public FeuilleCalcul {
public:
    explicit CondensateurVariable(Desk& desk);

    // clang-format off
    OptionButton OptClassique {this, "OptClassique",  {.Caption = "Cv classique", .at = {240, 240, 2640, 300}}, &CondensateurVariable::OptClassique_Click};
    OptionButton OptPapSer    {this, "OptPapSer",     {.Caption = "Cv papillon série", .at = {240, 600, 2640, 300}}, &CondensateurVariable::OptPapSer_Click};
    OptionButton OptPapPar    {this, "OptPapPar",     {.Caption = "CV papillon parallèle", .at = {240, 960, 2640, 300}}, &CondensateurVariable::OptPapPar_Click};

    Label        LblMobiles   {this, "LblMobiles",    {.Caption = "Lames mobiles", .at = {240, 1470, 2040, 255}}};
    TextBox      TxtMobiles   {this, "TxtMobiles",    {.at = {2340, 1440, 1260, 315}, .label = &LblMobiles}, &CondensateurVariable::TxtMobiles_Change};
    Label        LblFixes     {this, "LblFixes",      {.Caption = "Lames fixes", .at = {240, 1830, 2040, 255}}};
    TextBox      TxtFixes     {this, "TxtFixes",      {.at = {2340, 1800, 1260, 315}, .label = &LblFixes}, &CondensateurVariable::TxtFixes_Change};
    Label        LblEspacement{this, "LblEspacement", {.Caption = "Espacement mm", .at = {240, 2190, 2040, 255}}};
    TextBox      TxtEspacement{this, "TxtEspacement", {.at = {2340, 2160, 1260, 315}, .label = &LblEspacement}, &CondensateurVariable::TxtEspacement_Change};
    Label        LblAngle     {this, "LblAngle",      {.Caption = "Angle de lames", .at = {240, 2550, 2040, 255}}};
    TextBox      TxtAngle     {this, "TxtAngle",      {.at = {2340, 2520, 1260, 315}, .label = &LblAngle}, &CondensateurVariable::TxtAngle_Change};
    Label        LblRayon     {this, "LblRayon",      {.Caption = "Diamètre ext mm", .at = {240, 2910, 2040, 255}}};
    TextBox      TxtRayExt    {this, "TxtRayExt",     {.at = {2340, 2880, 1260, 315}, .label = &LblRayon}, &CondensateurVariable::TxtRayExt_Change};
    Label        LblRayonInt  {this, "LblRayonInt",   {.Caption = "Diamètre int mm", .at = {240, 3270, 2040, 255}}};
    TextBox      TxtRayInt    {this, "TxtRayInt",     {.at = {2340, 3240, 1260, 315}, .label = &LblRayonInt}, &CondensateurVariable::TxtRayInt_Change};
    Label        LblIsolant   {this, "LblIsolant",    {.Caption = "Diélectrique : Air", .at = {240, 3690, 3360, 255}}};

    Label        LblSurfUtile {this, "LblSurfUtile",  {.Caption = "Surface utile cm²", .at = {240, 4140, 2040, 255}}};
    TextBox      TxtSurfUtile {this, "TxtSurfUtile",  resultField({2340, 4110, 2820, 315}, &LblSurfUtile)};
    Label        LblCapacite  {this, "LblCapacite",   {.Caption = "Capacite max", .at = {240, 4500, 2040, 255}}};
    TextBox      TxtCapacite  {this, "TxtCapacite",   resultField({2340, 4470, 2820, 315}, &LblCapacite)};

    // The blades from above, as the construction has them.
    Image        Classique        {this, "Classique",         lames("condensateur-variable")};
    Image        PapillonSerie    {this, "PapillonSerie",     lames("papillon-serie")};
    Image        PapillonParallele{this, "PapillonParallele", lames("papillon-parallele")};
    // The blades from the side: two combs that reach into one another.
    Line         LM           {this, "LM", {.X1 = 5340, .Y1 = 3660, .X2 = 8580, .Y2 = 3660, .BorderColor = dessin::cuivre, .BorderWidth = 3}};
    Line         LF           {this, "LF", {.X1 = 5340, .Y1 = 4740, .X2 = 8580, .Y2 = 4740, .BorderColor = dessin::encre, .BorderWidth = 3}};
    ControlArray<Line> LM1    {this, "LM1", 5, &CondensateurVariable::lameMobile};
    ControlArray<Line> LF1    {this, "LF1", 5, &CondensateurVariable::lameFixe};
    // clang-format on

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
