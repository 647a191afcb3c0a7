#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "forms/Host.h"

namespace ondelis::pilote {

/// A host with no window: boxes are answered at once from a queue; they and the fault are remembered.
class ScriptedHost final : public Host {
public:
    /// The answer to the next box that asks "Oui" or "Non" and has none yet. A box without one gets "Oui".
    void answer(Answer answer) { answers_.push_back(answer); }
    void setScreen(const Size& screen) { screen_ = screen; }
    /// Calls `action` with each control that changes.
    void onChange(std::function<void(const Control&)> action) { onChange_ = std::move(action); }
    /// What happens while a box waits for its answer, before it is answered.
    void whileBoxWaits(std::function<void()> action) { whileBoxWaits_ = std::move(action); }
    /// What happens while a handler lets events through.
    void whileEventsRun(std::function<void()> action) { whileEventsRun_ = std::move(action); }

    /// The boxes since the last `forget`, in order.
    [[nodiscard]] const std::vector<MessageBox>& boxes() const { return boxes_; }
    /// The fault since the last `forget`.
    [[nodiscard]] const std::optional<Fault>& fault() const { return fault_; }
    void forget();

    Answer showBox(const MessageBox& box) override;
    void showFault(const Fault& fault) override;
    void runPendingEvents() override { whileEventsRun_(); }
    [[nodiscard]] Size screen() const override { return screen_; }

    // Nothing shows what changes: whoever asks reads the properties themselves.
    void frameChanged() override { }
    void panelLoaded(FeuilleCalcul& /*panel*/) override { }
    void panelChanged(FeuilleCalcul& /*panel*/) override { }
    void panelRaised(FeuilleCalcul& /*panel*/) override { }
    void panelUnloaded(FeuilleCalcul& /*panel*/) override { }
    void controlChanged(Control& control) override { onChange_(control); }
    void focusMoved(Control& /*control*/) override { }
    void programEnded(int /*status*/) override { }

private:
    std::function<void(const Control&)> onChange_ = [](const Control& /*control*/) {};
    std::function<void()> whileBoxWaits_ = [] {};
    std::function<void()> whileEventsRun_ = [] {};
    Size screen_{.Width = 28800, .Height = 16200};
    std::deque<Answer> answers_;
    std::vector<MessageBox> boxes_;
    std::optional<Fault> fault_;
};

} // namespace ondelis::pilote
