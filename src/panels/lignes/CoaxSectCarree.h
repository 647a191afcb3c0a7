#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// An air-filled coaxial line with a square outer conductor and a round inner one: its impedance, or the side of the
/// square for a wanted impedance. The result always stands last.
class CoaxSectCarree final : public FeuilleCalcul {
public:
    explicit CoaxSectCarree(Desk& desk);

    // clang-format off
    OptionButton OptZ      {this, "OptZ",       {.Caption = "Calcul de Z", .at = {2940, 2895, 1560, 300}}, &CoaxSectCarree::OptZ_Click};
    OptionButton OptD      {this, "OptD",       {.Caption = "Calcul de D", .at = {2940, 3255, 1560, 300}}, &CoaxSectCarree::OptD_Click};

    // As it opens, D stands above d and the impedance under it.
    Label        Label2    {this, "Label2",     {.Caption = "D (mm)", .at = {240, 2640, 2640, 240}}};
    TextBox      TxtCote   {this, "TxtCote",    resultField({240, 2880, 2400, 315}, &Label2), &CoaxSectCarree::TxtCote_Change};
    Label        Label1    {this, "Label1",     {.Caption = "d  (mm)", .at = {240, 3420, 2640, 240}}};
    TextBox      TxtDiamAme{this, "TxtDiamAme", {.at = {240, 3660, 2400, 315}, .label = &Label1}, &CoaxSectCarree::TxtDiamAme_Change};
    Label        Label4    {this, "Label4",     {.Caption = "Impédance carecteristique", .at = {240, 4200, 2640, 240}}};
    TextBox      TxtZ      {this, "TxtZ",       {.at = {240, 4440, 2400, 315}, .label = &Label4}, &CoaxSectCarree::TxtZ_Change};

    Image        Image1    {this, "Image1",     {.picture = "coaxial-carre", .at = {240, 240, 4260, 2340}}};
    // clang-format on

private:
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
