#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A line of two parallel wires: its impedance, or the spacing of the wires for a wanted impedance. Each has its own
/// three fields, at the same place.
class EchelleGrenouille final : public FeuilleCalcul {
public:
    explicit EchelleGrenouille(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "EchelleGrenouille", .Caption = "Echelle a grenouille", .Width = 10440, .Height = 3045}}
    {
    }

    using Me = EchelleGrenouille;
    static constexpr Column choix{.left = 240, .captions = 2760};
    static constexpr Column valeurs{.left = 240, .captions = 2580, .inputs = 2400};

    OptionButton OptZ{this, "OptZ", choix.option(0, "Calcul de l'impédance"), &Me::OptZ_Click};
    OptionButton OptD{this, "OptD", choix.option(1, "Calcul de l'écartement"), &Me::OptD_Click};

    Label Label1{this, "Label1", valeurs.caption(2.5, "d (mm)")};
    TextBox TxtDiamBrin{this, "TxtDiamBrin", valeurs.input(Label1), &Me::TxtDiamBrin_Change};
    Label Label2{this, "Label2", valeurs.caption(3.5, "D (mm)")};
    TextBox TxtEcartBrin{this, "TxtEcartBrin", valeurs.input(Label2), &Me::TxtEcartBrin_Change};
    Label Label3{this, "Label3", valeurs.caption(5, "Impédance")};
    TextBox TxtImpedance{this, "TxtImpedance", valeurs.result(Label3)};

    Label LblZ{this, "LblZ", valeurs.caption(2.5, "Impédance carecteristique")};
    TextBox TxtZ{this, "TxtZ", valeurs.input(LblZ), &Me::TxtZ_Change};
    Label LblAme{this, "LblAme", valeurs.caption(3.5, "d (mm)")};
    TextBox TxtDiamAme{this, "TxtDiamAme", valeurs.input(LblAme), &Me::TxtDiamAme_Change};
    Label LblEcart{this, "LblEcart", valeurs.caption(5, "D  (mm)")};
    TextBox TxtCote{this, "TxtCote", valeurs.result(LblEcart)};

    Image Image1{this, "Image1", {.picture = "echelle-grenouille", .at = {5580, 240, 4500, 2145}}};

private:
    void Form_Load() override;
    void OptZ_Click();
    void OptD_Click();
    void TxtDiamAme_Change();
    void TxtZ_Change();
    void TxtEcartBrin_Change();
    void TxtDiamBrin_Change();

    void Presenter(bool impedance);
    void AfficherEcartement();
    void AfficherImpedance();

    Double d; ///< diameter of the wires, mm; both modes share it
    Double D; ///< spacing of the wires, mm
    Double Z; ///< ohms
};

} // namespace ondelis
