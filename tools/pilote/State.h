#pragma once

#include "Eyes.h"

namespace ondelis::pilote {

/// Reads what the engine says: what a panel would show if it had a window.
class State final : public Eyes {
public:
    [[nodiscard]] Json see(const MDIOndelis& frame) const override;
    [[nodiscard]] Json see(const FeuilleCalcul& panel) const override;
    [[nodiscard]] Json see(Control& control) const override;
    [[nodiscard]] Json menus() const override;
};

} // namespace ondelis::pilote
