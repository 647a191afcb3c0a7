#include "InputSimulator.h"

#include <QApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextCursor>

#include "Mouse.h"
#include "Parts.h"
#include "view/ClientArea.h"
#include "view/MainWindow.h"
#include "view/PanelWindow.h"

namespace ondelis::fenetre {
namespace {

/// What the mouse points at: for a list or a large field, the part that shows its rows or its text.
QWidget& hitArea(QWidget& widget)
{
    auto* const area = qobject_cast<QAbstractScrollArea*>(&widget);
    return area == nullptr ? widget : *area->viewport();
}

/// Whether the next key lands at the end of the text.
bool isAtEnd(const QWidget& field)
{
    if (const auto* const line = qobject_cast<const QLineEdit*>(&field))
        return line->cursorPosition() == line->text().size() && !line->hasSelectedText();
    const QTextCursor caret = dynamic_cast<const QPlainTextEdit&>(field).textCursor();
    return caret.atEnd() && !caret.hasSelection();
}

/// Whether a click there only brings the panel in front of the others: on its title, its background or a caption.
bool doesNothing(const PanelWindow& panel, const QPoint& place)
{
    const QWidget* const there = panel.childAt(place);
    if (there == nullptr)
        return titlePartAt(panel, place) == QStyle::SC_TitleBarLabel;
    return there == &panel.form() || qobject_cast<const QLabel*>(there) != nullptr;
}

} // namespace

bool isField(const QWidget& widget)
{
    return qobject_cast<const QLineEdit*>(&widget) != nullptr
        || qobject_cast<const QPlainTextEdit*>(&widget) != nullptr;
}

void InputSimulator::reactivateWindow() const
{
    if (window_ == nullptr || QApplication::activeWindow() == window_ || window_->isMinimized()
        || QApplication::activeModalWidget() != nullptr)
        return;
    window_->activateWindow();
    QGuiApplication::sync();
}

pilote::Actor::Refusal InputSimulator::uncover(QWidget& widget, const QPoint& point) const
{
    if (Mouse::reaches(widget, point))
        return {};
    for (QWidget* above = &widget; above != nullptr; above = above->parentWidget())
        if (auto* const panel = dynamic_cast<PanelWindow*>(above)) {
            window_->area().ensureVisible(widget); // as a person would, by the bars of the client area
            if (!Mouse::reaches(widget, point))
                bringToFront(*panel);
        }
    return Mouse::reaches(widget, point) ? pilote::Actor::Refusal{} : "something else lies there";
}

void InputSimulator::bringToFront(PanelWindow& panel)
{
    constexpr int step = 4; // pixels: less than what a person aims at
    for (int y = step; y < panel.height(); y += step)
        for (int x = step; x < panel.width(); x += step)
            if (const QPoint place{x, y}; Mouse::reaches(panel, place) && doesNothing(panel, place)) {
                Mouse::click(panel, place);
                return;
            }
    // It lies wholly under another panel: there is a key for that.
    QWidget* const keyboard = QApplication::focusWidget();
    if (keyboard == nullptr)
        return;
    QTest::keyPress(keyboard, Qt::Key_Control, Qt::ControlModifier);
    QTest::keyClick(keyboard, Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyRelease(keyboard, Qt::Key_Control);
}

pilote::Actor::Refusal InputSimulator::press(QWidget& widget, const QPoint& point, Qt::MouseButton button) const
{
    if (auto refusal = uncover(widget, point))
        return refusal;
    Mouse::click(widget, point, button);
    return {};
}

pilote::Actor::Refusal InputSimulator::pressTitle(PanelWindow& panel, const QPoint& point, const QPoint& by) const
{
    if (auto refusal = uncover(panel, point))
        return refusal;
    Mouse mouse;
    mouse.press(panel, point);
    if (!by.isNull())
        mouse.drag(by);
    mouse.release();
    return {};
}

pilote::Actor::Refusal InputSimulator::moveCaretToEnd(QWidget& field) const
{
    if (auto refusal = moveFocusTo(field))
        return refusal;
    if (!isAtEnd(field))
        QTest::keyClick(&field, Qt::Key_End,
            qobject_cast<const QLineEdit*>(&field) != nullptr ? Qt::NoModifier : Qt::ControlModifier);
    return {};
}

pilote::Actor::Refusal InputSimulator::moveFocusTo(QWidget& widget) const
{
    reactivateWindow(); // a box may have taken it
    if (QApplication::focusWidget() == &widget)
        return {};
    if (widget.focusPolicy() == Qt::NoFocus)
        return "the control takes no keyboard";
    if (auto* const list = qobject_cast<QListWidget*>(&widget)) {
        tabTo(*list);
    } else if (const auto* const bar = qobject_cast<QScrollBar*>(&widget)) {
        if (auto refusal = press(widget, barPart(*bar, QStyle::SC_ScrollBarSlider).center()))
            return refusal;
    } else {
        // A field is clicked; on the other controls the right button gives the keyboard and does nothing else.
        QWidget& seen = hitArea(widget);
        if (auto refusal = press(seen, seen.rect().center(), isField(widget) ? Qt::LeftButton : Qt::RightButton))
            return refusal;
    }
    return QApplication::focusWidget() == &widget ? pilote::Actor::Refusal{} : "the keyboard is elsewhere";
}

void InputSimulator::tabTo(QListWidget& list) const
{
    // From a neighbour that does nothing when it gets the keyboard: so not from another list.
    const auto isNeighbour = [&](const QWidget& widget) {
        return widget.parentWidget() == list.parentWidget() && widget.isVisible()
            && (widget.focusPolicy() & Qt::TabFocus) != 0;
    };
    const auto comeFrom = [&](QWidget* (QWidget::*way)() const, Qt::Key key) {
        QWidget* neighbour = (list.*way)();
        while (neighbour != &list && !isNeighbour(*neighbour))
            neighbour = (neighbour->*way)();
        if (neighbour == &list || qobject_cast<QListWidget*>(neighbour) != nullptr || moveFocusTo(*neighbour))
            return false;
        QTest::keyClick(neighbour, key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        return list.hasFocus();
    };
    if (!comeFrom(&QWidget::previousInFocusChain, Qt::Key_Tab)
        && !comeFrom(&QWidget::nextInFocusChain, Qt::Key_Backtab))
        list.setFocus(Qt::TabFocusReason); // between lists: as the key would
}

pilote::Actor::Refusal InputSimulator::typeKey(QWidget& field, const QString& character, bool repeated) const
{
    if (auto refusal = moveCaretToEnd(field))
        return refusal;
    const bool enter = character == QLatin1String{"\n"} || character == QLatin1String{"\r"};
    const bool single = character.size() == 1;
    const int key = enter ? Qt::Key_Return
        : single          ? character.at(0).toUpper().unicode()
                          : static_cast<int>(Qt::Key_unknown);
    const QPointer<QWidget> held{&field};
    QTest::simulateEvent(&field, true, key, Qt::NoModifier, enter ? QStringLiteral("\r") : character, repeated);
    if (held != nullptr)
        QTest::simulateEvent(&field, false, key, Qt::NoModifier, {}, repeated);
    return {};
}

pilote::Actor::Refusal InputSimulator::moveThumb(QScrollBar& bar, int position) const
{
    const QRect thumb = barPart(bar, QStyle::SC_ScrollBarSlider);
    if (auto refusal = uncover(bar, thumb.center()))
        return refusal;
    Mouse mouse;
    mouse.press(bar, thumb.center());
    const int way = thumbDistance(bar, position);
    if (positionAfter(bar, way) == position)
        mouse.drag(bar.orientation() == Qt::Horizontal ? QPoint{way, 0} : QPoint{0, way});
    else // no pixel stands for this position
        bar.setSliderPosition(position);
    mouse.release();
    return {};
}

} // namespace ondelis::fenetre
