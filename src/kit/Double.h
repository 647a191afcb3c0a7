#pragma once

#include <compare>

namespace ondelis {

/// A finite IEEE 754 binary64 number. Each operation rounds once, to nearest; a result out of range, 0 / 0
/// and a division by zero are faults, so that no infinity and no not-a-number ever exists. Underflow passes
/// in silence.
class Double {
public:
    constexpr Double() = default;
    constexpr Double(double value) // NOLINT(google-explicit-constructor): formulas mix literals freely
        : value_{value}
    {
    }
    constexpr Double(int value) // NOLINT(google-explicit-constructor)
        : value_{static_cast<double>(value)}
    {
    }

    [[nodiscard]] constexpr double value() const { return value_; }

    /// The number itself; throws an overflow for an infinity or a not-a-number.
    static constexpr Double checked(double value)
    {
        if (!(value <= largest && value >= -largest)) [[unlikely]]
            overflow();
        return value;
    }

    friend constexpr Double operator+(Double a, Double b) { return checked(a.value_ + b.value_); }
    friend constexpr Double operator-(Double a, Double b) { return checked(a.value_ - b.value_); }
    friend constexpr Double operator*(Double a, Double b) { return checked(a.value_ * b.value_); }
    friend constexpr Double operator/(Double a, Double b)
    {
        if (b.value_ == 0) [[unlikely]]
            dividedByZero(a);
        return checked(a.value_ / b.value_);
    }
    friend constexpr Double operator-(Double a) { return -a.value_; }

    friend constexpr bool operator==(Double a, Double b) { return a.value_ == b.value_; }
    friend constexpr auto operator<=>(Double a, Double b) { return a.value_ <=> b.value_; }

private:
    static constexpr double largest = 1.7976931348623157e308;

    [[noreturn]] static void overflow();
    [[noreturn]] static void dividedByZero(Double dividend);

    double value_ = 0;
};

} // namespace ondelis
