#pragma once

#include <array>
#include <cstddef>

#include "kit/Fault.h"
#include "kit/Whole.h"

namespace ondelis {

/// An array with the indices 0 to `Last`. Any other index throws a subscript out of range.
template <class Value, int Last>
class Table {
public:
    Value& operator()(Integer index)
    {
        if (index < 0 || index > Last)
            throw Fault{FaultKind::SubscriptOutOfRange};
        return values_[static_cast<std::size_t>(index.value())];
    }

private:
    std::array<Value, Last + 1> values_{};
};

} // namespace ondelis
