#pragma once

#include <QColor>
#include <QLineF>
#include <QPainter>
#include <QRectF>

namespace ondelis {

// Edges and straight lines in whole device pixels, wherever a scale of 125 % puts them: a pen one pixel wide falls
// between two device pixels, and is painted half or not at all.

enum class Corners { Square, Cut };

/// Fills the pixels along the inside of a rectangle, the same number on each side: one at scales below 200 %, two below
/// 300 %. Cut corners lack the pixels of the corner itself, and look round.
void drawEdge(QPainter& painter, const QRectF& around, const QColor& color, Corners corners = Corners::Square);

/// Fills what is inside such an edge.
void fillInside(QPainter& painter, const QRectF& around, const QColor& color);

/// Fills the pixels of a horizontal or vertical line.
void drawStraight(QPainter& painter, const QLineF& line, double width, const QColor& color);

} // namespace ondelis
