#pragma once

#include <deque>
#include <string>

#include "forms/Controls.h"
#include "kit/Fault.h"

namespace ondelis {

/// Controls of one class under one name, numbered from 0. They share one procedure, which is given the index of the
/// element.
template <class ControlClass>
class ControlArray {
public:
    /// `design` gives the design of each element by its index.
    template <class DesignOf, class... Handlers>
    ControlArray(FeuilleCalcul* panel, const std::string& name, int count, DesignOf design, Handlers... handlers)
    {
        for (int i = 0; i < count; ++i)
            elements_.emplace_back(panel, name + "(" + std::to_string(i) + ")", design(i), Handler{handlers}.at(i)...);
    }

    /// Throws a subscript out of range if there is no such element.
    ControlClass& operator()(Integer index)
    {
        if (index < 0 || index >= count())
            throw Fault{FaultKind::SubscriptOutOfRange};
        return elements_[static_cast<std::size_t>(index.value())];
    }

    [[nodiscard]] Integer count() const { return static_cast<int>(elements_.size()); }

private:
    std::deque<ControlClass> elements_; // elements never move: their panel and the view point to them
};

} // namespace ondelis
