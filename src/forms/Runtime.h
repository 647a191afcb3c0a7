#pragma once

#include <concepts>
#include <memory>
#include <typeindex>
#include <unordered_map>
#include <utility>
#include <vector>

#include "forms/FeuilleCalcul.h"
#include "forms/Host.h"

namespace ondelis {

/// Owns the panels, runs handlers, and is the one place where a fault or the end of the program stops what the user's
/// action began.
class Runtime {
public:
    explicit Runtime(Host& host);
    ~Runtime();
    Runtime(const Runtime&) = delete;
    Runtime& operator=(const Runtime&) = delete;

    [[nodiscard]] Host& host() const { return host_; }

    /// The one instance of a panel, made at the first reference, which does not show it.
    template <std::derived_from<FeuilleCalcul> Panel>
    Panel& get()
    {
        std::unique_ptr<FeuilleCalcul>& panel = panels_[typeid(Panel)];
        if (panel == nullptr)
            panel = std::make_unique<Panel>(*this);
        return static_cast<Panel&>(*panel);
    }

    /// Closes a panel: its controls go, its variables stay. Does nothing if it is not loaded.
    template <std::derived_from<FeuilleCalcul> Panel>
    void Unload()
    {
        if (const auto found = panels_.find(typeid(Panel)); found != panels_.end())
            found->second->Unload();
    }

    /// The panels that are loaded, in the order of their loading.
    [[nodiscard]] const std::vector<FeuilleCalcul*>& loadedPanels() const { return loadedPanels_; }
    /// Each panel says when it is loaded and unloaded.
    void panelLoaded(FeuilleCalcul& panel);
    void panelUnloaded(FeuilleCalcul& panel);

    /// Runs one action of the user to its end, nested events included. A fault is shown and ends the program
    /// with status 1. Does nothing once the program has ended.
    template <class Action>
    void perform(Action&& action)
    {
        if (ended_)
            return;
        const std::size_t outerBegin = std::exchange(actionBegin_, activeHandlers_.size());
        try {
            action();
        } catch (const Fault& fault) {
            fail(fault);
        } catch (const Aborted&) { // getting here was all that it had to do
        }
        actionBegin_ = outerBegin;
    }

    /// Ends the program from code: nothing after it runs.
    [[noreturn]] void End();
    /// The user closes the program, perhaps while a handler waits in a nested event loop.
    void close();
    [[nodiscard]] bool ended() const { return ended_; }

    /// Runs the procedure that listens to an event.
    void raise(FeuilleCalcul& panel, const Handler& handler);
    void raise(FeuilleCalcul& panel, const KeyHandler& handler, Integer& key);

    /// Shows a box and returns the answer. If meanwhile the program has ended, or the panel of a handler that waits for
    /// it is gone or has been loaded anew, aborts all handlers of the present action.
    Answer MsgBox(const MessageBox& box);
    void DoEvents();

    /// The control that has the keyboard, null at the start and after its panel is gone.
    [[nodiscard]] Control* focused() const { return focused_; }
    void setFocused(Control* control) { focused_ = control; }

private:
    /// Thrown through handlers that must not go on: the program has ended, or their panel is gone.
    struct Aborted { };

    /// A running handler, and which load of its panel it belongs to.
    struct ActiveHandler {
        FeuilleCalcul* panel;
        unsigned loadCount;
    };

    /// Lists a handler for as long as it runs.
    class HandlerScope {
    public:
        HandlerScope(Runtime& runtime, FeuilleCalcul& panel) : activeHandlers_{runtime.activeHandlers_}
        {
            activeHandlers_.push_back({.panel = &panel, .loadCount = panel.loadCount()});
        }
        ~HandlerScope() { activeHandlers_.pop_back(); }
        HandlerScope(const HandlerScope&) = delete;
        HandlerScope& operator=(const HandlerScope&) = delete;

    private:
        std::vector<ActiveHandler>& activeHandlers_;
    };

    void fail(const Fault& fault);
    void end(int status);
    /// Aborts the present action if the program has ended, or the panel of one of its handlers is gone or has been
    /// loaded anew.
    void abortIfStale() const;

    Host& host_;
    std::unordered_map<std::type_index, std::unique_ptr<FeuilleCalcul>> panels_;
    std::vector<FeuilleCalcul*> loadedPanels_;
    std::vector<ActiveHandler> activeHandlers_;
    std::size_t actionBegin_ = 0; ///< where the handlers of the present action begin in `activeHandlers_`
    Control* focused_ = nullptr;
    bool ended_ = false;
};

} // namespace ondelis
