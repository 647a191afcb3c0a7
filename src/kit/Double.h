#pragma once

#include <bit>
#include <compare>
#include <concepts>
#include <cstdint>

#include "kit/Fault.h"

namespace ondelis {

class Term;

/// A finite IEEE 754 binary64 number. Each operation rounds once, to nearest; a result out of range, 0 / 0 and a
/// division by zero are faults, so that no infinity or NaN is ever kept. Underflow is silent.
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

/// The result of an operation inside a formula: a number, or the fault that was met first from left to right. It
/// becomes a `Double` where the formula ends, in a store, an argument, a comparison, and throws its fault there. If
/// operations threw at once, the compiler would choose which of two faults in one formula ends the program: it may
/// compute the right operand first.
class [[nodiscard]] Term {
public:
    template <std::convertible_to<Double> Number>
    constexpr Term(const Number& number) // NOLINT(google-explicit-constructor): all numbers stand in formulas
        : value_{static_cast<Double>(number).value()}
    {
    }
    explicit constexpr Term(FaultKind kind) : fault_{kind} { }

    /// The number, or an overflow for an infinity or a NaN.
    static constexpr Term checked(double value) { return finite(value) ? Term{value} : Term{FaultKind::Overflow}; }

    constexpr operator Double() const { return value(); } // NOLINT(google-explicit-constructor)

    [[nodiscard]] constexpr double value() const
    {
        if (faulty()) [[unlikely]]
            throwFault(fault_);
        return value_;
    }

    /// Whether a fault was met; a function of a faulty operand returns it unchanged.
    [[nodiscard]] constexpr bool faulty() const { return fault_ != none; }

    friend constexpr Term operator+(Term a, Term b) { return result(a, b, a.value_ + b.value_); }
    friend constexpr Term operator-(Term a, Term b) { return result(a, b, a.value_ - b.value_); }
    friend constexpr Term operator*(Term a, Term b) { return result(a, b, a.value_ * b.value_); }
    friend constexpr Term operator/(Term a, Term b)
    {
        if (b.value_ != 0) [[likely]]
            return result(a, b, a.value_ / b.value_);
        return result(a, b, Term{a.value_ == 0 ? FaultKind::Overflow : FaultKind::DivisionByZero});
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
    static constexpr FaultKind none{-1}; ///< no kind of fault

    /// Looks at the exponent, which is all ones for an infinity or a NaN. No comparison: from `x * 10 > largest` GCC 13
    /// and 14 wrongly conclude that x is infinite too, and miscompile what else is computed with x.
    static constexpr bool finite(double value)
    {
        constexpr std::uint64_t exponent = 0x7FF0'0000'0000'0000;
        return (std::bit_cast<std::uint64_t>(value) & exponent) != exponent;
    }

    /// The result of an operation, unless one of its operands is a fault already: the left one counts first.
    static constexpr Term result(Term a, Term b, Term given) { return a.faulty() ? a : b.faulty() ? b : given; }
    /// The same, with one branch where all is well.
    static constexpr Term result(Term a, Term b, double given)
    {
        if (!a.faulty() && !b.faulty() && finite(given)) [[likely]]
            return given;
        return result(a, b, Term{FaultKind::Overflow});
    }

    [[noreturn]] static void throwFault(FaultKind kind);

    double value_ = 0; ///< never read beside a fault
    FaultKind fault_ = none;
};

} // namespace ondelis
