#pragma once

#include "Eyes.h"
#include "State.h"
#include "view/View.h"

namespace ondelis::fenetre {

/// Reads what the widgets show. It takes from the engine only what cannot be seen: what `unseen` lists, and the
/// controls of a panel that is not on screen.
///
/// A position, which a widget has in whole pixels, and a colour that was made readable are given as the engine states
/// them if that is what the widget shows, and else as the widget shows them.
class WidgetEyes final : public pilote::Eyes {
public:
    explicit WidgetEyes(const View& view) : view_{view} { }

    [[nodiscard]] pilote::Json see(const MDIOndelis& frame) const override;
    [[nodiscard]] pilote::Json see(const FeuilleCalcul& panel) const override;
    [[nodiscard]] pilote::Json see(Control& control) const override;
    [[nodiscard]] pilote::Json menus() const override;

private:
    const View& view_;
    pilote::State said_;
};

} // namespace ondelis::fenetre
