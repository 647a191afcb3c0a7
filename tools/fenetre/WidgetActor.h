#pragma once

#include "Actor.h"
#include "InputSimulator.h"

namespace ondelis::fenetre {

/// Acts on the real widgets, as a person does: with the mouse on what can be seen, with keys into what has the
/// keyboard, with the clipboard. It knows no more of the program than is on screen.
class WidgetActor final : public pilote::Actor {
public:
    /// The main window is on screen.
    void attach(MainWindow& window) { input_.attach(window); }
    /// The program is over, and its windows with it.
    void detach() { input_.detach(); }

    /// If another window has the keyboard, gives it back to the main window.
    void reactivateWindow() const { input_.reactivateWindow(); }

    Refusal menu(const std::string& entry) override;
    Refusal close(const std::string& window) override;
    Refusal move(const std::string& window, double left, double top) override;
    Refusal minimise(const std::string& window) override;
    Refusal restore(const std::string& window) override;
    Refusal type(const ControlPath& field, const std::string& text) override;
    Refusal backspace(const ControlPath& field) override;
    Refusal replace(const ControlPath& field, const std::string& text) override;
    Refusal click(const ControlPath& button) override;
    Refusal select(const ControlPath& list, int row) override;
    Refusal scroll(const ControlPath& bar, int value) override;
    Refusal focus(const ControlPath& control) override;
    Refusal hold(const ControlPath& control, Key key, const std::string& character, int times) override;

private:
    /// Why nothing at all can be reached; empty if something can.
    [[nodiscard]] Refusal unable() const;
    /// The window of a panel that is on screen; null if there is none.
    [[nodiscard]] PanelWindow* findPanel(const std::string& name) const;
    /// Runs `act` on the widget of a control if it is of that class and can be seen.
    template <class WidgetClass, class Act>
    Refusal with(const ControlPath& path, Act&& act);
    /// Runs `act` on the widget of a field that can be written into.
    template <class Act>
    Refusal withField(const ControlPath& path, Act&& act);

    /// One repeat of a key that is held down.
    Refusal holdOnce(QWidget& widget, Key key, const QString& character, bool repeated) const;

    InputSimulator input_;
};

} // namespace ondelis::fenetre
