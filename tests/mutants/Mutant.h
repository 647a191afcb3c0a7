#pragma once

#include <cstdlib>
#include <type_traits>
#include <utility>

// What `mutants.py` writes into a source: each change stands beside the original, and an environment variable says
// which one is on.

namespace ondelis_mutants {

// In headers of the floors, what the compiler computes stays as it was: no change is on there. In other files constants
// become variables or fail to compile, so that the compiler hides no change.
#ifdef ONDELIS_MUTANTS_OF_A_FLOOR
#define ONDELIS_CONSTEXPR constexpr
#else
#define ONDELIS_CONSTEXPR inline
#endif

/// The number of the change that is on; read once, as each operation on a number may ask.
[[nodiscard]] inline int chosen()
{
    static const char* const words = std::getenv("ONDELIS_MUTANT");
    static const int number = words == nullptr ? 0 : std::atoi(words);
    return number;
}

[[nodiscard]] ONDELIS_CONSTEXPR bool on(int number)
{
    return !std::is_constant_evaluated() && chosen() == number;
}

/// A literal that is another one while the change is on. Not a conditional: compilers take forever on lists of these.
template <class Value>
ONDELIS_CONSTEXPR Value either(int number, Value changed, Value original)
{
    return on(number) ? changed : original;
}

enum class Sign { Plus, Minus, Times, Over, Less, LessEqual, Greater, GreaterEqual, Equal, NotEqual };

template <Sign sign, class Left, class Right>
ONDELIS_CONSTEXPR decltype(auto) compute(Left&& left, Right&& right)
{
    if constexpr (sign == Sign::Plus)
        return std::forward<Left>(left) + std::forward<Right>(right);
    else if constexpr (sign == Sign::Minus)
        return std::forward<Left>(left) - std::forward<Right>(right);
    else if constexpr (sign == Sign::Times)
        return std::forward<Left>(left) * std::forward<Right>(right);
    else if constexpr (sign == Sign::Over)
        return std::forward<Left>(left) / std::forward<Right>(right);
    else if constexpr (sign == Sign::Less)
        return std::forward<Left>(left) < std::forward<Right>(right);
    else if constexpr (sign == Sign::LessEqual)
        return std::forward<Left>(left) <= std::forward<Right>(right);
    else if constexpr (sign == Sign::Greater)
        return std::forward<Left>(left) > std::forward<Right>(right);
    else if constexpr (sign == Sign::GreaterEqual)
        return std::forward<Left>(left) >= std::forward<Right>(right);
    else if constexpr (sign == Sign::Equal)
        return std::forward<Left>(left) == std::forward<Right>(right);
    else
        return std::forward<Left>(left) != std::forward<Right>(right);
}

/// Stands between two operands, `a + Change<Sign::Plus, Sign::Minus>{7} + b`: an operator that is another one while the
/// change is on.
template <Sign From, Sign To>
struct Change {
    int number;
};

template <class Left, Sign From, Sign To>
struct Held {
    Left&& left;
    int number;

    template <class Right>
    ONDELIS_CONSTEXPR auto with(Right&& right) &&
    {
        using Result = std::decay_t<decltype(compute<From>(std::forward<Left>(left), std::forward<Right>(right)))>;
        if (on(number))
            return static_cast<Result>(compute<To>(std::forward<Left>(left), std::forward<Right>(right)));
        return static_cast<Result>(compute<From>(std::forward<Left>(left), std::forward<Right>(right)));
    }
};

// NOLINTBEGIN(bugprone-macro-parentheses): an operator cannot stand in parentheses
#define ONDELIS_CHANGED(SIGN, NAME)                                                                                    \
    template <class Left, Sign To>                                                                                     \
    ONDELIS_CONSTEXPR Held<Left, Sign::NAME, To> operator SIGN(Left&& left, Change<Sign::NAME, To> change)             \
    {                                                                                                                  \
        return {std::forward<Left>(left), change.number};                                                              \
    }                                                                                                                  \
    template <class Left, Sign To, class Right>                                                                        \
    ONDELIS_CONSTEXPR auto operator SIGN(Held<Left, Sign::NAME, To>&& held, Right&& right)                             \
    {                                                                                                                  \
        return std::move(held).with(std::forward<Right>(right));                                                       \
    }
// NOLINTEND(bugprone-macro-parentheses)

ONDELIS_CHANGED(+, Plus)
ONDELIS_CHANGED(-, Minus)
ONDELIS_CHANGED(*, Times)
ONDELIS_CHANGED(/, Over)
ONDELIS_CHANGED(<, Less)
ONDELIS_CHANGED(<=, LessEqual)
ONDELIS_CHANGED(>, Greater)
ONDELIS_CHANGED(>=, GreaterEqual)
ONDELIS_CHANGED(==, Equal)
ONDELIS_CHANGED(!=, NotEqual)
#undef ONDELIS_CHANGED
#undef ONDELIS_CONSTEXPR

} // namespace ondelis_mutants
