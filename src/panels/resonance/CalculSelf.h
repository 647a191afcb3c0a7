#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The inductance of a single-layer coil from its diameter, winding length and number of turns.
class CalculSelf final : public FeuilleCalcul {
public:
    explicit CalculSelf(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "CalculSelf", .Caption = "Valeur Self", .Width = 10575, .Height = 5970}}
    {
    }

    using Me = CalculSelf;
    static constexpr Column saisies{.left = 240, .captions = 3900, .top = 2940};
    static constexpr Column resultat{.left = 6360, .captions = 1395, .inputs = 2400, .results = 2400, .top = 2940};

    Image ImgCotes{this, "ImgCotes", {.picture = "self-cotes", .at = {240, 240, 5100, 2460}}};
    Image ImgVue{this, "ImgVue", {.picture = "self-vue", .at = {5715, 240, 4500, 2460}}};

    Label Label1{this, "Label1", saisies.caption(0, "1 - Diamètre intérieur de la self en mm")};
    TextBox TxtD{this, "TxtD", saisies.input(Label1), &Me::TxtD_Change};
    Label Label2{this, "Label2", saisies.caption(1, "2 - Longueur de l'enroulement en mm")};
    TextBox TxtL{this, "TxtL", saisies.input(Label2), &Me::TxtL_Change};
    Label Label8{this, "Label8", saisies.caption(2, "3 - Nombre de spires")};
    TextBox TxtN{this, "TxtN", saisies.input(Label8), &Me::TxtN_Change};

    CommandButton BtnCalculer{this, "BtnCalculer", resultat.button(0, "Calculer"), &Me::BtnCalculer_Click};
    Label Label5{this, "Label5", resultat.caption(2, "Inductance")};
    TextBox TxtS{this, "TxtS", resultat.result(Label5)};

    Label Label3{this, "Label3", {.at = {240, 4290, 9975, 510}}};
    Label Label7{this, "Label7", {.at = {240, 5010, 9975, 255}}};

private:
    void Form_Load() override;
    void TxtD_Change();
    void TxtL_Change();
    void TxtN_Change();
    void BtnCalculer_Click();

    Double D; ///< mm, then inches once computed
    Double L; ///< mm, then inches once computed
    Double N; ///< turns
};

} // namespace ondelis
