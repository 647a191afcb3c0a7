#pragma once

#include <bit>
#include <compare>
#include <concepts>
#include <cstdint>

#include "kit/Fault.h"

namespace ondelis {

class Term;

/// A finite IEEE 754 binary64 number. Each operation rounds once, to nearest; a result out of range, 0 / 0
/// and a division by zero are faults, so that no infinity and no not-a-number is ever kept. Underflow passes
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

    friend constexpr Term operator+(Term a, Term b);
    friend constexpr Term operator-(Term a, Term b);
    friend constexpr Term operator*(Term a, Term b);
    friend constexpr Term operator/(Term a, Term b);
    friend constexpr Term operator-(Term a);
    friend constexpr bool operator==(Term a, Term b);
    friend constexpr std::partial_ordering operator<=>(Term a, Term b);

private:
    double value_ = 0;
};

/// What an operation gives inside a formula: a number, or the fault that was met first from left to right. It becomes a
/// `Double` where the formula ends, in a store, an argument, a comparison, and throws its fault there. Were operations
/// to throw at once, the compiler would choose which of two faults in one formula ends the program: it may compute the
/// right operand first.
class [[nodiscard]] Term {
public:
    template <std::convertible_to<Double> Number>
    constexpr Term(const Number& number) // NOLINT(google-explicit-constructor): all numbers stand in formulas
        : value_{static_cast<Double>(number).value()}
    {
    }
    explicit constexpr Term(FaultKind kind) : value_{std::bit_cast<double>(quietNan | static_cast<std::uint64_t>(kind))}
    {
    }

    /// The number, or an overflow for an infinity or a not-a-number.
    static constexpr Term checked(double value) { return finite(value) ? Term{value} : Term{FaultKind::Overflow}; }

    constexpr operator Double() const { return value(); } // NOLINT(google-explicit-constructor)

    [[nodiscard]] constexpr double value() const
    {
        if (faulty()) [[unlikely]]
            raise();
        return value_;
    }

    /// Whether a fault was met; a function gives it on as it is.
    [[nodiscard]] constexpr bool faulty() const { return !finite(value_); }

    friend constexpr Term operator+(Term a, Term b) { return result(a, b, a.value_ + b.value_); }
    friend constexpr Term operator-(Term a, Term b) { return result(a, b, a.value_ - b.value_); }
    friend constexpr Term operator*(Term a, Term b) { return result(a, b, a.value_ * b.value_); }
    friend constexpr Term operator/(Term a, Term b)
    {
        if (b.value_ == 0 && !a.faulty()) [[unlikely]]
            return Term{a.value_ == 0 ? FaultKind::Overflow : FaultKind::DivisionByZero};
        return result(a, b, a.value_ / b.value_);
    }
    friend constexpr Term operator-(Term a) { return a.faulty() ? a : Term{-a.value_}; }

    // The left side's fault counts first here too.
    friend constexpr bool operator==(Term a, Term b)
    {
        const double left = a.value();
        return left == b.value();
    }
    friend constexpr std::partial_ordering operator<=>(Term a, Term b)
    {
        const double left = a.value();
        return left <=> b.value();
    }

private:
    static constexpr double largest = 1.7976931348623157e308;
    /// A fault is kept in the lowest bits of a not-a-number.
    static constexpr std::uint64_t quietNan = 0x7FF8'0000'0000'0000;

    static constexpr bool finite(double value) { return value <= largest && value >= -largest; }

    /// The value of an operation, unless one of its operands is a fault already: the left one counts first.
    static constexpr Term result(Term a, Term b, double value)
    {
        if (finite(value)) [[likely]]
            return value;
        return a.faulty() ? a : b.faulty() ? b : Term{FaultKind::Overflow};
    }

    [[noreturn]] void raise() const;

    double value_;
};

} // namespace ondelis
