#pragma once

#include <QWidget>
#include <utility>

#include "forms/Control.h"
#include "forms/User.h"
#include "view/Colors.h"
#include "view/PanelWindow.h"
#include "view/Scale.h"
#include "view/Texts.h"
#include "view/View.h"

namespace ondelis {

/// Shows a control in a sub-window: follows the control's properties, and tells the desk what the user does with it.
class ControlWidget {
public:
    explicit ControlWidget(PanelWindow& window) : window_{window} { }
    ControlWidget(const ControlWidget&) = delete;
    ControlWidget& operator=(const ControlWidget&) = delete;
    virtual ~ControlWidget() = default;

    [[nodiscard]] virtual QWidget& widget() = 0;
    /// Shows the properties that the control has now. Called only while the panel is loaded.
    virtual void follow() = 0;
    /// The system's colours have changed.
    void forgetColors() { colors_.forget(); }

protected:
    [[nodiscard]] PanelWindow& panelWindow() const { return window_; }
    /// The panel is closed, or closed and reopened in another window: reading a property would load it again.
    [[nodiscard]] bool gone() const { return window_.gone(); }

    [[nodiscard]] Colors& colors() { return colors_; }

private:
    PanelWindow& window_;
    Colors colors_;
};

/// A widget that shows one control: `Base` is the toolkit's class, `Shown` the control's.
template <class Base, class Shown>
class WidgetOf : public Base, public ControlWidget {
public:
    QWidget& widget() final { return *this; }

protected:
    template <class... Arguments>
    WidgetOf(PanelWindow& window, Shown& control, Arguments&&... ofBase)
        : Base{std::forward<Arguments>(ofBase)...}, ControlWidget{window}, control_{control}
    {
    }

    [[nodiscard]] Shown& control() const { return control_; }

    /// Tells the desk what the user does with the control; shows it again even if that was refused.
    template <class Action>
    void tell(Action&& action)
    {
        if (gone())
            return;
        panelWindow().view().perform([&](User& user) {
            action(user);
            if (!gone())
                panelWindow().view().controlChanged(control_);
        });
    }

    void tellFocus()
    {
        tell([this](User& user) { user.focus(control_); });
    }

    void focusInEvent(QFocusEvent* event) override
    {
        Base::focusInEvent(event);
        tellFocus();
    }

    /// Puts the widget at its design place, on the panel or in its frame.
    void place() { place(control_.at().Top); }
    void place(double top)
    {
        Box at = control_.at();
        at.Top = top;
        this->setGeometry(Scale{*this}.pixels(at));
    }

private:
    Shown& control_;
};

} // namespace ondelis
