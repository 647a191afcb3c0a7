#pragma once

#include <string>

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// What the low-pass and the high-pass section share: the form, and the road from a field to the results. Each gives
/// its defaults, its two formulas, and what it writes into the panel of the number of turns.
class SectionPasse : public FeuilleCalcul {
public:
    /// Where the two forms differ.
    struct Texts {
        std::string picture;
        std::string formulaL;
        std::string formulaC;
        Box letterL; ///< on the drawing
        Box letterC;
    };

    static constexpr Box drawing{675, 150, 4500, 2220};

    SectionPasse(Desk& desk, std::string name, std::string caption, const Texts& texts)
        // clang-format off
        : FeuilleCalcul{desk, {.name = std::move(name), .Caption = std::move(caption), .Width = 5970, .Height = 4980}},
          Schema    {this, "Schema",     {.picture = texts.picture, .at = drawing}},
          Label1    {this, "Label1",     {.Caption = "L", .at = texts.letterL, .align = Align::Center}},
          Label5    {this, "Label5",     {.Caption = "C", .at = texts.letterC, .align = Align::Center}},
          Label4    {this, "Label4",     {.Caption = "Z", .at = lettre(drawing, 0.934, 0.601), .align = Align::Center}},
          Label2    {this, "Label2",     {.Caption = texts.formulaL, .at = {240, ligne(6) + 30, 2880, 255}}},
          Label3    {this, "Label3",     {.Caption = texts.formulaC, .at = {3180, ligne(6) + 30, 2430, 255}}},
          Label6    {this, "Label6",     {.Caption = "Fréquence de coupure en Hz", .at = {240, ligne(7) + 30, 2880, 255}}},
          TxtFreq   {this, "TxtFreq",    {.at = {3180, ligne(7), 1320, 315}, .label = &Label6}, &SectionPasse::TxtFreq_Change},
          Label7    {this, "Label7",     {.Caption = "Impédance de charge en Ohms", .at = {240, ligne(8) + 30, 2880, 255}}},
          TxtZCharge{this, "TxtZCharge", {.at = {3180, ligne(8), 1320, 315}, .label = &Label7}, &SectionPasse::TxtZCharge_Change},
          Label9    {this, "Label9",     {.Caption = "Self en Henry", .at = {240, ligne(9.5) + 30, 2880, 255}}},
          TxtSelf   {this, "TxtSelf",    resultField({3180, ligne(9.5), 2400, 315}, &Label9, 0xFFFF80)},
          Label8    {this, "Label8",     {.Caption = "Capacité en Farad", .at = {240, ligne(10.5) + 30, 2880, 255}}},
          TxtCapa   {this, "TxtCapa",    resultField({3180, ligne(10.5), 2400, 315}, &Label8, 0xFFFF80)}
    // clang-format on
    {
    }

    Image Schema;
    Label Label1, Label5, Label4, Label2, Label3;
    Label Label6;
    TextBox TxtFreq;
    Label Label7;
    TextBox TxtZCharge;
    Label Label9;
    TextBox TxtSelf;
    Label Label8;
    TextBox TxtCapa;

protected:
    Double F; ///< Hz
    Double Z; ///< ohms

private:
    /// Henrys.
    [[nodiscard]] virtual Double L() const = 0;
    /// Farads.
    [[nodiscard]] virtual Double C() const = 0;
    /// Hands the inductor to the panel of the number of turns.
    virtual void Bobiner() = 0;

    void TxtFreq_Change();
    void TxtZCharge_Change();
    void Calculer();
};

} // namespace ondelis
