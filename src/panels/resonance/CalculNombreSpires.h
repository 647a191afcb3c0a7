#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Turns and winding length of a single-layer coil of wanted inductance. Opened alone, or as the companion of panels
/// that compute a coil.
class CalculNombreSpires final : public FeuilleCalcul {
public:
    explicit CalculNombreSpires(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "CalculNombreSpires",
                .Caption = "N = SQR((18 D + 40 L) / D²) par Kervane",
                .Width = 10260,
                .Height = 6675}}
    {
    }

    using Me = CalculNombreSpires;
    static constexpr Column saisies{.left = 240, .captions = 2580, .inputs = 1860, .results = 1860, .top = 2580};
    static constexpr Column resultats{.left = 5400, .captions = 1980, .results = 2460, .top = 2580};

    Image ImgBobine{this, "ImgBobine", {.picture = "bobine-vue", .at = {240, 240, 2250, 1800}}};
    Image ImgDiametre{this, "ImgDiametre", {.picture = "bobine-diametre", .at = {2730, 240, 2250, 1800}}};
    Image ImgEspacement{this, "ImgEspacement", {.picture = "bobine-espacement", .at = {5235, 240, 2250, 1800}}};
    Image ImgLongueur{this, "ImgLongueur", {.picture = "bobine-longueur", .at = {7650, 240, 2250, 1800}}};

    Label Label1{this, "Label1", saisies.caption(0, "Valeur de self recherchée")};
    TextBox TxtS{this, "TxtS", saisies.input(Label1), &Me::TxtS_Change};
    OptionButton OptmH{this, "OptmH", {.Caption = "mH", .at = {4920, 2595, 720, 300}}, &Me::OptmH_Click};
    OptionButton OptmmH{this, "OptmmH", {.Caption = "µH", .at = rightOf(OptmH, 720)}, &Me::OptmmH_Click};
    OptionButton OpnH{this, "OpnH", {.Caption = "nH", .at = rightOf(OptmmH, 720)}, &Me::OpnH_Click};
    OptionButton OptpH{this, "OptpH", {.Caption = "pH", .at = rightOf(OpnH, 720)}, &Me::OptpH_Click};
    Label Label6{this, "Label6", saisies.caption(1, "Diamètre intérieur (mm)")};
    TextBox TxtD{this, "TxtD", saisies.input(Label6), &Me::TxtD_Change};
    Label Label2{this, "Label2", saisies.caption(2, "Diamètre du fil (mm)")};
    TextBox TxtF{this, "TxtF", saisies.input(Label2), &Me::TxtF_Change};
    Label Label10{this, "Label10", saisies.caption(3, "Espacement entre spires")};
    TextBox TxtE{this, "TxtE", saisies.result(Label10)};
    HScrollBar HscrlE{this, "HscrlE",
        {.Min = 0, .Max = 100, .LargeChange = 10, .at = saisies.across(4), .label = &Label10}, &Me::HscrlE_Change};
    Label Label5{this, "Label5",
        {.Caption = "Faire varier les valeurs avec les potenciomètres", .at = {240, saisies.at(5).Top, 5760, 255}}};

    Label Label4{this, "Label4", resultats.caption(2, "Nombre de spires")};
    TextBox TxtN{this, "TxtN", resultats.result(Label4)};
    Label Label3{this, "Label3", resultats.caption(3, "Longueur en mm")};
    TextBox TxtL{this, "TxtL", resultats.result(Label3)};

    Label Label8{this, "Label8", {.at = {240, 4920, 9660, 510}}};
    Label Label7{this, "Label7", {.at = {240, 5640, 9660, 255}}};

private:
    void Form_Load() override;
    void OptmH_Click();
    void OptmmH_Click();
    void OpnH_Click();
    void OptpH_Click();
    void TxtS_Change();
    void TxtD_Change();
    void TxtF_Change();
    void HscrlE_Change();
    void Calculer();

    Double UniteSelf; ///< factor of the chosen unit toward µH
    Double S; ///< wanted inductance, in µH
    Double D; ///< diameter of the former in mm, of the winding in inches once computed
    Double F; ///< diameter of the wire in mm, in inches once computed
};

} // namespace ondelis
