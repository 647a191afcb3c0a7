#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Why the program exists, who helped, and the books that its formulas come from.
class Apropos final : public FeuilleCalcul {
public:
    explicit Apropos(Desk& desk);

    // clang-format off
    Frame Frame1{this, "Frame1", {.Caption = "Pourquoi ce logiciel et remerciements", .at = {180, 120, 7800, 3240}}};
    Label Label5{this, "Label5", {.Caption = "Ce logiciel a été développé par Kervane", .at = {240, 360, 7320, 315}, .font = {.bold = true}, .container = &Frame1}};
    Label Label2{this, "Label2", {.at = {240, 840, 7320, 510}, .container = &Frame1}};
    Label Label3{this, "Label3", {.at = {240, 1440, 7320, 255}, .container = &Frame1}};
    Label Label6{this, "Label6", {.at = {240, 1890, 7320, 1275}, .container = &Frame1}};
    // clang-format on

private:
    void Form_Load() override;
};

} // namespace ondelis
