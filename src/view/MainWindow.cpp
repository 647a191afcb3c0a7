#include "view/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "shell/MDIOndelis.h"
#include "shell/Menu.h"
#include "view/ClientArea.h"
#include "view/Scale.h"
#include "view/Texts.h"
#include "view/View.h"

namespace ondelis {

namespace {

QIcon icon()
{
    QIcon icon;
    for (const char* file :
        {":/icon/16.png", ":/icon/18.png", ":/icon/24.png", ":/icon/32.png", ":/icon/64.png", ":/icon/128.png"})
        icon.addFile(QString::fromLatin1(file));
    return icon;
}

} // namespace

MainWindow::MainWindow(View& view, MDIOndelis& frame) : view_{view}, frame_{frame}, area_{new ClientArea{this}}
{
    setObjectName(QStringLiteral("MDIOndelis"));
    setCentralWidget(area_);
    // The size is up to the frame and the user: margins, which move with the window, must not make it larger.
    layout()->setSizeConstraint(QLayout::SetNoConstraint);
    makeMenu();
    makeShortcuts();
}

void MainWindow::follow()
{
    setWindowTitle(toQString(frame_.Caption.get()));
    takePlace();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    auto* const dropDown = qobject_cast<QMenu*>(watched);
    const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (dropDown != nullptr && event->type() == QEvent::Close) {
        dropDown->hide();
        event->ignore(); // a closed window is destroyed, and the keys that the system still sends it are lost
        return true;
    }
    if (dropDown != nullptr && key && dropDown->isHidden() && QApplication::activePopupWidget() == nullptr) {
        QCoreApplication::sendEvent(windowHandle(), event);
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    view_.close();
}

void MainWindow::paintEvent(QPaintEvent* event)
{
    QMainWindow::paintEvent(event);
    if (!std::exchange(painted_, true)) // the icon must not hold up the first sight of the window
        QTimer::singleShot(0, this, [] { QApplication::setWindowIcon(icon()); });
}

void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    tellPlace();
}

void MainWindow::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    tellPlace();
    keepInSight();
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    tellPlace();
    keepInSight();
}

void MainWindow::makeMenu()
{
    for (const Menu& menu : menuTree()) {
        QMenu* const dropDown = menuBar()->addMenu(withoutShortcut(menu.caption));
        dropDown->setObjectName(toQString(menu.control));
        dropDown->installEventFilter(this);
        for (const MenuEntry& entry : menu.entries) {
            QAction* const action
                = dropDown->addAction(withoutShortcut(entry.caption), [this, &entry] { view_.click(entry); });
            action->setObjectName(toQString(entry.control));
        }
    }
}

void MainWindow::makeShortcuts()
{
    findChild<QAction*>(toQString(quitEntry))->setShortcut(Qt::CTRL | Qt::Key_Q);
    for (const Qt::Key key : {Qt::Key_F4, Qt::Key_W})
        connect(new QShortcut{Qt::CTRL | key, this}, &QShortcut::activated, area_, &QMdiArea::closeActiveSubWindow);
    connect(new QShortcut{Qt::Key_F1, this}, &QShortcut::activated, this, [this] { view_.showGuide(); });
    connect(new QShortcut{Qt::Key_F10, this}, &QShortcut::activated, menuBar(),
        [this] { menuBar()->setActiveAction(menuBar()->actions().front()); });
}

QRect MainWindow::toldPlace() const
{
    return Scale{*this}.pixels({.Left = Double{frame_.Left}.value(),
        .Top = Double{frame_.Top}.value(),
        .Width = Double{frame_.Width}.value(),
        .Height = Double{frame_.Height}.value()});
}

QSize MainWindow::border() const
{
    return frameGeometry().size() - geometry().size();
}

void MainWindow::takePlace()
{
    const QRect outer = toldPlace();
    resize(outer.size() - border());
    move(outer.topLeft());
}

void MainWindow::tellPlace()
{
    if (!isVisible() || isMinimized())
        return;
    // A window manager puts its border around a window that is already on screen: the outer size must stay, unless the
    // manager has also chosen one, as some do for a window larger than the screen.
    if (!bordered_ && !border().isNull()) {
        bordered_ = true;
        if (!isMaximized()) {
            takePlace();
            return;
        }
    }
    if (frameGeometry() == toldPlace())
        return;
    const Scale scale{*this};
    frame_.placed({scale.twips(frameGeometry().x()), scale.twips(frameGeometry().y())},
        {scale.twips(frameGeometry().width()), scale.twips(frameGeometry().height())});
}

void MainWindow::keepInSight()
{
    const QRect screens = screen()->availableVirtualGeometry();
    const QRect inner = geometry();
    QRect seen = inner;
    if (inner.width() > screens.width()) {
        seen.setLeft(std::max(inner.left(), screens.left()));
        seen.setRight(std::min(inner.right(), screens.right()));
    }
    if (inner.height() > screens.height()) {
        seen.setTop(std::max(inner.top(), screens.top()));
        seen.setBottom(std::min(inner.bottom(), screens.bottom()));
    }
    if (!seen.isValid()) // nothing can be seen, wherever it is
        return;
    setContentsMargins(seen.left() - inner.left(), seen.top() - inner.top(), inner.right() - seen.right(),
        inner.bottom() - seen.bottom());
}

} // namespace ondelis
