#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "forms/Host.h"
#include "forms/Runtime.h"
#include "forms/User.h"

namespace ondelis {

class MainWindow;
class MDIOndelis;
class PanelWindow;
struct MenuEntry;

/// The host of the runtime, implemented with Qt. While handlers run nothing of Qt is touched: what they change is
/// recorded, and shown once the user's action is over, or before a handler waits.
class View final : public Host {
public:
    View();
    ~View() override;

    /// Opens the main window and starts the program. The frame and its runtime must live until `programEnded`.
    void open(MDIOndelis& frame);
    /// Runs the program to its end; returns its exit status.
    int run();

    [[nodiscard]] MainWindow& mainWindow() const { return *mainWindow_; }
    /// The window of a panel; null if the panel is not on screen.
    [[nodiscard]] PanelWindow* find(const FeuilleCalcul& panel) const;

    /// Runs one action of the user and shows what it changed. While a box waits for its answer it does nothing, and
    /// only `View::close` gets through; what widgets report while they are being changed is not a user action.
    void perform(const std::function<void(User&)>& action);
    /// The user picks an entry of the menu.
    void click(const MenuEntry& entry);
    /// The user closes the main window.
    void close();
    /// Opens the page of the guide on the active panel; nothing while a handler or a box waits.
    void showGuide();
    /// How many boxes have been shown: each of them releases a widget that the mouse holds down.
    [[nodiscard]] unsigned boxesShown() const { return boxesShown_; }

    Answer showBox(const MessageBox& box) override;
    void showFault(const Fault& fault) override;
    void runPendingEvents() override;
    [[nodiscard]] Size screen() const override;

    void frameChanged() override;
    void panelLoaded(FeuilleCalcul& panel) override;
    void panelChanged(FeuilleCalcul& panel) override;
    void panelRaised(FeuilleCalcul& panel) override;
    void panelUnloaded(FeuilleCalcul& panel) override;
    void controlChanged(Control& control) override;
    void focusMoved(Control& control) override;
    void programEnded(int status) override;

private:
    /// A handler or a box waits, or the program has ended.
    [[nodiscard]] bool isBusy() const;
    /// Shows all that has changed.
    void refresh();
    void refreshWindows();
    void refreshWindow(FeuilleCalcul& panel);
    void refreshControls();
    /// Reports to the runtime which control has the keyboard after what was shown: one that has appeared, or the one
    /// after one that has gone.
    void reportFocus();
    void deleteClosedWindows();

    std::unique_ptr<MainWindow> mainWindow_;
    MDIOndelis* frame_ = nullptr;
    std::unordered_map<const FeuilleCalcul*, PanelWindow*> windows_;

    // What handlers have changed and is not shown yet.
    bool frameChanged_ = false;
    std::vector<FeuilleCalcul*> changedPanels_;
    std::vector<Control*> changedControls_;
    FeuilleCalcul* raised_ = nullptr; ///< the first of them
    Control* focused_ = nullptr;

    bool opened_ = false; ///< a panel has come on screen and may be out of sight there
    std::vector<PanelWindow*> closedWindows_; ///< kept until no handler started by one of their widgets is running
    unsigned actions_ = 0; ///< that run now, one inside the other
    bool refreshing_ = false;
    unsigned waitingBoxes_ = 0;
    unsigned boxesShown_ = 0;
    std::optional<int> status_; ///< of the ended program
};

} // namespace ondelis
