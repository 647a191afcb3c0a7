#pragma once

#include <string>

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

/// A length in metres as the HB9CV panels show it: three decimals, truncated.
[[nodiscard]] inline std::string LongueurHB9CV(Double x)
{
    return CStr(Fix(x * 1000) / 1000);
}

} // namespace ondelis
