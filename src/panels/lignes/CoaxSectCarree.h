#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// An air-filled coaxial line with a square outer conductor and a round inner one: its impedance, or the side of the
/// square for a wanted impedance. The result always stands last.
class CoaxSectCarree final : public FeuilleCalcul {
public:
    explicit CoaxSectCarree(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "CoaxSectCarree", .Caption = "Coaxial section carrée", .Width = 4860, .Height = 5415}}
    {
    }

    using Me = CoaxSectCarree;
    static constexpr Column choix{.left = 2940, .captions = 1560, .top = 2895};
    // Of D and Z, the given one stands on top, the sought one at the bottom.
    static constexpr double haut = 2640;
    static constexpr double milieu = 3420;
    static constexpr double bas = 4200;

    OptionButton OptZ{this, "OptZ", choix.option(0, "Calcul de Z"), &Me::OptZ_Click};
    OptionButton OptD{this, "OptD", choix.option(1, "Calcul de D"), &Me::OptD_Click};

    Label Label2{this, "Label2", legende(haut, "D (mm)")};
    TextBox TxtCote{this, "TxtCote", resultField(sous(Label2), &Label2), &Me::TxtCote_Change};
    Label Label1{this, "Label1", legende(milieu, "d  (mm)")};
    TextBox TxtDiamAme{this, "TxtDiamAme", {.at = sous(Label1), .label = &Label1}, &Me::TxtDiamAme_Change};
    Label Label4{this, "Label4", legende(bas, "Impédance carecteristique")};
    TextBox TxtZ{this, "TxtZ", {.at = sous(Label4), .label = &Label4}, &Me::TxtZ_Change};

    Image Image1{this, "Image1", {.picture = "coaxial-carre", .at = {240, 240, 4260, 2340}}};

private:
    static constexpr double captionHeight = 240;
    static Label::Design legende(double top, const char* text)
    {
        return {.Caption = text, .at = {240, top, 2640, captionHeight}};
    }
    static Box sous(const Label& legende) { return under(legende, 2400, 315, 0); }

    void Form_Load() override;
    void OptD_Click();
    void OptZ_Click();
    void TxtCote_Change();
    void TxtDiamAme_Change();
    void TxtZ_Change();
    void Calculer();

    Double d; ///< diameter of the inner conductor, mm
    Double D; ///< inner side of the outer conductor, mm
    Double Z; ///< ohms
};

} // namespace ondelis
