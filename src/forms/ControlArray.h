#pragma once

#include <deque>
#include <string>

#include "forms/FeuilleCalcul.h"
#include "kit/Fault.h"

namespace ondelis {

/// The name of one of several controls of the same name: "LM1(0)".
[[nodiscard]] inline std::string elementName(const std::string& name, int index)
{
    return name + "(" + std::to_string(index) + ")";
}

/// Controls of one class under one name, or rows of several controls, each a structure, numbered from 0.
template <class Item>
class ControlArray {
public:
    /// `design` gives the design of each control by its index.
    template <class DesignOf>
    ControlArray(FeuilleCalcul* panel, const std::string& name, int count, DesignOf design)
    {
        for (int i = 0; i < count; ++i)
            items_.emplace_back(panel, elementName(name, i), design(i));
    }

    /// Makes each row from the panel and its index. On the form, and so for the Tab key, row follows row.
    template <class Panel>
    ControlArray(Panel* panel, int count)
    {
        for (int i = 0; i < count; ++i)
            items_.emplace_back(panel, i);
    }

    /// Throws a subscript out of range if there is no such item.
    Item& operator()(Integer index)
    {
        if (index < 0 || index >= count())
            throw Fault{FaultKind::SubscriptOutOfRange};
        return items_[static_cast<std::size_t>(index.value())];
    }

    [[nodiscard]] Integer count() const { return static_cast<int>(items_.size()); }

private:
    std::deque<Item> items_; // items never move: their panel and the view point to them
};

} // namespace ondelis
