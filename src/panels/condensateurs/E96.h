#pragma once

#include <string>

#include "kit/Double.h"

namespace ondelis {

/// The three significant digits that a code from 1 to 96 stands for in the EIA-96 marking of resistors; empty
/// for any other number.
[[nodiscard]] std::string E96(Double code);

} // namespace ondelis
