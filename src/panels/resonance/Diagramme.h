#pragma once

#include <string>
#include <utility>

#include "forms/Column.h"

/// What the diagrams of the two RLC circuits have in common.
namespace ondelis::diagramme {

// The colours of the lines: that of a part is the same in both.
inline constexpr Color axe = 0x8A8A8A;
inline constexpr Color bobine = 0xD08C4A;
inline constexpr Color resistance = 0x1B61B8;
inline constexpr Color condensateur = 0x3F6B12;
inline constexpr Color resultante = 0x281CD0;

/// The legend: in each row a stroke, and right of it what it stands for.
struct Legende {
    double traits = 0; ///< the left end of the strokes
    Column noms;

    [[nodiscard]] Line::Design trait(double row, Color color, int width) const
    {
        constexpr double length = 300;
        constexpr double middle = 127; // of a line of text
        const double y = noms.at(row).Top + middle;
        return {.X1 = traits, .Y1 = y, .X2 = traits + length, .Y2 = y, .BorderColor = color, .BorderWidth = width};
    }
    [[nodiscard]] Label::Design nom(double row, const char* text) const { return noms.caption(row, text); }
};

} // namespace ondelis::diagramme
