#pragma once

#include "kit/CheckedInteger.h"
#include "kit/Double.h"

namespace ondelis {

// A function that returns a `Term` throws only where the formula ends, and passes on a fault of its argument.

/// Toward zero: `Fix(-2.7)` is -2.
[[nodiscard]] Term Fix(Term x);

/// A number truncated to whole parts, toward zero: `Truncate(2.789, 100)` is 2.78, in hundredths. The product, then
/// `Fix`, then the quotient, each rounded: `Truncate(0.29, 100)` is 0.28.
[[nodiscard]] Term Truncate(Term x, Double parts);

/// Toward minus infinity: `Int(-2.7)` is -3.
[[nodiscard]] Term Int(Term x);

/// To the nearest whole number, a tie to the even one. Throws an overflow outside 16 bits.
[[nodiscard]] Integer CInt(Double x);

/// Like `CInt`, in 32 bits.
[[nodiscard]] Long CLng(Double x);

[[nodiscard]] Term Abs(Term x);

/// -1, 0 or 1.
[[nodiscard]] Integer Sgn(Double x);

/// Throws an invalid argument below zero.
[[nodiscard]] Term Sqr(Term x);

/// Natural logarithm. Throws an invalid argument at zero and below.
[[nodiscard]] Term Log(Term x);

/// `Log(x) / Log(10)`, divided in `Double`.
[[nodiscard]] Term Log10(Term x);

/// The power x ^ y by the C library's `pow`, even squares, so that last digits do not depend on the build. Throws an
/// invalid argument for a negative number to a fractional power and for 0 to a negative one, an overflow out of range.
[[nodiscard]] Term Pow(Term x, Term y);

/// In radians, like all angles.
[[nodiscard]] Term Atn(Term x);
[[nodiscard]] Term Sin(Term x);
[[nodiscard]] Term Cos(Term x);

/// `Atn(1) * 4`, computed at each call.
[[nodiscard]] Term Pi();

} // namespace ondelis
