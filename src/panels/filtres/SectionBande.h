#pragma once

#include <string>
#include <utility>

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// What the band-pass and the band-stop section share: the form, and the road from a field to the results. Each gives
/// its defaults, its guard and its four formulas.
class SectionBande : public FeuilleCalcul {
public:
    /// Where the two forms differ.
    struct Texts {
        std::string picture;
        std::string captionF1;
        std::string captionF2;
        Box letterL1; ///< on the drawing, as the four below
        Box letterC1;
        Box letterL2;
        Box letterC2;
        Box letterZ;
    };

    static constexpr Box drawing{675, 150, 4500, 2580};

    SectionBande(Desk& desk, std::string name, std::string caption, const Texts& texts)
        // clang-format off
        : FeuilleCalcul{desk, {.name = std::move(name), .Caption = std::move(caption), .Width = 5970, .Height = 6255}},
          Schema    {this, "Schema",     {.picture = texts.picture, .at = drawing}},
          Label1    {this, "Label1",     {.Caption = "L1", .at = texts.letterL1, .align = Align::Center}},
          Label5    {this, "Label5",     {.Caption = "C1", .at = texts.letterC1, .align = Align::Center}},
          Label10   {this, "Label10",    {.Caption = "L2", .at = texts.letterL2, .align = Align::Center}},
          Label11   {this, "Label11",    {.Caption = "C2", .at = texts.letterC2, .align = Align::Center}},
          Label4    {this, "Label4",     {.Caption = "Z",  .at = texts.letterZ,  .align = Align::Center}},
          Label6    {this, "Label6",     {.Caption = texts.captionF1, .at = {240, ligne(7.5) + 30, 2880, 255}}},
          TxtFreq1  {this, "TxtFreq1",   {.at = {3180, ligne(7.5), 1320, 315}, .label = &Label6}, &SectionBande::TxtFreq1_Change},
          Label2    {this, "Label2",     {.Caption = texts.captionF2, .at = {240, ligne(8.5) + 30, 2880, 255}}},
          TxtFreq2  {this, "TxtFreq2",   {.at = {3180, ligne(8.5), 1320, 315}, .label = &Label2}, &SectionBande::TxtFreq2_Change},
          Label7    {this, "Label7",     {.Caption = "Impédance de charge", .at = {240, ligne(9.5) + 30, 2880, 255}}},
          TxtZCharge{this, "TxtZCharge", {.at = {3180, ligne(9.5), 1320, 315}, .label = &Label7}, &SectionBande::TxtZCharge_Change},
          Label9    {this, "Label9",     {.Caption = "Self1 en Henry", .at = {240, ligne(11) + 30, 2880, 255}}},
          TxtSelf1  {this, "TxtSelf1",   resultField({3180, ligne(11), 2400, 315}, &Label9, 0xFFFF80)},
          Label8    {this, "Label8",     {.Caption = "Capacité1 en Farad", .at = {240, ligne(12) + 30, 2880, 255}}},
          TxtCapa1  {this, "TxtCapa1",   resultField({3180, ligne(12), 2400, 315}, &Label8, 0xFFFF80)},
          Label15   {this, "Label15",    {.Caption = "Self2 en Henry", .at = {240, ligne(13) + 30, 2880, 255}}},
          TxtSelf2  {this, "TxtSelf2",   resultField({3180, ligne(13), 2400, 315}, &Label15, 0xFFFF80)},
          Label14   {this, "Label14",    {.Caption = "Capacité2 en Farad", .at = {240, ligne(14) + 30, 2880, 255}}},
          TxtCapa2  {this, "TxtCapa2",   resultField({3180, ligne(14), 2400, 315}, &Label14, 0xFFFF80)}
    // clang-format on
    {
    }

    Image Schema;
    Label Label1, Label5, Label10, Label11, Label4;
    Label Label6;
    TextBox TxtFreq1;
    Label Label2;
    TextBox TxtFreq2;
    Label Label7;
    TextBox TxtZCharge;
    Label Label9;
    TextBox TxtSelf1;
    Label Label8;
    TextBox TxtCapa1;
    Label Label15;
    TextBox TxtSelf2;
    Label Label14;
    TextBox TxtCapa2;

protected:
    Double F1; ///< Hz
    Double F2; ///< Hz
    Double Z; ///< ohms

private:
    [[nodiscard]] virtual bool Calculable() const = 0;
    /// Henrys, by the width of the band `d` in hertz, as the three below; the two others in farads.
    [[nodiscard]] virtual Double Self1(Double d) const = 0;
    [[nodiscard]] virtual Double Self2(Double d) const = 0;
    [[nodiscard]] virtual Double Capa1(Double d) const = 0;
    [[nodiscard]] virtual Double Capa2(Double d) const = 0;

    void TxtFreq1_Change();
    void TxtFreq2_Change();
    void TxtZCharge_Change();
    void Calculer();
};

} // namespace ondelis
