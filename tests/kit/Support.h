#pragma once

#include <concepts>
#include <iomanip>
#include <limits>
#include <optional>
#include <ostream>

#include "kit/CheckedInteger.h"
#include "kit/Double.h"
#include "kit/Fault.h"
#include "kit/Region.h"

namespace ondelis {

// How numbers and faults look in the messages of failed tests.

inline void PrintTo(Double x, std::ostream* out)
{
    *out << std::setprecision(std::numeric_limits<double>::max_digits10) << x.value();
}

template <class Repr>
void PrintTo(CheckedInteger<Repr> n, std::ostream* out)
{
    *out << n.value();
}

inline void PrintTo(FaultKind kind, std::ostream* out)
{
    *out << Fault{kind}.what();
}

/// The kind of the fault that an action throws; nothing if it throws none.
template <class Action>
std::optional<FaultKind> faultOf(Action action)
{
    try {
        if constexpr (std::same_as<decltype(action()), Term>)
            static_cast<void>(action().value()); // where a formula ends
        else
            static_cast<void>(action());
    } catch (const Fault& fault) {
        return fault.kind();
    }
    return std::nullopt;
}

inline const Region english{.decimal = ".", .thousands = ","};
inline const Region german{.decimal = ",", .thousands = "."};
inline const Region french{.decimal = ",", .thousands = "\u202f"};
inline const Region swiss{.decimal = ".", .thousands = "\u2019"};
inline const Region olderFrench{.decimal = ",", .thousands = "\u00a0"};

} // namespace ondelis
