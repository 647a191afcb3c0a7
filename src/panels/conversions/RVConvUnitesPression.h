#pragma once

#include <vector>

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A pressure from one unit to another. The click on the wanted unit converts.
class RVConvUnitesPression final : public FeuilleCalcul {
public:
    explicit RVConvUnitesPression(Desk& desk);

    using Me = RVConvUnitesPression;

    Label LblDe{this, "LblDe", {.Caption = "De", .at = {240, 240, 1740, 255}}};
    ListBox LstConversions{this, "LstConversions",
        {.Items = {"hPA", "mm H2O", "mm Hg", "Kg/cm²", "N/m²"}, .at = {240, 540, 1740, 1260}, .label = &LblDe},
        &Me::LstConversions_Click};
    Label LblEntree{this, "LblEntree", {.Caption = "Valeur en entrée", .at = {240, 1980, 1740, 255}}};
    TextBox TxtEntree{this, "TxtEntree", {.at = {240, 2280, 1740, 315}, .label = &LblEntree}};

    // One at a time, at one place.
    Label LblVers{this, "LblVers", {.Caption = "Vers", .at = {2340, 240, 1740, 255}}};
    ListBox LsthPa{this, "LsthPa", vers({"mm H2O", "mm Hg", "Kg/cm²", "N/m²"}), &Me::LsthPa_Click};
    ListBox LstmmH2O{this, "LstmmH2O", vers({"hPa", "mm Hg", "Kg/cm²", "N/m²"}), &Me::LstmmH2O_Click};
    ListBox LstmmHg{this, "LstmmHg", vers({"hPa", "mm H2O", "Kg/cm²", "N/m²"}), &Me::LstmmHg_Click};
    ListBox LstKgcm2{this, "LstKgcm2", vers({"hPa", "mm H2O", "mm Hg", "N/m²"}), &Me::LstKgcm2_Click};
    ListBox LstNm2{this, "LstNm2", vers({"hPa", "mm H2O", "mm Hg", "Kg/cm²"}), &Me::LstNm2_Click};
    Label LblSortie{this, "LblSortie", {.Caption = "Valeur convertie", .at = {2340, 1980, 2580, 255}}};
    TextBox TxtSortie{this, "TxtSortie", resultField({2340, 2280, 2580, 315}, &LblSortie)};

private:
    ListBox::Design vers(std::vector<std::string> unites);

    void Form_Load() override;
    void LstConversions_Click();
    void LsthPa_Click();
    void LstmmH2O_Click();
    void LstmmHg_Click();
    void LstKgcm2_Click();
    void LstNm2_Click();

    void Convertir(const ListBox& unites, const std::vector<Double>& facteurs);
};

} // namespace ondelis
