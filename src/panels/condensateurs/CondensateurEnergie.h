#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Voltage, charge and charging time of a capacitor that stores a wanted energy, and the current of its discharge.
/// The fields stand inside sentences.
class CondensateurEnergie final : public FeuilleCalcul {
public:
    explicit CondensateurEnergie(Desk& desk);

    // clang-format off
    // A caption that ends in a blank stands one blank further right, so that the sentences line up at their fields.
    Image   Schema     {this, "Schema", {.picture = "energie-condensateur", .at = {1590, 180, 4200, 1950}}};

    Shape   Cadre1     {this, "Cadre1", {.at = {240, 2310, 6900, 1320}}};
    Label   Label1     {this, "Label1",      {.Caption = "Pour obtenir un éclat de", .at = {420, 2490, 3480, 255}, .align = Align::Right}};
    TextBox TxtJoules  {this, "TxtJoules",   {.at = {4020, 2460, 1980, 315}, .label = &Label1}, &CondensateurEnergie::TxtJoules_Change};
    Label   Label2     {this, "Label2",      {.Caption = "Joules", .at = {6120, 2490, 960, 255}}};
    Label   Label3     {this, "Label3",      {.Caption = "Il faut charger un condensateur de", .at = {420, 2850, 3480, 255}, .align = Align::Right}};
    TextBox TxtCapa    {this, "TxtCapa",     {.at = {4020, 2820, 1980, 315}, .label = &Label3}, &CondensateurEnergie::TxtCapa_Change};
    Label   Label4     {this, "Label4",      {.Caption = "µF", .at = {6120, 2850, 960, 255}}};
    Label   Label5     {this, "Label5",      {.Caption = "Sous un courant constant de ", .at = {480, 3210, 3480, 255}, .align = Align::Right}};
    TextBox TxtCourant {this, "TxtCourant",  {.at = {4020, 3180, 1980, 315}, .label = &Label5}, &CondensateurEnergie::TxtCourant_Change};
    Label   Label6     {this, "Label6",      {.Caption = "Ampères", .at = {6120, 3210, 960, 255}}};

    Shape   Cadre2     {this, "Cadre2", {.at = {240, 3750, 6900, 1320}}};
    Label   Label7     {this, "Label7",      {.Caption = "Pendant", .at = {420, 3930, 3480, 255}, .align = Align::Right}};
    TextBox TxtTemps   {this, "TxtTemps",    resultField({4020, 3900, 1980, 315}, &Label7)};
    Label   Label8     {this, "Label8",      {.Caption = "secondes", .at = {6120, 3930, 960, 255}}};
    Label   Label10    {this, "Label10",     {.Caption = "La tension atteinte est de ", .at = {480, 4290, 3480, 255}, .align = Align::Right}};
    TextBox TxtTension {this, "TxtTension",  resultField({4020, 4260, 1980, 315}, &Label10)};
    Label   Label11    {this, "Label11",     {.Caption = "Volts", .at = {6120, 4290, 960, 255}}};
    Label   Label9     {this, "Label9",      {.Caption = "La quantité de coulombs est", .at = {420, 4650, 3480, 255}, .align = Align::Right}};
    TextBox TxtCoulombs{this, "TxtCoulombs", resultField({4020, 4620, 1980, 315}, &Label9)};

    Shape   Cadre3     {this, "Cadre3", {.at = {240, 5190, 6900, 960}}};
    Label   Label12    {this, "Label12",     {.Caption = "Une décharge en", .at = {420, 5370, 3480, 255}, .align = Align::Right}};
    TextBox TxtDecharge{this, "TxtDecharge", {.at = {4020, 5340, 1980, 315}, .label = &Label12}, &CondensateurEnergie::TxtDecharge_Change};
    Label   Label13    {this, "Label13",     {.Caption = "ms", .at = {6120, 5370, 960, 255}}};
    Label   Label14    {this, "Label14",     {.Caption = "Donne un courant de ", .at = {480, 5730, 3480, 255}, .align = Align::Right}};
    TextBox TxTCD      {this, "TxTCD",       resultField({4020, 5700, 1980, 315}, &Label14)};
    Label   Label15    {this, "Label15",     {.Caption = "Ampères", .at = {6120, 5730, 960, 255}}};
    // clang-format on

private:
    void Form_Load() override;
    void TxtJoules_Change();
    void TxtCapa_Change();
    void TxtCourant_Change();
    void TxtDecharge_Change();
    void Calculer();

    Double Joules; ///< J
    Double Capa; ///< F
    Double Courant; ///< A
    Double Tension; ///< V
    Double Charge; ///< C
    Double Temps; ///< s
};

} // namespace ondelis
