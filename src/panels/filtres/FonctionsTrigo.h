#pragma once

#include "kit/Double.h"

namespace ondelis {

/// The angle of the point (x, y), in radians: from -pi, excluded, to pi. An |x| below 1E-7 counts as 0.
[[nodiscard]] Double ArcTan2(Double y, Double x);

/// The angle from 0 to pi whose cosine is x, in radians. Throws an invalid argument for |x| above 1.
[[nodiscard]] Double ArcCos(Double x);

} // namespace ondelis
