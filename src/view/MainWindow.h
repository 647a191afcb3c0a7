#pragma once

#include <QMainWindow>

namespace ondelis {

class ClientArea;
class MDIOndelis;
class View;
struct MenuEntry;

/// The window of the main frame: the menu and the client area.
class MainWindow final : public QMainWindow {
public:
    MainWindow(View& view, MDIOndelis& frame);

    [[nodiscard]] ClientArea& area() const { return *area_; }
    /// Shows caption, place and size of the frame.
    void refresh();

protected:
    /// Passes on keys that reach a drop-down after it has been left: fast typing outruns the system.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeMenu();
    void makeShortcuts();
    /// Where the frame says that the window is, its border included; pixels.
    [[nodiscard]] QRect statedGeometry() const;
    /// What a window manager adds to the window.
    [[nodiscard]] QSize border() const;
    void applyGeometry();
    /// Reports to the frame where the user has put the window.
    void reportGeometry();
    /// Keeps menu and client area in the part of the window that can be seen, where it is larger than the screen.
    void keepContentsVisible();

    View& view_;
    MDIOndelis& frame_;
    ClientArea* area_;
    bool bordered_ = false;
    bool painted_ = false;
};

} // namespace ondelis
