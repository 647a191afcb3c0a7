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
    void follow();

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeMenu();
    void makeShortcuts();
    /// Gives the window its place and its outer size.
    void takePlace();
    /// Tells the frame where the user has put the window.
    void tellPlace();

    View& view_;
    MDIOndelis& frame_;
    ClientArea* area_;
};

} // namespace ondelis
