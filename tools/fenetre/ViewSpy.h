#pragma once

#include <QObject>
#include <functional>
#include <utility>

#include "view/View.h"

namespace ondelis::fenetre {

/// Stands between the runtime and its view, passes everything on, and says when a box waits, when a handler lets events
/// through and when the program is over. It does so from inside the event loop that is then running.
class ViewSpy final : public Host {
public:
    explicit ViewSpy(View& view) : view_{view} { }

    /// A box is on screen, and waits until this has answered it.
    std::function<void()> onBox = [] {};
    /// The same, and the box names the fault that ends the program.
    std::function<void()> onFault = [] {};
    /// A handler lets events through.
    std::function<void()> onEvents = [] {};
    /// A control changes.
    std::function<void(const Control&)> onChange = [](const Control& /*control*/) {};

    Answer showBox(const MessageBox& box) override
    {
        later(onBox);
        return view_.showBox(box);
    }
    void showFault(const Fault& fault) override
    {
        later(onFault);
        view_.showFault(fault);
    }
    void runPendingEvents() override
    {
        later(onEvents);
        view_.runPendingEvents();
    }
    [[nodiscard]] Size screen() const override { return view_.screen(); }

    void frameChanged() override { view_.frameChanged(); }
    void panelLoaded(FeuilleCalcul& panel) override { view_.panelLoaded(panel); }
    void panelChanged(FeuilleCalcul& panel) override { view_.panelChanged(panel); }
    void panelRaised(FeuilleCalcul& panel) override { view_.panelRaised(panel); }
    void panelUnloaded(FeuilleCalcul& panel) override { view_.panelUnloaded(panel); }
    void controlChanged(Control& control) override
    {
        onChange(control);
        view_.controlChanged(control);
    }
    void focusMoved(Control& control) override { view_.focusMoved(control); }
    void programEnded(int status) override { view_.programEnded(status); }

private:
    void later(const std::function<void()>& what) { QMetaObject::invokeMethod(&loop_, what, Qt::QueuedConnection); }

    View& view_;
    QObject loop_; ///< makes things happen in the event loop that runs next
};

} // namespace ondelis::fenetre
