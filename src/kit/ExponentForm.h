#pragma once

#include <string>

#include "kit/Double.h"

namespace ondelis {

/// A number in the form "0.000E+00", with the decimal separator of the region: "1.235E+03" or "1,235E+03". The number
/// is rounded as it is stored; one halfway between two such texts takes the one away from zero.
[[nodiscard]] std::string exponentForm(Double x);

} // namespace ondelis
