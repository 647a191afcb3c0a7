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
class Whole {
public:
    constexpr Whole() = default;
    constexpr Whole(std::same_as<int> auto value) // NOLINT(google-explicit-constructor): counters mix with literals
        : value_{narrowed(value)}
    {
    }

    [[nodiscard]] constexpr int value() const { return value_; }

    constexpr operator Double() const { return static_cast<int>(value_); } // NOLINT(google-explicit-constructor)

    friend constexpr Whole operator+(Whole a, Whole b) { return wide(std::int64_t{a.value_} + b.value_); }
    friend constexpr Whole operator-(Whole a, Whole b) { return wide(std::int64_t{a.value_} - b.value_); }
    friend constexpr Whole operator*(Whole a, Whole b) { return wide(std::int64_t{a.value_} * b.value_); }
    /// Keeps the fraction, even between whole numbers.
    friend constexpr Term operator/(Whole a, Whole b) { return Term{a.value()} / Term{b.value()}; }

    friend constexpr bool operator==(Whole, Whole) = default;
    friend constexpr auto operator<=>(Whole, Whole) = default; // NOLINT(modernize-use-nullptr): a false alarm

private:
    static constexpr Repr narrowed(std::int64_t value)
    {
        if (value < std::numeric_limits<Repr>::min() || value > std::numeric_limits<Repr>::max())
            throw Fault{FaultKind::Overflow};
        return static_cast<Repr>(value);
    }

    static constexpr Whole wide(std::int64_t value)
    {
        Whole whole;
        whole.value_ = narrowed(value);
        return whole;
    }

    Repr value_ = 0;
};

/// 16 bits, -32768 to 32767: list rows, scroll bars, counters.
using Integer = Whole<std::int16_t>;

/// 32 bits.
using Long = Whole<std::int32_t>;

} // namespace ondelis
