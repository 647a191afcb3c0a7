#pragma once

#include <string>
#include <string_view>

#include "kit/Double.h"
#include "kit/Maths.h"

namespace ondelis {

// A function that returns a `Term` throws only where the formula ends.

/// The number that a text starts with, or 0 if none. Blanks, tabs and line feeds are ignored everywhere; the decimal
/// point is "." in every region; an exponent is marked by E, e, D or d; &H and &O begin a hexadecimal or octal whole
/// number. Throws an overflow beyond the range of a `Double`, and nothing else.
[[nodiscard]] Term Val(std::string_view text);

/// The number that a text is, by the separators of the region. Throws a type mismatch if the whole text, apart from
/// blanks around it, is not a number, and an overflow beyond the range of a `Double`.
[[nodiscard]] Term CDbl(std::string_view text);

/// `CDbl`, then `CInt` of the number.
[[nodiscard]] Integer CInt(std::string_view text);

/// At most 15 significant digits with the decimal separator of the region: "0,5" or "0.5". From 1E+15 and
/// below 0.0001 in scientific form: "2.5E-05".
[[nodiscard]] std::string CStr(Double x);

/// The digits of `CStr` with a "." in every region, a leading blank unless negative, and no "0" before the
/// point: " .5", "-.5", " 3".
[[nodiscard]] std::string Str(Double x);

} // namespace ondelis
