#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The diameter of a wire from its cross-section.
class SectionDiametre final : public FeuilleCalcul {
public:
    explicit SectionDiametre(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "SectionDiametre", .Caption = "De la section vers le diamètre !!!", .Width = 4350, .Height = 1725}}
    {
    }

    using Me = SectionDiametre;
    static constexpr Column fil{.left = 240, .captions = 1440, .inputs = 1410, .results = 1410, .pitch = 480};

    Label Label1{this, "Label1", fil.caption(0, "Section du fil")};
    TextBox TxtS{this, "TxtS", fil.input(Label1), &Me::TxtS_Change};
    Label Label2{this, "Label2", fil.caption(1, "Diametre du fil")};
    TextBox TxtD{this, "TxtD", fil.result(Label2)};

    Image ImageFil{this, "ImageFil", {.picture = "section-diametre", .at = {3270, 278, 720, 720}}};

private:
    void Form_Load() override;
    void TxtS_Change();
};

} // namespace ondelis
