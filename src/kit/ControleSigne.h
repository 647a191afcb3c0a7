#pragma once

#include <functional>
#include <string>

#include "kit/Double.h"

namespace ondelis {

/// Returns a number that is zero or positive as it is. For a negative one it shows a message by `msgBox` and returns 0.
[[nodiscard]] Double ControleSigne(Double v, const std::function<void(const std::string& prompt)>& msgBox);

} // namespace ondelis
