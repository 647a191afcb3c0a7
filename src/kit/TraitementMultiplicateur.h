#pragma once

#include <string>

#include "kit/Double.h"

namespace ondelis {

/// A number as text with the word of its multiplier: " 1.5 Kilo", " 999.999999 micro", " 1 ". Six decimals,
/// truncated. 0 gives the empty text. Throws an invalid argument for a negative number.
[[nodiscard]] std::string TraitementMultiplicateur(Double v);

} // namespace ondelis
