#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <limits>

#include "kit/Double.h"
#include "kit/Fault.h"

namespace ondelis {

/// A whole number of fixed width: leaving its range is an overflow fault.
template <class Repr>
class CheckedInteger {
public:
    constexpr CheckedInteger() = default;
    constexpr CheckedInteger(std::same_as<int> auto value) // NOLINT(google-explicit-constructor): mixes with literals
        : value_{narrowed(value)}
    {
    }

    [[nodiscard]] constexpr int value() const { return value_; }

    constexpr operator Double() const { return static_cast<int>(value_); } // NOLINT(google-explicit-constructor)

    friend constexpr CheckedInteger operator+(CheckedInteger a, CheckedInteger b)
    {
        return wide(std::int64_t{a.value_} + b.value_);
    }
    friend constexpr CheckedInteger operator-(CheckedInteger a, CheckedInteger b)
    {
        return wide(std::int64_t{a.value_} - b.value_);
    }
    friend constexpr CheckedInteger operator*(CheckedInteger a, CheckedInteger b)
    {
        return wide(std::int64_t{a.value_} * b.value_);
    }
    /// Keeps the fraction, even between whole numbers.
    friend constexpr Term operator/(CheckedInteger a, CheckedInteger b) { return Term{a.value()} / Term{b.value()}; }

    friend constexpr bool operator==(CheckedInteger, CheckedInteger) = default;
    // NOLINTNEXTLINE(modernize-use-nullptr): a false alarm
    friend constexpr auto operator<=>(CheckedInteger, CheckedInteger) = default;

private:
    static constexpr Repr narrowed(std::int64_t value)
    {
        if (value < std::numeric_limits<Repr>::min() || value > std::numeric_limits<Repr>::max())
            throw Fault{FaultKind::Overflow};
        return static_cast<Repr>(value);
    }

    static constexpr CheckedInteger wide(std::int64_t value)
    {
        CheckedInteger whole;
        whole.value_ = narrowed(value);
        return whole;
    }

    Repr value_ = 0;
};

/// 16 bits, -32768 to 32767: list rows, scroll bars, counters.
using Integer = CheckedInteger<std::int16_t>;

/// 32 bits.
using Long = CheckedInteger<std::int32_t>;

} // namespace ondelis
