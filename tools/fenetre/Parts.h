#pragma once

#include <QAbstractButton>
#include <QMdiSubWindow>
#include <QRect>
#include <QScrollBar>
#include <QStyle>

namespace ondelis::fenetre {

// Where the style has drawn the parts of a widget that a person aims at, in the widget's own pixels.

[[nodiscard]] QRect titlePart(const QMdiSubWindow& window, QStyle::SubControl part);
[[nodiscard]] QStyle::SubControl titlePartAt(const QMdiSubWindow& window, const QPoint& place);
[[nodiscard]] QRect barPart(const QScrollBar& bar, QStyle::SubControl part);
/// The mark of an option.
[[nodiscard]] QRect indicatorOf(const QAbstractButton& option);

/// How many pixels the thumb of a bar must be dragged to reach that position.
[[nodiscard]] int thumbDistance(const QScrollBar& bar, int position);
/// The position that a bar takes when its thumb is dragged by that many pixels.
[[nodiscard]] int positionAfter(const QScrollBar& bar, int way);

} // namespace ondelis::fenetre
