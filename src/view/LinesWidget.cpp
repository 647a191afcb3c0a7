#include "view/LinesWidget.h"

#include <QPainter>

#include "view/Colors.h"

namespace ondelis {

LinesWidget::LinesWidget(PanelWindow& window, QWidget* parent) : QWidget{parent}, ControlWidget{window}
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LinesWidget::follow()
{
    const Scale scale{*this};
    strokes_.clear();
    for (const Line* line : lines_) {
        if (!line->Visible)
            continue;
        const auto exact = [&](const Property<Single>& twips) { return scale.exact(Double{twips}.value()); };
        strokes_.push_back({.line = {exact(line->X1), exact(line->Y1), exact(line->X2), exact(line->Y2)},
            .color = line->design().BorderColor,
            .width = line->design().BorderWidth * scale.exact(1440) / 96});
    }
    rectangles_.clear();
    for (const Shape* shape : shapes_)
        rectangles_.push_back(scale.pixels(shape->at()));
    cover();
    update();
}

void LinesWidget::cover()
{
    QRectF area;
    for (const Stroke& stroke : strokes_) {
        const QRectF box = QRectF{stroke.line.p1(), stroke.line.p2()}.normalized();
        area |= box.adjusted(-stroke.width, -stroke.width, stroke.width, stroke.width);
    }
    for (const QRect& rectangle : rectangles_)
        area |= rectangle;
    setGeometry(QRect{QPoint{}, area.toAlignedRect().bottomRight()});
}

void LinesWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter{this};
    const QColor text = palette().color(QPalette::WindowText);
    const QColor window = palette().color(QPalette::Window);
    painter.setPen(palette().color(QPalette::Mid)); // as quiet as the edge of a frame
    for (const QRect& rectangle : rectangles_)
        painter.drawRect(rectangle.adjusted(0, 0, -1, -1));
    for (const Stroke& stroke : strokes_) {
        const bool straight = stroke.line.dx() == 0 || stroke.line.dy() == 0;
        painter.setRenderHint(QPainter::Antialiasing, !straight);
        const QColor color = isSystemColor(stroke.color) ? text : readable(toQColor(stroke.color), window);
        painter.setPen(QPen{color, stroke.width, Qt::SolidLine, Qt::FlatCap});
        painter.drawLine(stroke.line);
    }
}

} // namespace ondelis
