#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The characteristic impedance of a coaxial line with a round outer conductor.
class CoaxSectCyl final : public FeuilleCalcul {
public:
    explicit CoaxSectCyl(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "CoaxSectCyl", .Caption = "Coaxial section cylindrique", .Width = 8820, .Height = 3480}}
    {
    }

    using Me = CoaxSectCyl;
    static constexpr Column saisies{.left = 240, .captions = 2580, .inputs = 2400};
    static constexpr Column resultat{
        .left = 240, .captions = 2580, .results = 2400, .top = 2280, .resultBackground = mainResultColor};

    Label Label1{this, "Label1", saisies.caption(0, "d (mm)")};
    TextBox TxtDiamAme{this, "TxtDiamAme", saisies.input(Label1), &Me::TxtDiamAme_Change};
    Label Label2{this, "Label2", saisies.caption(1, "D (mm)")};
    TextBox TxtDiamCorps{
        this, "TxtDiamCorps", openResultField(Label2, saisies.inputs, white), &Me::TxtDiamCorps_Change};
    Label Label3{this, "Label3", saisies.caption(2.5, "Dielectrique")};
    ListBox LstEpsilon{
        this, "LstEpsilon", saisies.list(Label3, {"Vide ou Air", "PTFE", "Polyéthylène"}), &Me::LstEpsilon_Click};

    Label Label4{this, "Label4", resultat.caption(0, "Impédance carecteristique")};
    TextBox TxtZ{this, "TxtZ", resultat.openResult(Label4)};

    Image Image1{this, "Image1", {.picture = "coaxial-rond", .at = {5700, 240, 2760, 2580}}};

private:
    void Form_Load() override;
    void LstEpsilon_Click();
    void TxtDiamCorps_Change();
    void TxtDiamAme_Change();

    void AfficherImpedance();

    Double d; ///< of the inner conductor, mm
    Double D; ///< of the outer conductor, mm
    Double E; ///< the divisor of the impedance for the chosen dielectric
};

} // namespace ondelis
