#pragma once

#include <QColor>
#include <QLineF>
#include <QPainter>
#include <QRectF>

namespace ondelis {

// Edges and straight lines in whole pixels of the device, wherever a scale of 125 % puts them: a pen one pixel wide
// falls between two of them, and is painted by half or not at all.

enum class Corners { Square, Cut };

/// Fills the pixels along the inside of a rectangle, as many on each of its sides: one at scales below 200 %, two below
/// 300 %. Cut corners lack the pixels of the corner itself, and look round.
void drawEdge(QPainter& painter, const QRectF& around, const QColor& color, Corners corners = Corners::Square);

/// Fills what is inside of such an edge.
void fillInside(QPainter& painter, const QRectF& around, const QColor& color);

/// Fills the pixels of a line that runs straight across or down.
void drawStraight(QPainter& painter, const QLineF& line, double width, const QColor& color);

} // namespace ondelis
