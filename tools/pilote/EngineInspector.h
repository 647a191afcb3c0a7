#pragma once

#include "Inspector.h"

namespace ondelis::pilote {

/// Reads what the engine says: what a panel would show if it had a window.
class EngineInspector final : public Inspector {
public:
    [[nodiscard]] Json inspect(const MDIOndelis& frame) const override;
    [[nodiscard]] Json inspect(const FeuilleCalcul& panel) const override;
    [[nodiscard]] Json inspect(Control& control) const override;
    [[nodiscard]] Json menus() const override;
};

} // namespace ondelis::pilote
