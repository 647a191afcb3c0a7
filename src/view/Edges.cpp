#include "view/Edges.h"

#include <QTransform>
#include <algorithm>

namespace ondelis {
namespace {

/// Fills rectangles given in device pixels.
class DeviceFiller {
public:
    explicit DeviceFiller(QPainter& painter) : painter_{painter}, toDevice_{painter.deviceTransform()} { }

    /// The rectangle in whole pixels, edge by edge.
    [[nodiscard]] QRect pixels(const QRectF& rect) const
    {
        const QRectF exact = toDevice_.mapRect(rect);
        const QPoint corner{qRound(exact.left()), qRound(exact.top())};
        const QPoint end{qRound(exact.right()), qRound(exact.bottom())};
        return {corner, QSize{end.x() - corner.x(), end.y() - corner.y()}};
    }

    /// How many whole pixels fit in a length; at least one. What lies that far inside a rectangle leaves its edge free
    /// however both are rounded.
    [[nodiscard]] int pixels(double length) const { return std::max(1, static_cast<int>(length * toDevice_.m11())); }

    void fill(const QRect& pixels, const QColor& color) const
    {
        painter_.fillRect(toDevice_.inverted().mapRect(QRectF{pixels}), color);
    }

private:
    QPainter& painter_;
    QTransform toDevice_;
};

} // namespace

void drawEdge(QPainter& painter, const QRectF& around, const QColor& color, Corners corners)
{
    const DeviceFiller filler{painter};
    const QRect outside = filler.pixels(around);
    const int width = filler.pixels(1.0);
    const int cut = corners == Corners::Cut ? width : 0;
    const QRect across = outside.adjusted(cut, 0, -cut, 0);
    filler.fill({across.left(), across.top(), across.width(), width}, color);
    filler.fill({across.left(), across.bottom() + 1 - width, across.width(), width}, color);
    const QRect down = outside.adjusted(0, width, 0, -width);
    filler.fill({down.left(), down.top(), width, down.height()}, color);
    filler.fill({down.right() + 1 - width, down.top(), width, down.height()}, color);
}

void fillInside(QPainter& painter, const QRectF& around, const QColor& color)
{
    const DeviceFiller filler{painter};
    const int width = filler.pixels(1.0);
    filler.fill(filler.pixels(around).adjusted(width, width, -width, -width), color);
}

void drawStraight(QPainter& painter, const QLineF& line, double width, const QColor& color)
{
    const DeviceFiller filler{painter};
    const int pixels = filler.pixels(width);
    QRect place = filler.pixels(QRectF{line.p1(), line.p2()}.normalized());
    if (line.dx() == 0) {
        place.moveLeft(place.left() - pixels / 2);
        place.setWidth(pixels);
    } else {
        place.moveTop(place.top() - pixels / 2);
        place.setHeight(pixels);
    }
    filler.fill(place, color);
}

} // namespace ondelis
