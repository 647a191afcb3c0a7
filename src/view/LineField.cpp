#include "view/LineField.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <utility>

namespace ondelis {

bool LineField::event(QEvent* event)
{
    // The base class unselects a field that is without the keyboard soon after its window has become active. The one
    // that has it may only lack it for a moment: drop-downs that have been left still take it, one after the other.
    if (event->type() == QEvent::WindowActivate && window()->focusWidget() == this)
        return QWidget::event(event); // NOLINT(bugprone-parent-virtual-call)
    return QLineEdit::event(event);
}

void LineField::focusInEvent(QFocusEvent* event)
{
    clickedInto_ = event->reason() == Qt::MouseFocusReason;
    QLineEdit::focusInEvent(event);
}

void LineField::mousePressEvent(QMouseEvent* event)
{
    QLineEdit::mousePressEvent(event);
    if (clickedInto_ && event->button() == Qt::RightButton) { // its menu, which comes at once, is about the whole text
        clickedInto_ = false;
        selectAll();
    }
}

void LineField::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(clickedInto_, false) && event->button() == Qt::LeftButton && !hasSelectedText())
        selectAll();
}

} // namespace ondelis
