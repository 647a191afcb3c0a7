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
    explicit AntennesTrappesCoaxiales(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "AntennesTrappesCoaxiales",
                .Caption = "Calcul de trappes en coaxial",
                .Width = 14280,
                .Height = 8685}}
    {
    }

    using Me = AntennesTrappesCoaxiales;
    static constexpr Column cable{.left = 2760, .captions = 2820, .inputs = 2400};
    static constexpr Column mandrin = cable.from(2640);
    static constexpr Column reactances = cable.from(4200);
    static constexpr Column bobinage{.left = 8340, .captions = 3660, .results = 1860, .top = reactances.top};

    Label LblCoax{this, "LblCoax", {.Caption = "Sélectionner un coaxial", .at = {240, 225, 2280, 255}}};
    ListBox LstCoax{this, "LstCoax", {.Items = NomsCoaxiaux(), .at = under(LblCoax, 2280, 5100), .label = &LblCoax},
        &Me::LstCoax_Click};

    Label LblZ{this, "LblZ", cable.caption(0, "Impédance caractéristique")};
    TextBox TxtZ{this, "TxtZ", cable.result(LblZ)};
    Label LblVF{this, "LblVF", cable.caption(1, "Coefficient de vélocité")};
    TextBox TxtVF{this, "TxtVF", cable.result(LblVF)};
    Label LblOuEntrer{this, "LblOuEntrer",
        {.Caption = "ou entrer les valeurs de diamètre et de capacité par mètre", .at = under(LblVF, 3300, 510, 195)}};
    Label LblDiamCoax{this, "LblDiamCoax", cable.caption(4, "Diametre Coaxial  mm")};
    TextBox TxtDiamCoax{this, "TxtDiamCoax", cable.input(LblDiamCoax), &Me::TxtDiamCoax_Change};
    Label LblCapacitParMetre{this, "LblCapacitParMetre", cable.caption(5, "pF/m")};
    TextBox TxtCapacitParMetre{
        this, "TxtCapacitParMetre", cable.input(LblCapacitParMetre), &Me::TxtCapacitParMetre_Change};

    Label LblDiamMandrin{this, "LblDiamMandrin", mandrin.caption(0, "Diametre mandrin mm")};
    TextBox TxtDiamMandrin{this, "TxtDiamMandrin", mandrin.input(LblDiamMandrin), &Me::TxtDiamMandrin_Change};
    Label LblFrequence{this, "LblFrequence", mandrin.caption(1, "Frequence de resonance MHz")};
    TextBox TxtFrequence{this, "TxtFrequence", mandrin.input(LblFrequence), &Me::TxtFrequence_Change};
    CommandButton BtnCalculer{this, "BtnCalculer", {.Caption = "Calculer", .at = under(TxtFrequence, 1320, 375, 165)},
        &Me::BtnCalculer_Click};

    PictureBox Picture2{this, "Picture2", {.picture = "trappe-coaxiale", .at = {bobinage.left, 240, 5520, 3555}}};

    Label LblReactanceInductive{this, "LblReactanceInductive", reactances.caption(0, "Reatance inductive")};
    TextBox TxtReactanceInductive{this, "TxtReactanceInductive", reactances.result(LblReactanceInductive)};
    Label LblReactanceCapacitive{this, "LblReactanceCapacitive", reactances.caption(1, "ReactanceCapacitive")};
    TextBox TxtReactanceCapacitive{this, "TxtReactanceCapacitive", reactances.result(LblReactanceCapacitive)};
    Label LblInductance{this, "LblInductance", reactances.caption(2, "Inductance µH")};
    TextBox TxtInductance{this, "TxtInductance", reactances.result(LblInductance)};
    Label LblCapacitance{this, "LblCapacitance", reactances.caption(3, "Capacitance pF")};
    TextBox TxtCapacitance{this, "TxtCapacitance", reactances.result(LblCapacitance)};

    Label LblNombreTours{this, "LblNombreTours", bobinage.caption(0, "Nombre de tours")};
    TextBox TxtNombreTours{this, "TxtNombreTours", bobinage.result(LblNombreTours)};
    Label LblLongueurBobinage{this, "LblLongueurBobinage", bobinage.caption(1, "Longueur du bobinage mm")};
    TextBox TxtLongueurBobinage{this, "TxtLongueurBobinage", bobinage.result(LblLongueurBobinage)};
    Label LblLongueurCoaxial{this, "LblLongueurCoaxial", bobinage.caption(2, "Longueur de coax requise mm")};
    TextBox TxtLongueurCoaxial{this, "TxtLongueurCoaxial", bobinage.result(LblLongueurCoaxial)};
    Label LblLongueurEffective{
        this, "LblLongueurEffective", bobinage.caption(3, "Longueur electrique equivalente en mm")};
    TextBox TxtLongueurEffective{this, "TxtLongueurEffective", bobinage.result(LblLongueurEffective)};

    PictureBox Picture3{this, "Picture3", {.picture = "trappe-antenne", .at = {240, 5880, 7680, 1590}}};
    Label LblBrinSuivant{this, "LblBrinSuivant",
        {.Caption = "Le brin rayonnant suivant la trappe doit être raccourci de la longueur électrique équivalente de "
                    "la trappe",
            .at = under(LblLongueurEffective, bobinage.across(0).Width, 510, 510)}};
    Label LblBrinAmont{this, "LblBrinAmont",
        {.Caption
            = "Le brin rayonnant en amont de la trappe doit être accordé avant la mise en place de cette dernière",
            .at = under(LblBrinSuivant, bobinage.across(0).Width, 510, 240)}};
    Label Label19{this, "Label19", {.at = under(Picture3, 13680, 255, 300)}};

private:
    static std::vector<std::string> NomsCoaxiaux();

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
