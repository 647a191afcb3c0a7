#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Voltage, charge and charging time of a capacitor that stores a wanted energy, and the current of its discharge.
/// The fields stand inside sentences.
class CondensateurEnergie final : public FeuilleCalcul {
public:
    explicit CondensateurEnergie(Desk& desk);

    using Me = CondensateurEnergie;
    static constexpr Column colonne{.left = 420, .captions = 3540, .inputs = 1980, .results = 1980, .top = 2460};
    static constexpr Column colonne2{.left = 480, .captions = 3480, .inputs = 1980, .results = 1980, .top = 3180};

    // A caption that ends in a blank stands one blank further right, so that the sentences line up at their fields.
    Image Schema{this, "Schema", {.picture = "energie-condensateur", .at = {1590, 180, 4200, 1950}}};

    Shape Cadre1{this, "Cadre1", {.at = {240, 2310, 6900, 1320}}};
    Label Label1{this, "Label1", {.Caption = "Pour obtenir un éclat de", .at = colonne.at(0), .align = Align::Right}};
    TextBox TxtJoules{this, "TxtJoules", colonne.input(Label1), &Me::TxtJoules_Change};
    Label Label2{this, "Label2", {.Caption = "Joules", .at = {6120, 2490, 960, 255}}};
    Label Label3{
        this, "Label3", {.Caption = "Il faut charger un condensateur de", .at = colonne.at(1), .align = Align::Right}};
    TextBox TxtCapa{this, "TxtCapa", colonne.input(Label3), &Me::TxtCapa_Change};
    Label Label4{this, "Label4", {.Caption = "µF", .at = {6120, 2850, 960, 255}}};
    Label Label5{
        this, "Label5", {.Caption = "Sous un courant constant de ", .at = colonne2.at(0), .align = Align::Right}};
    TextBox TxtCourant{this, "TxtCourant", colonne2.input(Label5), &Me::TxtCourant_Change};
    Label Label6{this, "Label6", {.Caption = "Ampères", .at = {6120, 3210, 960, 255}}};

    Shape Cadre2{this, "Cadre2", {.at = {240, 3750, 6900, 1320}}};
    Label Label7{this, "Label7", {.Caption = "Pendant", .at = colonne.at(4), .align = Align::Right}};
    TextBox TxtTemps{this, "TxtTemps", colonne.result(Label7)};
    Label Label8{this, "Label8", {.Caption = "secondes", .at = {6120, 3930, 960, 255}}};
    Label Label10{
        this, "Label10", {.Caption = "La tension atteinte est de ", .at = colonne2.at(3), .align = Align::Right}};
    TextBox TxtTension{this, "TxtTension", colonne2.result(Label10)};
    Label Label11{this, "Label11", {.Caption = "Volts", .at = {6120, 4290, 960, 255}}};
    Label Label9{
        this, "Label9", {.Caption = "La quantité de coulombs est", .at = colonne.at(6), .align = Align::Right}};
    TextBox TxtCoulombs{this, "TxtCoulombs", colonne.result(Label9)};

    Shape Cadre3{this, "Cadre3", {.at = {240, 5190, 6900, 960}}};
    Label Label12{this, "Label12", {.Caption = "Une décharge en", .at = colonne.at(8), .align = Align::Right}};
    TextBox TxtDecharge{this, "TxtDecharge", colonne.input(Label12), &Me::TxtDecharge_Change};
    Label Label13{this, "Label13", {.Caption = "ms", .at = {6120, 5370, 960, 255}}};
    Label Label14{this, "Label14", {.Caption = "Donne un courant de ", .at = colonne2.at(7), .align = Align::Right}};
    TextBox TxTCD{this, "TxTCD", colonne2.result(Label14)};
    Label Label15{this, "Label15", {.Caption = "Ampères", .at = {6120, 5730, 960, 255}}};

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
