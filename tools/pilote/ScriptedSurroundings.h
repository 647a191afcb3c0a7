#pragma once

#include <deque>
#include <optional>
#include <vector>

#include "forms/Surroundings.h"

namespace ondelis::pilote {

/// A world with no window: boxes are answered at once from a queue and remembered, the fault too.
class ScriptedSurroundings final : public Surroundings {
public:
    /// The answer to the next box that asks "Oui" or "Non" and has none yet. A box without one gets "Oui".
    void answer(Answer answer) { answers_.push_back(answer); }
    void setScreen(const Extent& screen) { screen_ = screen; }

    /// The boxes since the last `forget`, in order.
    [[nodiscard]] const std::vector<MessageBox>& boxes() const { return boxes_; }
    /// The fault since the last `forget`.
    [[nodiscard]] const std::optional<Fault>& fault() const { return fault_; }
    void forget();

    Answer showBox(const MessageBox& box) override;
    void showFault(const Fault& fault) override { fault_ = fault; }
    void runPendingEvents() override { }
    [[nodiscard]] Extent screen() const override { return screen_; }

    // Nothing shows what changes: whoever asks reads the controls themselves.
    void frameChanged() override { }
    void panelLoaded(FeuilleCalcul& /*panel*/) override { }
    void panelChanged(FeuilleCalcul& /*panel*/) override { }
    void panelRaised(FeuilleCalcul& /*panel*/) override { }
    void panelUnloaded(FeuilleCalcul& /*panel*/) override { }
    void controlChanged(Control& /*control*/) override { }
    void focusMoved(Control& /*control*/) override { }
    void programEnded(int /*status*/) override { }

private:
    Extent screen_{.Width = 28800, .Height = 16200};
    std::deque<Answer> answers_;
    std::vector<MessageBox> boxes_;
    std::optional<Fault> fault_;
};

} // namespace ondelis::pilote
