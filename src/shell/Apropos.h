#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Why the program exists, who helped, and the books that its formulas come from.
class Apropos final : public FeuilleCalcul {
public:
    explicit Apropos(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "Apropos", .Caption = "Pourquoi et comment ce logiciel", .Width = 8310, .Height = 4035}}
    {
    }

    Frame Frame1{this, "Frame1", {.Caption = "Pourquoi ce logiciel et remerciements", .at = {180, 120, 7800, 3240}}};
    Label Label5{this, "Label5",
        {.Caption = "Ce logiciel a été développé par Kervane",
            .at = paragraphe(360, 315),
            .font = {.bold = true},
            .container = &Frame1}};
    Label Label2{this, "Label2", {.at = paragraphe(840, 510), .container = &Frame1}};
    Label Label3{this, "Label3", {.at = paragraphe(1440, 255), .container = &Frame1}};
    Label Label6{this, "Label6", {.at = paragraphe(1890, 1275), .container = &Frame1}};

private:
    static Box paragraphe(double top, double height) { return {240, top, 7320, height}; }

    void Form_Load() override;
};

} // namespace ondelis
