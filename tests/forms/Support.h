#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "forms/Host.h"
#include "forms/Runtime.h"
#include "forms/User.h"
#include "kit/Support.h"

namespace ondelis {

using EventLog = std::vector<std::string>;

/// A host that a test can inspect, and that acts as the test says.
class TestHost final : public Host {
public:
    /// What happens while a box is open; the answer.
    std::function<Answer(const MessageBox&)> onBox = [](const MessageBox&) { return Answer::Ok; };
    /// What happens while the fault dialog is open.
    std::function<void()> onFault = [] {};
    /// What happens when pending events run.
    std::function<void()> onPending = [] {};

    Size screenSize{.Width = 28800, .Height = 16200};
    std::vector<MessageBox> boxes;
    std::optional<FaultKind> fault;
    std::vector<int> endings; ///< the status of each end of the program: there must never be two
    EventLog log; ///< what is reported to the view

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
    [[nodiscard]] Size screen() const override { return screenSize; }

    void frameChanged() override { log.emplace_back("frame"); }
    void panelLoaded(FeuilleCalcul& panel) override { log.push_back("loaded " + panel.design().name); }
    void panelChanged(FeuilleCalcul& panel) override { log.push_back("changed " + panel.design().name); }
    void panelRaised(FeuilleCalcul& panel) override { log.push_back("raised " + panel.design().name); }
    void panelUnloaded(FeuilleCalcul& panel) override { log.push_back("unloaded " + panel.design().name); }
    void controlChanged(Control& control) override { log.push_back("control " + control.name()); }
    void focusMoved(Control& control) override { log.push_back("focus " + control.name()); }
    void programEnded(int status) override { endings.push_back(status); }
};

/// A runtime in such a host, and a user at it.
class RuntimeTest : public testing::Test {
protected:
    TestHost host;
    Runtime runtime{host};
    User user{runtime};
};

} // namespace ondelis
