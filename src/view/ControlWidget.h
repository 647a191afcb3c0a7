#pragma once

#include <QString>
#include <QWidget>
#include <string>
#include <string_view>

#include "forms/Control.h"
#include "forms/User.h"
#include "view/PanelWindow.h"
#include "view/Scale.h"

namespace ondelis {

[[nodiscard]] inline QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A caption for a widget that would take "&" for the mark of a shortcut.
[[nodiscard]] inline QString withoutShortcut(std::string_view caption)
{
    return toQString(caption).replace(QLatin1Char{'&'}, QLatin1String{"&&"});
}

/// What shows a control in a sub-window: it follows the control's properties, and tells the desk what the user does
/// with it.
class ControlWidget {
public:
    explicit ControlWidget(PanelWindow& window) : window_{window} { }
    ControlWidget(const ControlWidget&) = delete;
    ControlWidget& operator=(const ControlWidget&) = delete;
    virtual ~ControlWidget() = default;

    [[nodiscard]] virtual QWidget& widget() = 0;
    /// Shows the properties that the control has now. Called only while the panel is loaded.
    virtual void follow() = 0;
    /// The system's colours are other ones now.
    virtual void forgetColors() { }

protected:
    [[nodiscard]] PanelWindow& panelWindow() const { return window_; }
    /// The panel is closed, or closed and opened anew in another window: reading a property would load it again.
    [[nodiscard]] bool gone() const { return window_.gone(); }

    /// Tells the desk an action of the user on the control; shows it anew even where the action was refused.
    template <class Action>
    void act(Control& control, Action&& action)
    {
        window_.act([&](User& user) { action(user); }, &control);
    }

    /// Puts the widget at its design place, on the panel or in its frame.
    void place(const Control& control) { place(control, control.at().Top); }
    void place(const Control& control, double top)
    {
        Box at = control.at();
        at.Top = top;
        widget().setGeometry(Scale{widget()}.pixels(at));
    }

private:
    PanelWindow& window_;
};

} // namespace ondelis
