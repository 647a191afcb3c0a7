#pragma once

#include <concepts>

#include "kit/Double.h"
#include "kit/Fault.h"

namespace ondelis {

/// A binary32 number, used only for storage: positions and line coordinates. It rounds when it is stored and computes
/// as a `Double`; a value beyond its range is an overflow fault.
class Single {
public:
    constexpr Single() = default;
    constexpr Single(Double value) // NOLINT(google-explicit-constructor): a store rounds
        : value_{rounded(value.value())}
    {
    }
    template <class Literal>
    requires std::same_as<Literal, int> || std::same_as<Literal, double> || std::same_as<Literal, Term>
    constexpr Single(Literal value) // NOLINT(google-explicit-constructor)
        : Single{Double{value}}
    {
    }

    constexpr operator Double() const { return static_cast<double>(value_); } // NOLINT(google-explicit-constructor)

    friend constexpr bool operator==(Single, Single) = default;

private:
    static constexpr float rounded(double value)
    {
        constexpr double beyond = 3.4028235677973366e38; // half a step above the largest Single
        if (value >= beyond || value <= -beyond)
            throw Fault{FaultKind::Overflow};
        return static_cast<float>(value);
    }

    float value_ = 0;
};

} // namespace ondelis
