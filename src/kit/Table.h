#pragma once

#include <array>
#include <cstddef>

#include "kit/CheckedInteger.h"
#include "kit/Fault.h"

namespace ondelis {

/// An array with the indices 0 to `Last`. Any other index throws a subscript out of range.
template <class Value, int Last>
class Table {
public:
    constexpr Table() = default;
    constexpr explicit Table(const std::array<Value, Last + 1>& values) : values_{values} { }

    constexpr Value& operator()(Integer index) { return values_[checked(index)]; }
    constexpr const Value& operator()(Integer index) const { return values_[checked(index)]; }

private:
    static constexpr std::size_t checked(Integer index)
    {
        if (index < 0 || index > Last)
            throw Fault{FaultKind::SubscriptOutOfRange};
        return static_cast<std::size_t>(index.value());
    }

    std::array<Value, Last + 1> values_{};
};

} // namespace ondelis
