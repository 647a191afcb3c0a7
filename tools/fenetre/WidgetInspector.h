#pragma once

#include "EngineInspector.h"
#include "Inspector.h"
#include "view/View.h"

namespace ondelis::fenetre {

/// Reads what the widgets show. It takes from the engine only what cannot be seen: what `ControlReader` calls `unseen`,
/// and the controls of a panel that is not on screen.
///
/// A position, which a widget has in whole pixels, and a colour that was made readable are given as the engine states
/// them if that is what the widget shows, and else as the widget shows them.
class WidgetInspector final : public pilote::Inspector {
public:
    explicit WidgetInspector(const View& view) : view_{view} { }

    [[nodiscard]] pilote::Json inspect(const MDIOndelis& frame) const override;
    [[nodiscard]] pilote::Json inspect(const FeuilleCalcul& panel) const override;
    [[nodiscard]] pilote::Json inspect(Control& control) const override;
    [[nodiscard]] pilote::Json menus() const override;

private:
    const View& view_;
    pilote::EngineInspector engine_;
};

} // namespace ondelis::fenetre
