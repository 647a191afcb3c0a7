#pragma once

#include "kit/CheckedInteger.h"
#include "kit/Double.h"

namespace ondelis {

/// The inductance in µH of a polygonal loop of N sides and n turns, whose sides have the length a in metres; 0 where N
/// is not 3, 4, 6 or 8.
[[nodiscard]] Double InductancePolygone(Integer N, Double n, Double a);

} // namespace ondelis
