#pragma once

#include <QPoint>
#include <QScrollBar>
#include <QString>
#include <QWidget>

#include "Actor.h"

class QListWidget;

namespace ondelis {
class MainWindow;
class PanelWindow;
} // namespace ondelis

namespace ondelis::fenetre {

[[nodiscard]] bool isField(const QWidget& widget);

/// How a person reaches a widget of the main window, and what they do there. If that is impossible, nothing is done,
/// and the reason is returned.
class InputSimulator {
public:
    using Refusal = pilote::Actor::Refusal;

    /// The main window is on screen.
    void attach(MainWindow& window) { window_ = &window; }
    /// The main window is no longer there.
    void detach() { window_ = nullptr; }
    /// Null if it is not on screen.
    [[nodiscard]] MainWindow* window() const { return window_; }

    /// If another window has the keyboard, gives it back to the main window, as a window manager would: the platform
    /// without a screen has none.
    void reactivateWindow() const;

    /// Presses a button on a point of a widget, and releases it.
    Refusal press(QWidget& widget, const QPoint& point, Qt::MouseButton button = Qt::LeftButton) const;
    /// The same on the title of a panel, which is dragged in between.
    Refusal pressTitle(PanelWindow& panel, const QPoint& point, const QPoint& by = {}) const;
    /// Gives a field the keyboard, with the caret at its end, unless that is so already.
    Refusal moveCaretToEnd(QWidget& field) const;
    /// Gives any control the keyboard, and changes nothing else.
    Refusal moveFocusTo(QWidget& widget) const;
    /// A key at the end of a field; a repeated one is held down.
    Refusal typeKey(QWidget& field, const QString& character, bool repeated) const;
    Refusal moveThumb(QScrollBar& bar, int position) const;

private:
    /// Brings a point of a widget where a press reaches it: scrolls the client area, or brings its panel forward.
    Refusal uncover(QWidget& widget, const QPoint& point) const;
    /// Gives a list the keyboard: a click would choose a row, the Tab key does not.
    void tabTo(QListWidget& list) const;
    /// Brings a panel in front of the others.
    static void bringToFront(PanelWindow& panel);

    MainWindow* window_ = nullptr;
};

} // namespace ondelis::fenetre
