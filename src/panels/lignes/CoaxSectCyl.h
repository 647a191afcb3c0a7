#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The characteristic impedance of a coaxial line with a round outer conductor.
class CoaxSectCyl final : public FeuilleCalcul {
public:
    explicit CoaxSectCyl(Desk& desk);

    // clang-format off
    Label   Label1      {this, "Label1",       {.Caption = "d (mm)", .at = {240, 270, 2580, 255}}};
    TextBox TxtDiamAme  {this, "TxtDiamAme",   {.at = {2880, 240, 2400, 315}, .label = &Label1}, &CoaxSectCyl::TxtDiamAme_Change};
    Label   Label2      {this, "Label2",       {.Caption = "D (mm)", .at = {240, 630, 2580, 255}}};
    TextBox TxtDiamCorps{this, "TxtDiamCorps", {.at = {2880, 600, 2400, 315}, .BackColor = 0xFFFFFF, .label = &Label2}, &CoaxSectCyl::TxtDiamCorps_Change};
    Label   Label3      {this, "Label3",       {.Caption = "Dielectrique", .at = {240, 1170, 2580, 255}}};
    ListBox LstEpsilon  {this, "LstEpsilon",   {.Items = {"Vide ou Air", "PTFE", "Polyéthylène"}, .at = {2880, 1140, 2400, 780}, .label = &Label3}, &CoaxSectCyl::LstEpsilon_Click};
    Label   Label4      {this, "Label4",       {.Caption = "Impédance carecteristique", .at = {240, 2310, 2580, 255}}};
    TextBox TxtZ        {this, "TxtZ",         openResultField({2880, 2280, 2400, 315}, &Label4, 0xFFFF80)};

    Image   Image1      {this, "Image1",       {.picture = "coaxial-rond", .at = {5700, 240, 2760, 2580}}};
    // clang-format on

private:
    void Form_Load() override;
    void LstEpsilon_Click();
    void TxtDiamCorps_Change();
    void TxtDiamAme_Change();

    void AfficherImpedance();

    Double d; ///< of the inner conductor, mm
    Double D; ///< of the outer conductor, mm
    Double E; ///< what the dielectric divides the impedance by
};

} // namespace ondelis
