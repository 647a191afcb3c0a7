#pragma once

#include <functional>
#include <random>

#include "FormCheck.h"
#include "PanelSession.h"
#include "forms/Controls.h"

namespace ondelis {

/// A person who types awkward numbers into every field, chooses rows and options, moves bars to their ends and presses
/// buttons, in the same way each time, so that results come out as long as they get.
class Typist {
public:
    using Look = std::function<void(PanelWindow& window, const Typed& typed)>;

    /// Looks at the panels of the session after each action.
    Typist(PanelSession& session, Look look) : session_{session}, look_{std::move(look)} { }

    /// Goes through all controls of the open panels, that many times.
    void work(int rounds);

private:
    void round();
    /// What the person does with a control now.
    [[nodiscard]] std::function<void(User&)> gestureOn(Control& control);
    void recordTyped(const Control& control);
    [[nodiscard]] unsigned oneOf(unsigned count) { return static_cast<unsigned>(random_() % count); }

    PanelSession& session_;
    Look look_;
    std::mt19937 random_;
    QString number_; ///< that was typed last
    Typed typed_;
};

} // namespace ondelis
