#include "view/LinesWidget.h"

#include <QPainter>
#include <algorithm>

#include "view/Colors.h"
#include "view/Edges.h"

namespace ondelis {
namespace {

/// The part of a line that runs through an area, if any. A result can give a line too long for the painter.
std::optional<QLineF> clipped(const QLineF& line, const QRectF& area)
{
    double from = 0;
    double to = 1;
    // Along one axis the line is between the edges from where it crosses one to where it crosses the other.
    const auto keepBetween = [&](double low, double high, double start, double length) {
        if (length == 0)
            return low <= start && start <= high;
        const auto [in, out] = std::minmax({(low - start) / length, (high - start) / length});
        from = std::max(from, in);
        to = std::min(to, out);
        return from <= to;
    };
    if (!keepBetween(area.left(), area.right(), line.x1(), line.dx())
        || !keepBetween(area.top(), area.bottom(), line.y1(), line.dy()))
        return std::nullopt;
    return QLineF{line.pointAt(from), line.pointAt(to)};
}

} // namespace

LinesWidget::LinesWidget(PanelWindow& window, QWidget* parent) : QWidget{parent}, ControlWidget{window}
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

std::optional<QLineF> LinesWidget::painted(const Line& line) const
{
    const auto stroke = std::ranges::find(strokes_, &line, &Stroke::of);
    return stroke == strokes_.end() ? std::nullopt : std::optional{stroke->line};
}

void LinesWidget::refresh()
{
    const Scale scale{*this};
    strokes_.clear();
    for (const Line* line : lines_)
        if (line->Visible)
            draw(*line, scale);
    rectangles_.clear();
    for (const Shape* shape : shapes_)
        rectangles_.push_back(scale.pixels(shape->at()));
    fitGeometry();
    update();
}

void LinesWidget::draw(const Line& line, const Scale& scale)
{
    const auto exact = [&](const Property<Single>& twips) { return scale.exact(Double{twips}.value()); };
    Stroke stroke{.of = &line,
        .line = {exact(line.X1), exact(line.Y1), exact(line.X2), exact(line.Y2)},
        .area = {},
        .color = line.design().BorderColor,
        .width = line.design().BorderWidth * scale.exact(1440) / 96};
    if (const Shape* const around = line.design().within) {
        stroke.area = scale.pixels(around->at()).adjusted(1, 1, -1, -1);
        const double beyond = stroke.width; // so that the ends of a cut line lie out of sight
        const QRectF reach = QRectF{stroke.area}.adjusted(-beyond, -beyond, beyond, beyond);
        const std::optional<QLineF> inside = clipped(stroke.line, reach);
        if (!inside)
            return;
        stroke.line = *inside;
    }
    strokes_.push_back(stroke);
}

void LinesWidget::fitGeometry()
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
    const QColor edge = readable(palette().color(QPalette::Mid), window, quietContrast);
    for (const QRect& rectangle : rectangles_)
        drawEdge(painter, rectangle, edge);
    for (const Stroke& stroke : strokes_) {
        if (stroke.area.isNull())
            painter.setClipping(false);
        else
            painter.setClipRect(stroke.area);
        const QColor color = isSystemColor(stroke.color) ? text : shownStroke(stroke.color, window, lineContrast);
        if (stroke.line.dx() == 0 || stroke.line.dy() == 0) {
            drawStraight(painter, stroke.line, stroke.width, color);
        } else {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(QPen{color, stroke.width, Qt::SolidLine, Qt::FlatCap});
            painter.drawLine(stroke.line);
        }
    }
}

} // namespace ondelis
