#pragma once

#include <string>

#include "kit/Double.h"

namespace ondelis {

/// A number in the form "0.000E+00", with the decimal separator of the region: "1.235E+03" or "1,235E+03". It is the
/// number as it is stored that is rounded; one that lies in the middle of two such texts takes the one away from zero.
[[nodiscard]] std::string exponentForm(Double x);

} // namespace ondelis
