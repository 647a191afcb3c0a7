#pragma once

#include <QMdiSubWindow>
#include <functional>
#include <unordered_map>

#include "forms/FeuilleCalcul.h"
#include "forms/User.h"

namespace ondelis {

class ControlWidget;
class FocusFrame;
class View;

/// The window of any panel: made when the panel comes on screen, gone when it is closed. A panel that is opened again
/// gets another one.
class PanelWindow final : public QMdiSubWindow {
public:
    PanelWindow(View& view, FeuilleCalcul& panel);
    ~PanelWindow() override;

    /// The panel is closed. From now on nothing of it is read.
    void leave() { gone_ = true; }
    [[nodiscard]] bool gone() const { return gone_; }

    [[nodiscard]] FeuilleCalcul& panel() const { return panel_; }
    /// The client area of the panel, in which its controls stand.
    [[nodiscard]] QWidget& form() const { return *widget(); }
    /// The widget of a control; null if it has none.
    [[nodiscard]] ControlWidget* find(const Control& control) const;
    /// The control that a widget shows; null if it shows none.
    [[nodiscard]] Control* controlOf(const QWidget* widget) const;

    /// Shows caption, place and size of the panel.
    void follow();
    /// Shows the properties of a control.
    void follow(const Control& control);

    /// Brings the panel before the others; the first time with the keyboard in its first field, the text selected.
    void activate();

    /// Runs an action of the user, on a control or on the panel itself.
    void perform(const std::function<void(User&)>& action, Control* control = nullptr);

    /// How many boxes have been shown so far.
    [[nodiscard]] unsigned boxesShown() const;

    /// Names a widget, for screen readers, after its label, or after the panel if it has none.
    void nameAfter(const Label* label, QWidget& widget);
    /// Gives a new name to the widgets that are named after the label, or after the panel.
    void rename(const Label* label, const std::string& name);

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeWidgets();
    void makeMenu();
    /// Where the keyboard goes first: the first field to type into, else the first control, else nothing.
    [[nodiscard]] QWidget* firstStop() const;
    /// Makes the Tab key follow the eye where code has moved fields: it goes from top to bottom.
    void orderTabs();
    /// Shows which widget has the keyboard, if it is one of this panel.
    void markFocus();
    /// Writes the title in the system's font, smaller if it does not fit.
    void fitTitle();
    /// The upper left corner in the client area of the main window, which may be scrolled.
    [[nodiscard]] QPoint corner() const;
    [[nodiscard]] QPoint scrolled() const;

    View& view_;
    FeuilleCalcul& panel_;
    std::unordered_map<const Control*, ControlWidget*> widgets_;
    std::unordered_multimap<const Label*, QWidget*> named_; ///< by their label; null for the panel
    FocusFrame* focusFrame_ = nullptr;
    bool gone_ = false;
    bool activated_ = false;
    bool following_ = false;
};

} // namespace ondelis
