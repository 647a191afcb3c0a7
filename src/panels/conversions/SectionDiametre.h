#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The diameter of a wire from its cross-section.
class SectionDiametre final : public FeuilleCalcul {
public:
    explicit SectionDiametre(Desk& desk);

    using Me = SectionDiametre;
    static constexpr Column colonne{.left = 240, .captions = 1440, .inputs = 1410, .results = 1410};
    static constexpr Column colonne_2 = colonne.from(720);

    Label Label1{this, "Label1", colonne.caption(0, "Section du fil")};
    TextBox TxtS{this, "TxtS", colonne.input(Label1), &Me::TxtS_Change};
    Label Label2{this, "Label2", colonne_2.caption(0, "Diametre du fil")};
    TextBox TxtD{this, "TxtD", colonne_2.result(Label2)};
    Image ImageFil{this, "ImageFil", {.picture = "section-diametre", .at = {3270, 278, 720, 720}}};

private:
    void Form_Load() override;
    void TxtS_Change();
};

} // namespace ondelis
