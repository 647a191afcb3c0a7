#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Marking and size of surface-mount resistors. The value is read as `TxtValeur` times 10 to the power
/// `TxtExposant`.
class Cms final : public FeuilleCalcul {
public:
    explicit Cms(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Cms", .Caption = "Résistances CMS", .Width = 8760, .Height = 4320}}
    {
    }

    using Me = Cms;
    static constexpr Column taille{.left = 2040, .captions = 1560, .results = 960, .top = 660};
    static constexpr Column codes{.left = 420, .captions = 2520, .top = 2415};
    static constexpr Column lecture{.left = 3240, .captions = 1500, .inputs = 1980, .results = 1260, .top = 2400};
    static constexpr Column exposant{.left = 6165, .captions = 1395, .results = 600, .top = lecture.top};

    Shape Cadre1{this, "Cadre1", {.at = {240, 240, 8160, 1860}}};
    Label LblTaille{this, "LblTaille", {.Caption = "Taille CMS", .at = {420, 360, 1320, 255}}};
    ListBox LstCms{this, "LstCms",
        {.Items = {"402", "603", "805", "1206", "2010"},
            .at = under(LblTaille, 1320, listHeight(5), 45),
            .label = &LblTaille},
        &Me::LstCms_Click};
    Label LblLongueur{this, "LblLongueur", taille.caption(0, "Longueur (mm)")};
    TextBox TxtLongueur{this, "TxtLongueur", taille.result(LblLongueur)};
    Label LblLargeur{this, "LblLargeur", taille.caption(1, "Largeur (mm)")};
    TextBox TxtLargeur{this, "TxtLargeur", taille.result(LblLargeur)};
    Image Schema{this, "Schema", {.picture = "cms", .at = {4920, 300, 3300, 1740}}};

    Shape Cadre2{this, "Cadre2", {.at = under(Cadre1, 8160, 1380, 120)}};
    OptionButton Opt3Digits{this, "Opt3Digits", codes.option(0, "Marquage sur 3 digits")};
    OptionButton Opt4Digits{this, "Opt4Digits", codes.option(1, "Marquage sur 4 digits")};
    OptionButton OptE96{this, "OptE96", codes.option(2, "Série E96")};
    Label LblMarquage{this, "LblMarquage", lecture.caption(0, "Marquage")};
    TextBox TxtMarquage{this, "TxtMarquage", lecture.input(LblMarquage), &Me::TxtMarquage_Change};
    CommandButton BtnCmsCalculer{this, "BtnCmsCalculer",
        {.Caption = "Calculer", .at = {7020, lecture.top - 30, 1200, 375}}, &Me::BtnCmsCalculer_Click};
    Label LblValeur{this, "LblValeur", lecture.caption(2, "Valeur (Ohms)")};
    TextBox TxtValeur{this, "TxtValeur", lecture.openResult(LblValeur)};
    Label LblExposant{this, "LblExposant", exposant.caption(2, "x 10 puissance")};
    TextBox TxtExposant{this, "TxtExposant", exposant.openResult(LblExposant)};

private:
    void Form_Load() override;
    void LstCms_Click();
    void TxtMarquage_Change();
    void BtnCmsCalculer_Click();

    void Decoder3Digits();
    void Decoder4Digits();
    void DecoderE96();
};

} // namespace ondelis
