#pragma once

#include "forms/Column.h"
#include "forms/ControlArray.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "kit/Table.h"
#include "panels/CouleursDessins.h"

namespace ondelis {

/// A mains transformer, 220 V and 50 Hz at the primary, with up to four secondaries: core, turns and wires.
class Transformateur final : public FeuilleCalcul {
public:
    explicit Transformateur(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "Transformateur", .Caption = "Calcul de transformateur à 50Hz", .Width = 11280, .Height = 7140}}
    {
    }

    using Me = Transformateur;
    static constexpr Color cyan = 0xFFFF00;
    static constexpr Column enroulements{.left = 240, .captions = 4560, .inputs = 480};
    // The table of the secondaries.
    static constexpr double tableTop = 780;
    static constexpr Column tensions{.left = 240, .captions = 720, .inputs = 1080, .top = tableTop};
    static constexpr Column courants{.left = 2310, .captions = 720, .inputs = 1080, .top = tableTop};
    static constexpr Column puissances{
        .left = 4380, .captions = 720, .results = 1080, .top = tableTop, .resultBackground = cyan};
    static constexpr Column spires{
        .left = 6450, .captions = 720, .results = 1080, .top = tableTop, .resultBackground = cyan};
    static constexpr Column fils{
        .left = 8520, .captions = 1260, .results = 1080, .top = tableTop, .resultBackground = cyan};
    static constexpr Column totaux{
        .left = 240, .captions = 2280, .inputs = 1620, .results = 1620, .top = 2460, .resultBackground = cyan};
    static constexpr Column noyau = totaux.from(3240);
    static constexpr Column primaire = totaux.from(5760);

    Label Label16{this, "Label16", enroulements.caption(0, "Nombre d'enroulements au secondaires (4 maxi)")};
    TextBox TxtNbreEnrSec{this, "TxtNbreEnrSec", enroulements.input(Label16), &Me::TxtNbreEnrSec_Change};
    Label Label6{
        this, "Label6", {.Caption = "Puissance max 500 VA", .at = {spires.left, enroulements.at(0).Top, 2340, 255}}};

    /// A row of the table of the secondaries: the Tab key goes along it.
    struct Secondaire {
        Secondaire(Me* panel, int index) : feuille{panel}, i{index} { }

        Me* feuille;
        int i;
        Label Label17{feuille, elementName("Label17", i), tensions.caption(i, "Usec(i)")};
        TextBox TxtUSec{feuille, elementName("TxtUSec", i), tensions.input(Label17), &Me::TxtUSec_Change};
        Label Label18{feuille, elementName("Label18", i), courants.caption(i, "Isec(i)")};
        TextBox TxtIsec{feuille, elementName("TxtIsec", i), courants.input(Label18), &Me::TxtIsec_Change};
        Label Label19{feuille, elementName("Label19", i), puissances.caption(i, "Papp(i)")};
        TextBox TxtPap{feuille, elementName("TxtPap", i), puissances.openResult(Label19)};
        Label Label7{feuille, elementName("Label7", i), spires.caption(i, "Spires ")};
        TextBox TxtSpires{feuille, elementName("TxtSpires", i), spires.openResult(Label7)};
        Label Label25{feuille, elementName("Label25", i), fils.caption(i, "Diamètre mm")};
        TextBox TxtDiamFil{feuille, elementName("TxtDiamFil", i), fils.openResult(Label25)};
    };
    ControlArray<Secondaire> Secondaires{this, 4};

    Label Label1{this, "Label1", totaux.caption(0, "Puissance app totale")};
    TextBox TxtPuissApp{this, "TxtPuissApp", totaux.openResult(Label1)};
    Label Label2{this, "Label2", totaux.caption(1, "Puissance au primaire")};
    TextBox TxtPuisPrim{this, "TxtPuisPrim", totaux.openResult(Label2)};

    Label Label3{this, "Label3", noyau.caption(0, "Qualité de la tôle")};
    ListBox LstTole{this, "LstTole", qualites(Label3), &Me::LstTole_Click};
    Label Label9{this, "Label9", noyau.caption(2.5, "Perte dans les tôles")};
    TextBox TxtPertes{this, "TxtPertes", noyau.openResult(Label9)};
    Label Label4{this, "Label4", noyau.caption(3.5, "Section brute en cm²")};
    TextBox TxtSec{this, "TxtSec", noyau.openResult(Label4)};
    Label Label5{this, "Label5", noyau.caption(4.5, "Section corrigée en cm²")};
    TextBox TxtSecBrute{this, "TxtSecBrute", noyau.openResult(Label5)};
    Label TxtCoefficient{this, "TxtCoefficient", noyau.caption(5.5, "a")};
    TextBox Txta{this, "Txta", noyau.openResult(TxtCoefficient)};

    Label Label23{this, "Label23", primaire.caption(0, "Spires au primaire")};
    TextBox TxtSpiresPrimaire{this, "TxtSpiresPrimaire", primaire.openResult(Label23)};
    Label Label24{this, "Label24", primaire.caption(1, "Diamètre du fill mm")};
    TextBox TxtDiamFilPrim{this, "TxtDiamFilPrim", primaire.openResult(Label24)};

    Image Schema{this, "Schema", {.picture = "transformateur", .at = {4470, 2430, 6450, 3480}}};
    Label Label11{this, "Label11", dessin::lettreDeCote("a", Schema.at(), 0.278, 0.147)};
    Label Label12{this, "Label12", dessin::lettreDeCote("2a", Schema.at(), 0.512, 0.147)};
    Label Label10{this, "Label10", dessin::lettreDeCote("3a", Schema.at(), 0.602, 0.487)};
    Label Label13{this, "Label13", dessin::lettreDeCote("5a", Schema.at(), 0.730, 0.487)};
    Label Label21{this, "Label21", dessin::lettreDeCote("6a", Schema.at(), 0.512, 0.836)};
    Label Label14{this, "Label14", dessin::lettreDeCote("2a", Schema.at(), 0.874, 0.668)};
    Label Label20{this, "Label20", dessin::lettreDeCote("2a", Schema.at(), 0.972, 0.487)};
    Label Label22{this, "Label22",
        {.Caption = "Beta est fixé à 1 Tesla",
            .at = {6570, 6150, 2400, 255},
            .ForeColor = red,
            .align = Align::Center}};
    CommandButton BtnReset{this, "BtnReset", {.Caption = "Reset", .at = {9720, 210, 1200, 375}}, &Me::BtnReset_Click};

private:
    static ListBox::Design qualites(Label& legende)
    {
        ListBox::Design design = noyau.list(legende, {"Ordinaire", "Faible pertes", "Orientée"});
        design.clickOnChosenRow = true;
        return design;
    }

    void Form_Load() override;
    void TxtNbreEnrSec_Change();
    void TxtUSec_Change();
    void TxtIsec_Change();
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
