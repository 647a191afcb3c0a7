#pragma once

#include "forms/ControlArray.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "kit/Table.h"

namespace ondelis {

/// A mains transformer, 220 V and 50 Hz at the primary, with up to four secondaries: core, turns and wires.
class Transformateur final : public FeuilleCalcul {
public:
    explicit Transformateur(Desk& desk);

    // clang-format off
    Label   Label16      {this, "Label16",       {.Caption = "Nombre d'enroulements au secondaires (4 maxi)", .at = {240, 270, 4560, 255}}};
    TextBox TxtNbreEnrSec{this, "TxtNbreEnrSec", {.at = {4860, 240, 480, 315}, .label = &Label16}, &Transformateur::TxtNbreEnrSec_Change};
    Label   Label6       {this, "Label6",        {.Caption = "Puissance max 500 VA", .at = {6450, 270, 2340, 255}}};

    // One row a secondary.
    ControlArray<Label>   Label17   {this, "Label17",    4, [](int i) { return legende("Usec(i)", i, 240, 750); }};
    ControlArray<TextBox> TxtUSec   {this, "TxtUSec",    4, [this](int i) { return saisie(i, 1020, Label17(i)); }, &Transformateur::TxtUSec_Change};
    ControlArray<Label>   Label18   {this, "Label18",    4, [](int i) { return legende("Isec(i)", i, 2310, 750); }};
    ControlArray<TextBox> TxtIsec   {this, "TxtIsec",    4, [this](int i) { return saisie(i, 3090, Label18(i)); }, &Transformateur::TxtIsec_Change};
    ControlArray<Label>   Label19   {this, "Label19",    4, [](int i) { return legende("Papp(i)", i, 4380, 750); }};
    ControlArray<TextBox> TxtPap    {this, "TxtPap",     4, [this](int i) { return resultat(i, 5160, Label19(i)); }};
    ControlArray<Label>   Label7    {this, "Label7",     4, [](int i) { return legende("Spires ", i, 6450, 750); }};
    ControlArray<TextBox> TxtSpires {this, "TxtSpires",  4, [this](int i) { return resultat(i, 7230, Label7(i)); }};
    ControlArray<Label>   Label25   {this, "Label25",    4, [](int i) { return legende("Diamètre mm", i, 8520, 1290); }};
    ControlArray<TextBox> TxtDiamFil{this, "TxtDiamFil", 4, [this](int i) { return resultat(i, 9840, Label25(i)); }};

    Label   Label1           {this, "Label1",            {.Caption = "Puissance app totale", .at = {240, 2490, 2280, 255}}};
    TextBox TxtPuissApp      {this, "TxtPuissApp",       openResultField({2580, 2460, 1620, 315}, &Label1, cyan)};
    Label   Label2           {this, "Label2",            {.Caption = "Puissance au primaire", .at = {240, 2850, 2280, 255}}};
    TextBox TxtPuisPrim      {this, "TxtPuisPrim",       openResultField({2580, 2820, 1620, 315}, &Label2, cyan)};
    Label   Label3           {this, "Label3",            {.Caption = "Qualité de la tôle", .at = {240, 3270, 2280, 255}}};
    ListBox LstTole          {this, "LstTole",           {.Items = {"Ordinaire", "Faible pertes", "Orientée"}, .at = {2580, 3240, 1620, 780}, .clickOnChosenRow = true, .label = &Label3}, &Transformateur::LstTole_Click};
    Label   Label9           {this, "Label9",            {.Caption = "Perte dans les tôles", .at = {240, 4170, 2280, 255}}};
    TextBox TxtPertes        {this, "TxtPertes",         openResultField({2580, 4140, 1620, 315}, &Label9, cyan)};
    Label   Label4           {this, "Label4",            {.Caption = "Section brute en cm²", .at = {240, 4530, 2280, 255}}};
    TextBox TxtSec           {this, "TxtSec",            openResultField({2580, 4500, 1620, 315}, &Label4, cyan)};
    Label   Label5           {this, "Label5",            {.Caption = "Section corrigée en cm²", .at = {240, 4890, 2280, 255}}};
    TextBox TxtSecBrute      {this, "TxtSecBrute",       openResultField({2580, 4860, 1620, 315}, &Label5, cyan)};
    Label   TxtCoefficient   {this, "TxtCoefficient",    {.Caption = "a", .at = {240, 5250, 2280, 255}}};
    TextBox Txta             {this, "Txta",              openResultField({2580, 5220, 1620, 315}, &TxtCoefficient, cyan)};
    Label   Label23          {this, "Label23",           {.Caption = "Spires au primaire", .at = {240, 5790, 2280, 255}}};
    TextBox TxtSpiresPrimaire{this, "TxtSpiresPrimaire", openResultField({2580, 5760, 1620, 315}, &Label23, cyan)};
    Label   Label24          {this, "Label24",           {.Caption = "Diamètre du fill mm", .at = {240, 6150, 2280, 255}}};
    TextBox TxtDiamFilPrim   {this, "TxtDiamFilPrim",    openResultField({2580, 6120, 1620, 315}, &Label24, cyan)};

    Image   Schema {this, "Schema",  {.picture = "transformateur", .at = {4470, 2430, 6450, 3480}}};
    Label   Label11{this, "Label11", cote("a", 0.278, 0.147)};
    Label   Label12{this, "Label12", cote("2a", 0.512, 0.147)};
    Label   Label10{this, "Label10", cote("3a", 0.602, 0.487)};
    Label   Label13{this, "Label13", cote("5a", 0.730, 0.487)};
    Label   Label21{this, "Label21", cote("6a", 0.512, 0.836)};
    Label   Label14{this, "Label14", cote("2a", 0.874, 0.668)};
    Label   Label20{this, "Label20", cote("2a", 0.972, 0.487)};
    Label   Label22{this, "Label22", {.Caption = "Beta est fixé à 1 Tesla", .at = {6570, 6150, 2400, 255}, .ForeColor = 0x0000FF, .align = Align::Center}};
    CommandButton BtnReset{this, "BtnReset", {.Caption = "Reset", .at = {9720, 210, 1200, 375}}, &Transformateur::BtnReset_Click};
    // clang-format on

private:
    static constexpr Color cyan = 0xFFFF00;

    static Label::Design legende(const char* texte, int i, double left, double width);
    static TextBox::Design saisie(int i, double left, Label& legende);
    static TextBox::Design resultat(int i, double left, Label& legende);
    /// A dimension on the drawing; its centre in fractions of the drawing's size.
    static Label::Design cote(const char* texte, double x, double y);

    void Form_Load() override;
    void TxtNbreEnrSec_Change();
    void TxtUSec_Change(Integer Index);
    void TxtIsec_Change(Integer Index);
    void LstTole_Click();
    void BtnReset_Click();

    void MontrerSecondaire(int i, bool visible);
    void LireSecondaires();
    void PuissApparente();
    [[nodiscard]] static Double NetaTransfo(Double P);
    [[nodiscard]] static Double PerteFil(Double P);
    [[nodiscard]] Double DiametreFil(Double P, Double I);

    Integer NbreEnrSec; ///< secondaries in use
    Table<Double, 4> UsecVal; ///< V
    Table<Double, 4> IsecVal; ///< A
    Table<Double, 4> PappVal; ///< VA; a blanked input leaves it
    Double SommePapp; ///< VA
    Double PuissancePrimaire; ///< VA
    Double SectionBrute; ///< cm², before the coefficient of the lamination
    Double SectionCorrigee; ///< cm², after it
    Double CoteA; ///< dimension a of the lamination, cm
    Double SpiresParVolt;
    Double SectionFil; ///< mm², of the last wire; stays where no density applies
    Double Pi;
};

} // namespace ondelis
