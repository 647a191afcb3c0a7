#pragma once

#include "Fingers.h"
#include "Hands.h"

namespace ondelis::fenetre {

/// Acts on the real widgets, as a person does: with the mouse on what can be seen, with keys into what has the
/// keyboard, with the clipboard. It knows no more of the program than is on screen.
class WindowHands final : public pilote::Hands {
public:
    /// The main window is on screen.
    void meet(MainWindow& window) { fingers_.meet(window); }
    /// The program is over, and its windows with it.
    void leave() { fingers_.leave(); }

    /// If another window has the keyboard, gives it back to the main window.
    void regainKeyboard() const { fingers_.regainKeyboard(); }

    Refusal menu(const std::string& entry) override;
    Refusal close(const std::string& window) override;
    Refusal move(const std::string& window, double left, double top) override;
    Refusal minimise(const std::string& window) override;
    Refusal restore(const std::string& window) override;
    Refusal type(const Target& field, const std::string& text) override;
    Refusal backspace(const Target& field) override;
    Refusal replace(const Target& field, const std::string& text) override;
    Refusal click(const Target& button) override;
    Refusal select(const Target& list, int row) override;
    Refusal scroll(const Target& bar, int value) override;
    Refusal focus(const Target& control) override;
    Refusal hold(const Target& control, Key key, const std::string& character, int times) override;

private:
    /// Why nothing at all can be reached; empty if something can.
    [[nodiscard]] Refusal unable() const;
    /// The window of a panel that is on screen; null if there is none.
    [[nodiscard]] PanelWindow* findPanel(const std::string& name) const;
    /// Runs `act` on the widget of a control if it is of that class and can be seen.
    template <class WidgetClass, class Act>
    Refusal with(const Target& target, Act&& act);
    /// Runs `act` on the widget of a field that can be written into.
    template <class Act>
    Refusal withField(const Target& target, Act&& act);

    /// One repeat of a key that is held down.
    Refusal holdOnce(QWidget& widget, Key key, const QString& character, bool repeated) const;

    Fingers fingers_;
};

} // namespace ondelis::fenetre
