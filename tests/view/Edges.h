#pragma once

#include <QImage>
#include <QRect>
#include <QStringList>

#include "view/PanelWindow.h"

namespace ondelis {

/// The sides of a rectangle of a picture along which there is no edge: that many pixels of one colour, the same on all
/// sides, and another one inside them. Its corners do not count.
[[nodiscard]] QStringList sidesWithoutEdge(const QImage& picture, const QRect& place, int pixels);

/// What lacks an edge in the window of a panel, including the window itself, as it is painted in the main window: a
/// line for each side, such as "Astable.TxtR1: left".
[[nodiscard]] QStringList missingEdges(const PanelWindow& window);

/// How many things with edges the last call of `missingEdges` looked at.
[[nodiscard]] int edgedThings(const PanelWindow& window);

} // namespace ondelis
