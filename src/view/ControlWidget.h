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

/// The widget of a control in a sub-window: shows the control's properties, and reports what the user does with
/// it.
class ControlWidget {
public:
    explicit ControlWidget(PanelWindow& window) : window_{window} { }
    ControlWidget(const ControlWidget&) = delete;
    ControlWidget& operator=(const ControlWidget&) = delete;
    virtual ~ControlWidget() = default;

    [[nodiscard]] virtual QWidget& widget() = 0;
    /// Shows the properties that the control has now. Called only while the panel is loaded.
    virtual void refresh() = 0;
    /// The system's colours have changed.
    void forgetColors() { colors_.forget(); }

protected:
    [[nodiscard]] PanelWindow& panelWindow() const { return window_; }
    /// The panel is closed, or closed and reopened in another window: reading a property would load it again.
    [[nodiscard]] bool detached() const { return window_.detached(); }

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

    /// Runs an action of the user on the control; shows the control again even if that was refused.
    template <class Action>
    void perform(Action&& action)
    {
        if (detached())
            return;
        panelWindow().view().perform([&](User& user) {
            action(user);
            if (!detached())
                panelWindow().view().controlChanged(control_);
        });
    }

    void reportFocus()
    {
        perform([this](User& user) { user.focus(control_); });
    }

    void focusInEvent(QFocusEvent* event) override
    {
        Base::focusInEvent(event);
        reportFocus();
    }

    /// Gives the widget the place and size of its design, on the panel or in its frame.
    void applyGeometry() { applyGeometry(control_.at().Top); }
    void applyGeometry(double top)
    {
        Box at = control_.at();
        at.Top = top;
        this->setGeometry(Scale{*this}.pixels(at));
    }

private:
    Shown& control_;
};

} // namespace ondelis
