#pragma once

#include "Eyes.h"
#include "State.h"
#include "view/View.h"

namespace ondelis::fenetre {

/// Reads what the widgets show. Only what nobody can see it takes from the engine: what `unseen` lists, and the
/// controls of a panel that is not on screen.
///
/// A place, which a widget has in whole pixels, and a colour that was made readable are given as the engine states them
/// where that is what the widget shows; where it shows another one, that.
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
