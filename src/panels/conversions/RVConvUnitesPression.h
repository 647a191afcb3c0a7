#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Converts a pressure from one unit to another. A click on the wanted unit converts.
class RVConvUnitesPression final : public FeuilleCalcul {
public:
    explicit RVConvUnitesPression(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "RVConvUnitesPression",
                .Caption = "Conversions unités de pression",
                .Width = 5280,
                .Height = 3315}}
    {
    }

    using Me = RVConvUnitesPression;
    // Each caption stands over its list or its field.
    static constexpr Column entree{.left = 240, .captions = 1740, .top = 210, .pitch = 1740};
    static constexpr Column sortie{.left = 2340, .captions = 1740, .top = entree.top, .pitch = entree.pitch};

    Label LblDe{this, "LblDe", entree.caption(0, "De")};
    ListBox LstConversions{
        this, "LstConversions", liste(LblDe, {"hPA", "mm H2O", "mm Hg", "Kg/cm²", "N/m²"}), &Me::LstConversions_Click};
    Label LblEntree{this, "LblEntree", entree.caption(1, "Valeur en entrée")};
    TextBox TxtEntree{this, "TxtEntree", {.at = sous(LblEntree), .label = &LblEntree}};

    // One list at a time, at one place.
    Label LblVers{this, "LblVers", sortie.caption(0, "Vers")};
    ListBox LsthPa{this, "LsthPa", liste(LblVers, {"mm H2O", "mm Hg", "Kg/cm²", "N/m²"}), &Me::LsthPa_Click};
    ListBox LstmmH2O{this, "LstmmH2O", liste(LblVers, {"hPa", "mm Hg", "Kg/cm²", "N/m²"}), &Me::LstmmH2O_Click};
    ListBox LstmmHg{this, "LstmmHg", liste(LblVers, {"hPa", "mm H2O", "Kg/cm²", "N/m²"}), &Me::LstmmHg_Click};
    ListBox LstKgcm2{this, "LstKgcm2", liste(LblVers, {"hPa", "mm H2O", "mm Hg", "N/m²"}), &Me::LstKgcm2_Click};
    ListBox LstNm2{this, "LstNm2", liste(LblVers, {"hPa", "mm H2O", "mm Hg", "Kg/cm²"}), &Me::LstNm2_Click};
    Label LblSortie{
        this, "LblSortie", {.Caption = "Valeur convertie", .at = {sortie.left, sortie.at(1).Top, 2580, 255}}};
    TextBox TxtSortie{this, "TxtSortie", resultField(sous(LblSortie), &LblSortie)};

private:
    /// Under the caption that names it, and as wide as it.
    static Box sous(const Label& legende, double height = 315)
    {
        return under(legende, legende.at().Width, height, 45);
    }
    static ListBox::Design liste(Label& legende, std::vector<std::string> items)
    {
        const double height = listHeight(static_cast<int>(items.size()));
        return {.Items = std::move(items), .at = sous(legende, height), .label = &legende};
    }

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
