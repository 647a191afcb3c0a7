#pragma once

#include <string>
#include <vector>

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// An antenna trap wound from coaxial cable: the number of turns at which its reactances meet at the frequency of
/// resonance. Method of The ARRL Antenna Compendium, volume 2, 1989, page 100.
class AntennesTrappesCoaxiales final : public FeuilleCalcul {
public:
    explicit AntennesTrappesCoaxiales(Desk& desk);

    using Me = AntennesTrappesCoaxiales;
    static constexpr Column colonne{.left = 2760, .captions = 2820, .inputs = 2400};
    static constexpr Column colonne_2 = colonne.from(2640);
    static constexpr Column colonne2{.left = 8340, .captions = 3660, .results = 1860};

    Label LblCoax{this, "LblCoax", {.Caption = "Sélectionner un coaxial", .at = {240, 225, 2280, 255}}};
    ListBox LstCoax{
        this, "LstCoax", {.Items = Coaxiaux(), .at = {240, 495, 2280, 5100}, .label = &LblCoax}, &Me::LstCoax_Click};

    Label LblZ{this, "LblZ", colonne.caption(0, "Impédance caractéristique")};
    TextBox TxtZ{this, "TxtZ", colonne.result(LblZ)};
    Label LblVF{this, "LblVF", colonne.caption(1, "Coefficient de vélocité")};
    TextBox TxtVF{this, "TxtVF", colonne.result(LblVF)};
    Label LblOuEntrer{this, "LblOuEntrer",
        {.Caption = "ou entrer les valeurs de diamètre et de capacité par mètre", .at = {2760, 1080, 3300, 510}}};
    Label LblDiamCoax{this, "LblDiamCoax", colonne.caption(4, "Diametre Coaxial  mm")};
    TextBox TxtDiamCoax{this, "TxtDiamCoax", colonne.input(LblDiamCoax), &Me::TxtDiamCoax_Change};
    Label LblCapacitParMetre{this, "LblCapacitParMetre", colonne.caption(5, "pF/m")};
    TextBox TxtCapacitParMetre{
        this, "TxtCapacitParMetre", colonne.input(LblCapacitParMetre), &Me::TxtCapacitParMetre_Change};
    Label LblDiamMandrin{this, "LblDiamMandrin", colonne_2.caption(0, "Diametre mandrin mm")};
    TextBox TxtDiamMandrin{this, "TxtDiamMandrin", colonne_2.input(LblDiamMandrin), &Me::TxtDiamMandrin_Change};
    Label LblFrequence{this, "LblFrequence", colonne_2.caption(1, "Frequence de resonance MHz")};
    TextBox TxtFrequence{this, "TxtFrequence", colonne_2.input(LblFrequence), &Me::TxtFrequence_Change};
    CommandButton BtnCalculer{
        this, "BtnCalculer", {.Caption = "Calculer", .at = {5640, 3480, 1320, 375}}, &Me::BtnCalculer_Click};
    PictureBox Picture2{this, "Picture2", {.picture = "trappe-coaxiale", .at = {8340, 240, 5520, 3555}}};

    Label LblReactanceInductive{this, "LblReactanceInductive", colonne.caption(11, "Reatance inductive")};
    TextBox TxtReactanceInductive{this, "TxtReactanceInductive", colonne.result(LblReactanceInductive)};
    Label LblReactanceCapacitive{this, "LblReactanceCapacitive", colonne.caption(12, "ReactanceCapacitive")};
    TextBox TxtReactanceCapacitive{this, "TxtReactanceCapacitive", colonne.result(LblReactanceCapacitive)};
    Label LblInductance{this, "LblInductance", colonne.caption(13, "Inductance µH")};
    TextBox TxtInductance{this, "TxtInductance", colonne.result(LblInductance)};
    Label LblCapacitance{this, "LblCapacitance", colonne.caption(14, "Capacitance pF")};
    TextBox TxtCapacitance{this, "TxtCapacitance", colonne.result(LblCapacitance)};
    Label LblNombreTours{this, "LblNombreTours", colonne2.caption(11, "Nombre de tours")};
    TextBox TxtNombreTours{this, "TxtNombreTours", colonne2.result(LblNombreTours)};
    Label LblLongueurBobinage{this, "LblLongueurBobinage", colonne2.caption(12, "Longueur du bobinage mm")};
    TextBox TxtLongueurBobinage{this, "TxtLongueurBobinage", colonne2.result(LblLongueurBobinage)};
    Label LblLongueurCoaxial{this, "LblLongueurCoaxial", colonne2.caption(13, "Longueur de coax requise mm")};
    TextBox TxtLongueurCoaxial{this, "TxtLongueurCoaxial", colonne2.result(LblLongueurCoaxial)};
    Label LblLongueurEffective{
        this, "LblLongueurEffective", colonne2.caption(14, "Longueur electrique equivalente en mm")};
    TextBox TxtLongueurEffective{this, "TxtLongueurEffective", colonne2.result(LblLongueurEffective)};

    PictureBox Picture3{this, "Picture3", {.picture = "trappe-antenne", .at = {240, 5880, 7680, 1590}}};
    Label LblBrinSuivant{this, "LblBrinSuivant",
        {.Caption = "Le brin rayonnant suivant la trappe doit être raccourci de la longueur électrique équivalente de "
                    "la trappe",
            .at = {8340, 6075, 5580, 510}}};
    Label LblBrinAmont{this, "LblBrinAmont",
        {.Caption
            = "Le brin rayonnant en amont de la trappe doit être accordé avant la mise en place de cette dernière",
            .at = {8340, 6825, 5580, 510}}};
    Label Label19{this, "Label19", {.at = {240, 7770, 13680, 255}}};

private:
    static std::vector<std::string> Coaxiaux();

    void Form_Load() override;
    void LstCoax_Click();
    void TxtDiamCoax_Change();
    void TxtCapacitParMetre_Change();
    void TxtDiamMandrin_Change();
    void TxtFrequence_Change();
    void BtnCalculer_Click();
    void Calculer();

    Double FreqTrappe; ///< MHz
    Double CapaPied; ///< capacitance of the cable, pF per foot
    Double DiamCoaxPouce; ///< outer diameter of the cable, inches
    Double DiamMandrinPouce; ///< diameter of the former, inches
    Double ImpedanceCoax; ///< ohms
    Double VitesseCoax; ///< velocity factor
};

} // namespace ondelis
