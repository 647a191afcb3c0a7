#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Marking and size of surface-mount resistors. The value is read as `TxtValeur` times 10 to the power
/// `TxtExposant`.
class Cms final : public FeuilleCalcul {
public:
    explicit Cms(Desk& desk)
        : FeuilleCalcul{desk, {.name = "Cms", .Caption = "Résistances CMS", .Width = 8760, .Height = 4320}}
    {
    }

    using Me = Cms;
    static constexpr Column colonne{.left = 2040, .captions = 1560, .results = 960, .top = 660};
    static constexpr Column colonne2{.left = 3240, .captions = 1500, .inputs = 1980, .results = 1260};
    static constexpr Column colonne3{.left = 6165, .captions = 1395, .results = 600};

    Shape Cadre1{this, "Cadre1", {.at = {240, 240, 8160, 1860}}};
    Label LblTaille{this, "LblTaille", {.Caption = "Taille CMS", .at = {420, 360, 1320, 255}}};
    ListBox LstCms{this, "LstCms",
        {.Items = {"402", "603", "805", "1206", "2010"}, .at = {420, 660, 1320, 1260}, .label = &LblTaille},
        &Me::LstCms_Click};
    Label LblLongueur{this, "LblLongueur", colonne.caption(0, "Longueur (mm)")};
    TextBox TxtLongueur{this, "TxtLongueur", colonne.result(LblLongueur)};
    Label LblLargeur{this, "LblLargeur", colonne.caption(1, "Largeur (mm)")};
    TextBox TxtLargeur{this, "TxtLargeur", colonne.result(LblLargeur)};
    Image Schema{this, "Schema", {.picture = "cms", .at = {4920, 300, 3300, 1740}}};

    Shape Cadre2{this, "Cadre2", {.at = {240, 2220, 8160, 1380}}};
    OptionButton Opt3Digits{this, "Opt3Digits", {.Caption = "Marquage sur 3 digits", .at = {420, 2415, 2520, 300}}};
    OptionButton Opt4Digits{this, "Opt4Digits", {.Caption = "Marquage sur 4 digits", .at = {420, 2775, 2520, 300}}};
    OptionButton OptE96{this, "OptE96", {.Caption = "Série E96", .at = {420, 3135, 2520, 300}}};
    Label LblMarquage{this, "LblMarquage", colonne2.caption(6, "Marquage")};
    TextBox TxtMarquage{this, "TxtMarquage", colonne2.input(LblMarquage), &Me::TxtMarquage_Change};
    CommandButton BtnCmsCalculer{
        this, "BtnCmsCalculer", {.Caption = "Calculer", .at = {7020, 2370, 1200, 375}}, &Me::BtnCmsCalculer_Click};
    Label LblValeur{this, "LblValeur", colonne2.caption(8, "Valeur (Ohms)")};
    TextBox TxtValeur{this, "TxtValeur", colonne2.openResult(LblValeur)};
    Label LblExposant{this, "LblExposant", colonne3.caption(8, "x 10 puissance")};
    TextBox TxtExposant{this, "TxtExposant", colonne3.openResult(LblExposant)};

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
