#pragma once

#include "kit/CheckedInteger.h"

namespace ondelis {

class FeuilleCalcul;

/// The procedure of a panel that an event runs. Empty if nothing listens.
class Handler {
public:
    Handler() = default;

    template <class Panel>
    Handler(void (Panel::*procedure)()) // NOLINT(google-explicit-constructor): forms name their procedures plainly
        : procedure_{static_cast<Procedure>(procedure)}
    {
    }

    explicit operator bool() const { return procedure_ != nullptr; }

    void run(FeuilleCalcul& panel) const { (panel.*procedure_)(); }

private:
    using Procedure = void (FeuilleCalcul::*)();

    Procedure procedure_ = nullptr;
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
