#pragma once

#include <type_traits>

#include "kit/Whole.h"

namespace ondelis {

class FeuilleCalcul;

/// The procedure of a panel that an event runs. Empty if nothing listens. In a control array the procedure takes the
/// index of the element.
class Handler {
public:
    Handler() = default;

    template <class Panel>
    Handler(void (Panel::*procedure)()) // NOLINT(google-explicit-constructor): forms name their procedures plainly
        : plain_{static_cast<Plain>(procedure)}
    {
    }

    template <class Panel>
    Handler(void (Panel::*procedure)(Integer Index)) // NOLINT(google-explicit-constructor)
        : indexed_{static_cast<Indexed>(procedure)}
    {
    }

    /// The same procedure for one element of a control array.
    [[nodiscard]] Handler at(Integer index) const
    {
        Handler element = *this;
        element.index_ = index;
        return element;
    }

    explicit operator bool() const { return plain_ != nullptr || indexed_ != nullptr; }

    void run(FeuilleCalcul& panel) const
    {
        if (plain_ != nullptr)
            (panel.*plain_)();
        else if (indexed_ != nullptr)
            (panel.*indexed_)(index_);
    }

private:
    using Plain = void (FeuilleCalcul::*)();
    using Indexed = void (FeuilleCalcul::*)(Integer);

    Plain plain_ = nullptr;
    Indexed indexed_ = nullptr;
    Integer index_;
};

/// The procedure of a panel that sees a key before the key enters the field.
class KeyHandler {
public:
    KeyHandler() = default;

    template <class Panel>
    KeyHandler(void (Panel::*procedure)(Integer& KeyAscii)) // NOLINT(google-explicit-constructor)
        : procedure_{static_cast<Procedure>(procedure)}
    {
    }

    explicit operator bool() const { return procedure_ != nullptr; }

    void run(FeuilleCalcul& panel, Integer& key) const { (panel.*procedure_)(key); }

private:
    using Procedure = void (FeuilleCalcul::*)(Integer&);

    Procedure procedure_ = nullptr;
};

} // namespace ondelis
