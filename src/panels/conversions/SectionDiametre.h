#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The diameter of a wire from its cross-section.
class SectionDiametre final : public FeuilleCalcul {
public:
    explicit SectionDiametre(Desk& desk);

    // clang-format off
    Label   Label1  {this, "Label1",   {.Caption = "Section du fil", .at = {240, 270, 1440, 255}}};
    TextBox TxtS    {this, "TxtS",     {.at = {1740, 240, 1410, 315}, .label = &Label1}, &SectionDiametre::TxtS_Change};
    Label   Label2  {this, "Label2",   {.Caption = "Diametre du fil", .at = {240, 750, 1440, 255}}};
    TextBox TxtD    {this, "TxtD",     resultField({1740, 720, 1410, 315}, &Label2)};
    Image   ImageFil{this, "ImageFil", {.picture = "section-diametre", .at = {3270, 278, 720, 720}}};
    // clang-format on

private:
    void Form_Load() override;
    void TxtS_Change();
};

} // namespace ondelis
