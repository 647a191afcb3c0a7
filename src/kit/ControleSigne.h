#pragma once

#include <functional>
#include <string>

#include "kit/Double.h"

namespace ondelis {

/// Returns zero or a positive number as it is; for a negative one, shows a message by `msgBox` and returns 0.
[[nodiscard]] Double ControleSigne(Double v, const std::function<void(const std::string& prompt)>& msgBox);

} // namespace ondelis
