#include "view/LineField.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <utility>

namespace ondelis {

bool LineField::event(QEvent* event)
{
    // The base class deselects a field that lacks the keyboard soon after its window has become active. But it may lack
    // it only for a moment: drop-downs that have been left still take it, one after the other.
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
    if (clickedInto_ && event->button() == Qt::RightButton) { // its menu, which opens at once, acts on the whole text
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
