#include "view/FocusFrame.h"

#include <QPainter>

#include "view/Colors.h"

namespace ondelis {

FocusFrame::FocusFrame(QWidget* parent) : QFocusFrame{parent}
{
    hide();
}

void FocusFrame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter{this}; // the style leaves out the middle, where the widget is
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(readable(palette().color(QPalette::Highlight), palette().color(QPalette::Window), lineContrast));
    painter.drawRoundedRect(rect(), 3, 3);
}

} // namespace ondelis
