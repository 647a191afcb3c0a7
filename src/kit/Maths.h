#pragma once

#include "kit/Double.h"
#include "kit/Whole.h"

namespace ondelis {

/// Toward zero: `Fix(-2.7)` is -2.
[[nodiscard]] Double Fix(Double x);

/// Toward minus infinity: `Int(-2.7)` is -3.
[[nodiscard]] Double Int(Double x);

/// To the nearest whole number, a tie to the even one. Throws an overflow outside 16 bits.
[[nodiscard]] Integer CInt(Double x);

/// As `CInt`, in 32 bits.
[[nodiscard]] Long CLng(Double x);

[[nodiscard]] Double Abs(Double x);

/// -1, 0 or 1.
[[nodiscard]] Integer Sgn(Double x);

/// Throws an invalid argument below zero.
[[nodiscard]] Double Sqr(Double x);

/// Natural logarithm. Throws an invalid argument at zero and below.
[[nodiscard]] Double Log(Double x);

/// `Log(x) / Log(10)`, divided in `Double`.
[[nodiscard]] Double Log10(Double x);

/// The power x ^ y by the C library's `pow`, squares too, so that last digits do not depend on the build.
/// Throws an invalid argument for a negative number to a fractional power and for 0 to a negative one, an
/// overflow out of range.
[[nodiscard]] Double Pow(Double x, Double y);

/// In radians, as all angles.
[[nodiscard]] Double Atn(Double x);
[[nodiscard]] Double Sin(Double x);
[[nodiscard]] Double Cos(Double x);

/// `Atn(1) * 4`, computed at each call.
[[nodiscard]] Double Pi();

} // namespace ondelis
