#pragma once

#include <string>

#include "Dice.h"

namespace ondelis::fuzz {

/// A number as a person writes one: whole, or with a point or a comma.
[[nodiscard]] std::string plainNumber(Dice& dice);

/// A text that people do not write on purpose: empty, letters, signs, huge exponents, other alphabets.
[[nodiscard]] std::string oddText(Dice& dice);

} // namespace ondelis::fuzz
