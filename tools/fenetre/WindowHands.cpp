#include "WindowHands.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <algorithm>

#include "Parts.h"
#include "Pointer.h"
#include "view/ClientArea.h"
#include "view/MainWindow.h"
#include "view/PanelWindow.h"
#include "view/Scale.h"
#include "view/ScrollBarWidget.h"
#include "view/Texts.h"

namespace ondelis::fenetre {
namespace {

bool isLocked(const QWidget& field)
{
    if (const auto* const line = qobject_cast<const QLineEdit*>(&field))
        return line->isReadOnly();
    return dynamic_cast<const QPlainTextEdit&>(field).isReadOnly();
}

} // namespace

pilote::Hands::Refusal WindowHands::unable() const
{
    if (fingers_.window() == nullptr)
        return "the program has ended";
    if (QApplication::activeModalWidget() != nullptr)
        return "a box waits for its answer";
    if (fingers_.window()->isMinimized())
        return "the window is minimised";
    return {};
}

PanelWindow* WindowHands::findPanel(const std::string& name) const
{
    for (QMdiSubWindow* const window : fingers_.window()->area().subWindowList())
        if (window->isVisible() && window->objectName() == toQString(name))
            return dynamic_cast<PanelWindow*>(window);
    return nullptr;
}

template <class WidgetClass, class Act>
pilote::Hands::Refusal WindowHands::with(const Target& target, Act&& act)
{
    if (auto refusal = unable())
        return refusal;
    PanelWindow* const panel = findPanel(target.panel);
    if (panel == nullptr)
        return "the panel is not on screen";
    auto* const widget = panel->form().findChild<QWidget*>(toQString(target.control));
    if (widget == nullptr)
        return "the panel has no such control";
    auto* const wanted = qobject_cast<WidgetClass*>(widget);
    if (wanted == nullptr)
        return "the control is of another class";
    if (!widget->isVisible())
        return "the control is hidden";
    return act(*wanted);
}

template <class Act>
pilote::Hands::Refusal WindowHands::withField(const Target& target, Act&& act)
{
    return with<QWidget>(target, [&](QWidget& widget) -> Refusal {
        if (!isField(widget))
            return "the control is of another class";
        if (isLocked(widget))
            return "the field is locked";
        return act(widget);
    });
}

pilote::Hands::Refusal WindowHands::menu(const std::string& entry)
{
    if (auto refusal = unable())
        return refusal;
    QMenuBar& bar = *fingers_.window()->menuBar();
    for (QAction* const title : bar.actions())
        for (QAction* const action : title->menu()->actions())
            if (action->objectName() == toQString(entry)) {
                if (auto refusal = fingers_.press(bar, bar.actionGeometry(title).center()))
                    return refusal;
                QMenu& dropDown = *title->menu();
                if (!dropDown.isVisible())
                    return "the menu does not open";
                Pointer::click(dropDown, dropDown.actionGeometry(action).center());
                fingers_.regainKeyboard();
                return {};
            }
    return "the menu has no such entry";
}

pilote::Hands::Refusal WindowHands::close(const std::string& window)
{
    if (auto refusal = unable())
        return refusal;
    if (window == "MDIOndelis") {
        fingers_.window()->close();
        return {};
    }
    PanelWindow* const panel = findPanel(window);
    if (panel == nullptr)
        return "the panel is not on screen";
    return fingers_.pressTitle(*panel, titlePart(*panel, QStyle::SC_TitleBarCloseButton).center());
}

pilote::Hands::Refusal WindowHands::move(const std::string& window, double left, double top)
{
    if (auto refusal = unable())
        return refusal;
    const Scale scale{*fingers_.window()};
    const QPoint corner{scale.pixels(left), scale.pixels(top)};
    if (window == "MDIOndelis") {
        fingers_.window()->move(corner); // as a window manager does
        return {};
    }
    PanelWindow* const panel = findPanel(window);
    if (panel == nullptr)
        return "the panel is not on screen";
    const QPoint scrolled{fingers_.window()->area().horizontalScrollBar()->value(),
        fingers_.window()->area().verticalScrollBar()->value()};
    const QRect title = titlePart(*panel, QStyle::SC_TitleBarLabel);
    if (auto refusal = fingers_.pressTitle(*panel, title.center(), corner - scrolled - panel->pos()))
        return refusal;
    return {};
}

pilote::Hands::Refusal WindowHands::minimise(const std::string& window)
{
    if (auto refusal = unable())
        return refusal;
    if (window != "MDIOndelis")
        return "only the main window can be minimised";
    fingers_.window()->showMinimized();
    return {};
}

pilote::Hands::Refusal WindowHands::restore(const std::string& window)
{
    if (fingers_.window() == nullptr || QApplication::activeModalWidget() != nullptr)
        return unable();
    if (window != "MDIOndelis" || !fingers_.window()->isMinimized())
        return "the window is not minimised";
    // Meanwhile something else has the keyboard on a desktop; where nothing takes it, the client area is not told that
    // it is active again.
    QWidget other;
    other.show();
    other.activateWindow();
    QGuiApplication::sync();
    fingers_.window()->showNormal();
    fingers_.regainKeyboard(); // as a click into the bar of the desktop does
    return {};
}

pilote::Hands::Refusal WindowHands::type(const Target& field, const std::string& text)
{
    return withField(field, [&](QWidget& first) -> Refusal {
        QPointer<QWidget> widget{&first};
        for (const char32_t character : toQString(text).toUcs4()) {
            if (character < ' ' && character != '\n' && character != '\r')
                continue; // no key enters it
            if (widget == nullptr || !widget->isVisible() || isLocked(*widget) || unable())
                break; // the key before has closed the field
            if (auto refusal = fingers_.typeKey(*widget, QString::fromUcs4(&character, 1), false))
                return refusal;
        }
        return {};
    });
}

pilote::Hands::Refusal WindowHands::backspace(const Target& field)
{
    return withField(field, [&](QWidget& widget) -> Refusal {
        if (auto refusal = fingers_.goToEnd(widget))
            return refusal;
        QTest::keyClick(&widget, Qt::Key_Backspace);
        return {};
    });
}

pilote::Hands::Refusal WindowHands::replace(const Target& field, const std::string& text)
{
    return withField(field, [&](QWidget& widget) -> Refusal {
        if (auto refusal = fingers_.takeKeyboard(widget))
            return refusal;
        QApplication::clipboard()->setText(toQString(text));
        QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
        return {};
    });
}

pilote::Hands::Refusal WindowHands::click(const Target& button)
{
    return with<QAbstractButton>(button, [&](QAbstractButton& widget) {
        QPoint point = widget.rect().center();
        if (qobject_cast<QRadioButton*>(&widget) != nullptr)
            point = indicatorOf(widget).center();
        return fingers_.press(widget, point);
    });
}

pilote::Hands::Refusal WindowHands::select(const Target& list, int row)
{
    return with<QListWidget>(list, [&](QListWidget& widget) -> Refusal {
        QListWidgetItem* const item = widget.item(row);
        if (item == nullptr)
            return "the list has no such row";
        widget.scrollToItem(item); // as the wheel does
        const QRect place = widget.visualItemRect(item) & widget.viewport()->rect();
        return fingers_.press(*widget.viewport(), place.center());
    });
}

pilote::Hands::Refusal WindowHands::scroll(const Target& bar, int value)
{
    return with<QScrollBar>(bar, [&](QScrollBar& widget) -> Refusal {
        auto& shown = dynamic_cast<ScrollBarWidget&>(widget);
        const auto [low, high] = std::minmax({shown.limitAtStart(), shown.limitAtEnd()});
        if (value < low || value > high)
            return "the bar does not reach that value";
        const int position = std::abs(value - shown.limitAtStart());
        const int way = position - widget.value();
        if (std::abs(way) == widget.singleStep())
            return fingers_.press(
                widget, barPart(widget, way > 0 ? QStyle::SC_ScrollBarAddLine : QStyle::SC_ScrollBarSubLine).center());
        return fingers_.moveThumb(shown, position);
    });
}

pilote::Hands::Refusal WindowHands::focus(const Target& control)
{
    return with<QWidget>(control, [&](QWidget& widget) { return fingers_.takeKeyboard(widget); });
}

pilote::Hands::Refusal WindowHands::hold(const Target& control, Key key, const std::string& character, int times)
{
    const bool arrow = key == Key::Back || key == Key::Forward;
    return with<QWidget>(control, [&](QWidget& first) -> Refusal {
        if (arrow ? qobject_cast<QScrollBar*>(&first) == nullptr : !isField(first))
            return "the key does nothing there";
        if (!arrow && isLocked(first))
            return "the field is locked";
        const QPointer<QWidget> widget{&first};
        Refusal refusal;
        for (int count = 0; count < times && !refusal; ++count) {
            if (widget == nullptr || !widget->isVisible() || unable() || (!arrow && isLocked(*widget)))
                break; // the key before has closed the control
            refusal = holdOnce(*widget, key, toQString(character), count > 0);
        }
        return refusal;
    });
}

pilote::Hands::Refusal WindowHands::holdOnce(QWidget& widget, Key key, const QString& character, bool repeated) const
{
    if (key == Key::Character)
        return fingers_.typeKey(widget, character, repeated);
    const bool backspace = key == Key::Backspace;
    if (auto refusal = backspace ? fingers_.goToEnd(widget) : fingers_.takeKeyboard(widget))
        return refusal;
    const Qt::Key arrow = key == Key::Back ? Qt::Key_Left : Qt::Key_Right;
    QTest::simulateEvent(&widget, true, backspace ? Qt::Key_Backspace : arrow, Qt::NoModifier, {}, repeated);
    return {};
}

} // namespace ondelis::fenetre
