#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "forms/Controls.h"
#include "forms/Desk.h"
#include "forms/FeuilleCalcul.h"
#include "forms/Surroundings.h"
#include "forms/User.h"

namespace ondelis::tests {

using Log = std::vector<std::string>;

/// A world that a test can look at, and that acts where the test tells it to.
class TestSurroundings final : public Surroundings {
public:
    /// What happens while a box is open; the answer.
    std::function<Answer(const MessageBox&)> onBox = [](const MessageBox&) { return Answer::Ok; };
    /// What happens while the fault dialog is open.
    std::function<void()> onFault = [] {};
    /// What happens when pending events run.
    std::function<void()> onPending = [] {};

    Extent screenSize{.Width = 28800, .Height = 16200};
    std::vector<MessageBox> boxes;
    std::optional<FaultKind> fault;
    std::vector<int> endings; ///< the status of each end of the program: there must never be two
    Log log; ///< what the view is told

    Answer showBox(const MessageBox& box) override
    {
        boxes.push_back(box);
        return onBox(box);
    }
    void showFault(const Fault& shown) override
    {
        fault = shown.kind();
        onFault();
    }
    void runPendingEvents() override { onPending(); }
    [[nodiscard]] Extent screen() const override { return screenSize; }

    void frameChanged() override { log.emplace_back("frame"); }
    void panelLoaded(FeuilleCalcul& panel) override { log.push_back("loaded " + panel.design().name); }
    void panelChanged(FeuilleCalcul& panel) override { log.push_back("changed " + panel.design().name); }
    void panelRaised(FeuilleCalcul& panel) override { log.push_back("raised " + panel.design().name); }
    void panelUnloaded(FeuilleCalcul& panel) override { log.push_back("unloaded " + panel.design().name); }
    void controlChanged(Control& control) override { log.push_back("control " + control.name()); }
    void focusMoved(Control& control) override { log.push_back("focus " + control.name()); }
    void programEnded(int status) override { endings.push_back(status); }
};

/// A desk in such a world, and a user at it.
class DeskTest : public testing::Test {
protected:
    TestSurroundings world;
    Desk desk{world};
    User user{desk};
};

/// The kind of the fault that an action throws; nothing if it throws none.
template <class Action>
std::optional<FaultKind> faultOf(Action&& action)
{
    try {
        action();
    } catch (const Fault& fault) {
        return fault.kind();
    }
    return {};
}

} // namespace ondelis::tests
