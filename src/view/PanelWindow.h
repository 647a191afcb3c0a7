#pragma once

#include <QMdiSubWindow>
#include <unordered_map>

#include "forms/FeuilleCalcul.h"
#include "view/AccessibleNames.h"

namespace ondelis {

class ControlWidget;
class FocusFrame;
class View;

/// The window of any panel, with the widgets of its controls: made when the panel comes on screen, gone when it is
/// closed. A panel that is opened again gets another one.
class PanelWindow final : public QMdiSubWindow {
public:
    PanelWindow(View& view, FeuilleCalcul& panel);
    ~PanelWindow() override;

    /// The panel is closed. From now on nothing of it is read.
    void leave() { gone_ = true; }
    [[nodiscard]] bool gone() const { return gone_; }

    [[nodiscard]] View& view() const { return view_; }
    [[nodiscard]] FeuilleCalcul& panel() const { return panel_; }
    [[nodiscard]] AccessibleNames& names() { return names_; }
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

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeWidgets();
    void makeMenu();
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
    AccessibleNames names_;
    FocusFrame* focusFrame_ = nullptr;
    bool gone_ = false;
    bool activated_ = false;
    bool following_ = false;
};

} // namespace ondelis
