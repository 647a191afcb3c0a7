#pragma once

#include <string>
#include <utility>

#include "forms/Controls.h"

/// The colours of the drawings, for what panels draw and letter beside them.
namespace ondelis::dessin {

inline constexpr Color encre = 0x3D2D1F;
inline constexpr Color cuivre = 0x1F56A8;
inline constexpr Color cote = 0x784A2A; ///< dimension lines

/// The letter of a dimension of a drawing, for which it leaves a place: its centre in fractions of the drawing's size.
[[nodiscard]] inline Label::Design lettreDeCote(const char* text, const Box& dessin, double x, double y)
{
    return {
        .Caption = text, .at = letterBox(dessin, x, y), .ForeColor = cote, .align = Align::Center, .font = {.size = 8}};
}

} // namespace ondelis::dessin
