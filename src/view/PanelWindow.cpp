#include "view/PanelWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyleOptionTitleBar>
#include <algorithm>
#include <utility>

#include "view/ClientArea.h"
#include "view/ControlWidget.h"
#include "view/FocusFrame.h"
#include "view/MainWindow.h"
#include "view/TabOrder.h"
#include "view/Texts.h"
#include "view/View.h"
#include "view/WidgetMaker.h"

namespace ondelis {

PanelWindow::PanelWindow(View& view, FeuilleCalcul& panel)
    : QMdiSubWindow{nullptr,
        Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
            | Qt::WindowCloseButtonHint},
      view_{view}, panel_{panel}
{
    setObjectName(toQString(panel.design().name));
    setAttribute(Qt::WA_DeleteOnClose, false);
    makeMenu();
    makeWidgets();
}

PanelWindow::~PanelWindow()
{
    leave(); // widgets that lose the keyboard while they are destroyed must not report it
    if (QWidget* const keyboard = focusWidget()) // the base class would, once this one is already destroyed
        keyboard->clearFocus();
    disconnect(qApp, nullptr, this, nullptr);
}

ControlWidget* PanelWindow::find(const Control& control) const
{
    const auto found = widgets_.find(&control);
    return found == widgets_.end() ? nullptr : found->second;
}

Control* PanelWindow::controlOf(const QWidget* widget) const
{
    const auto found = std::ranges::find_if(panel_.controls(), [&](const Control* control) {
        ControlWidget* const shown = find(*control);
        return shown != nullptr && &shown->widget() == widget;
    });
    return found == panel_.controls().end() ? nullptr : *found;
}

void PanelWindow::follow()
{
    const QScopedValueRollback following{following_, true};
    setWindowTitle(toQString(panel_.Caption.get()));
    names_.rename(nullptr, panel_.Caption);
    const Scale scale{*this};
    setFixedSize(scale.pixels(Double{panel_.Width}.value()), scale.pixels(Double{panel_.Height}.value()));
    const QPoint corner{scale.pixels(Double{panel_.Left}.value()), scale.pixels(Double{panel_.Top}.value())};
    move(corner - scrolled());
    fitTitle();
}

void PanelWindow::follow(const Control& control)
{
    ControlWidget* const shown = find(control);
    if (shown == nullptr)
        return;
    const int y = shown->widget().y();
    shown->follow();
    if (focusFrame_ != nullptr && shown->widget().y() != y) // all widgets are there, and one has moved
        orderTabs(*this);
}

void PanelWindow::activate()
{
    mdiArea()->setActiveSubWindow(this);
    if (std::exchange(activated_, true))
        return;
    QWidget* const first = firstTabStop(*this);
    if (first == nullptr)
        return;
    first->setFocus(Qt::TabFocusReason);
    // It may have had the keyboard already, or get it only when the main window does, which a drop-down that has been
    // left may still delay: then its text is not selected as by the Tab key.
    if (auto* const field = qobject_cast<QLineEdit*>(first))
        field->selectAll();
}

void PanelWindow::closeEvent(QCloseEvent* event)
{
    event->ignore(); // the window goes once the panel is unloaded and no handler runs
    if (!gone_)
        view_.perform([this](User& user) { user.close(panel_); });
}

void PanelWindow::moveEvent(QMoveEvent* event)
{
    QMdiSubWindow::moveEvent(event);
    if (gone_ || following_ || mdiArea() == nullptr)
        return;
    const Scale scale{*this};
    const QPoint told{scale.pixels(Double{panel_.Left}.value()), scale.pixels(Double{panel_.Top}.value())};
    if (corner() != told)
        panel_.placed({scale.twips(corner().x()), scale.twips(corner().y())});
}

void PanelWindow::changeEvent(QEvent* event)
{
    QMdiSubWindow::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || gone_)
        return;
    for (const auto& [control, shown] : widgets_) {
        shown->forgetColors();
        shown->follow();
    }
}

void PanelWindow::makeWidgets()
{
    auto* const form = new QWidget{this};
    QFont font = form->font();
    font.setPointSizeF(Font{}.size);
    form->setFont(font);
    setWidget(form);

    WidgetMaker maker{*this};
    for (Control* control : panel_.controls())
        if (ControlWidget* const made = maker.make(*control))
            widgets_.emplace(control, made);
    maker.stack();
    for (Control* control : panel_.controls())
        follow(*control);

    focusFrame_ = new FocusFrame{form};
    connect(qApp, &QApplication::focusChanged, this, [this] { markFocus(); });
}

void PanelWindow::markFocus()
{
    if (gone_)
        return;
    // Not what the signal says: the window passes the keyboard on to a control inside its own signal, so that the last
    // signal to arrive is about the window.
    QWidget* const focused = QApplication::focusWidget();
    const bool mine = controlOf(focused) != nullptr;
    focusFrame_->setWidget(mine ? focused : nullptr);
    // Under a mouse button nothing must move away.
    if (mine && QApplication::mouseButtons() == Qt::NoButton)
        view_.mainWindow().area().bringIntoSight(*focused);
}

void PanelWindow::makeMenu()
{
    auto* const menu = new QMenu{this};
    menu->addAction(QMdiSubWindow::tr("&Close") + QLatin1String{"\tCtrl+F4"}, this, &QWidget::close);
    setSystemMenu(menu);
}

void PanelWindow::fitTitle()
{
    QStyleOptionTitleBar option;
    option.initFrom(this);
    option.titleBarFlags = windowFlags();
    option.subControls = QStyle::SC_All;
    constexpr int margin = 14; // of the style, at both sides together
    const int room
        = style()->subControlRect(QStyle::CC_TitleBar, &option, QStyle::SC_TitleBarLabel, this).width() - margin;
    QFont font = QApplication::font("QMdiSubWindowTitleBar");
    while (font.pointSizeF() > Font{}.size && QFontMetrics{font, this}.horizontalAdvance(windowTitle()) > room)
        font.setPointSizeF(font.pointSizeF() - 0.5);
    if (font != this->font())
        setFont(font);
}

QPoint PanelWindow::corner() const
{
    return pos() + scrolled();
}

QPoint PanelWindow::scrolled() const
{
    const QMdiArea* const area = mdiArea();
    return area == nullptr ? QPoint{}
                           : QPoint{area->horizontalScrollBar()->value(), area->verticalScrollBar()->value()};
}

} // namespace ondelis
