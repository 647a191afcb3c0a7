#include "Mouse.h"

#include <QTest>

namespace ondelis::fenetre {
namespace {

/// What lies at a point of a widget: itself, a part of it, or something over it; null if nothing in its window does.
QWidget* topmostAt(const QWidget& widget, const QPoint& point)
{
    QWidget& window = *widget.window();
    const QPoint there = widget.mapTo(&window, point);
    QWidget* const child = window.childAt(there);
    return child == nullptr && window.rect().contains(there) ? &window : child;
}

} // namespace

bool Mouse::reaches(const QWidget& widget, const QPoint& point)
{
    const QWidget* const there = topmostAt(widget, point);
    return there == &widget || widget.isAncestorOf(there);
}

void Mouse::press(QWidget& widget, const QPoint& point, Qt::MouseButton button)
{
    pressed_ = topmostAt(widget, point);
    button_ = button;
    at_ = pressed_->mapFrom(widget.window(), widget.mapTo(widget.window(), point));
    // Some widgets look at what lies under the pointer on its way there, and a menu takes a click of a pointer that has
    // hardly moved since it opened for the end of the click that opened it.
    constexpr int way = 8;
    for (int left = way; left > 0 && pressed_ != nullptr; --left)
        moveTo(at_ + QPoint{0, (left - 1) % 2}, Qt::NoButton);
    if (pressed_ != nullptr)
        QTest::mousePress(pressed_, button_, Qt::NoModifier, at_);
}

void Mouse::drag(const QPoint& by)
{
    if (pressed_ == nullptr)
        return;
    const QPoint to = pressed_->mapToGlobal(at_ + by);
    moveTo(at_ + by, button_);
    if (pressed_ != nullptr)
        at_ = pressed_->mapFromGlobal(to); // what is dragged may have moved along
}

void Mouse::release()
{
    if (pressed_ != nullptr)
        QTest::mouseRelease(pressed_, button_, Qt::NoModifier, at_);
}

void Mouse::moveTo(const QPoint& point, Qt::MouseButtons buttons)
{
    // Not the toolkit's own helper, which moves without a button.
    QMouseEvent event{QEvent::MouseMove, point, pressed_->mapToGlobal(point), Qt::NoButton, buttons, Qt::NoModifier};
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(pressed_, &event);
}

} // namespace ondelis::fenetre
