#pragma once

#include <string>

#include "kit/Double.h"

namespace ondelis {

// Computes what is shown nowhere, because computing it can end the program: only its fault counts.

inline void computeForFault(Double /*result*/) { }
inline void computeForFault(const std::string& /*result*/) { }

} // namespace ondelis
