#pragma once

#include <QScrollBar>

#include "forms/Controls.h"
#include "view/ControlWidget.h"

namespace ondelis {

/// A bar. `Min` is at its left or upper end, whether it is the smaller or the larger limit: the widget counts positions
/// from that end. Only the left button, which gives it the keyboard, the keys and, while it has the keyboard, the wheel
/// change it.
class ScrollBarWidget final : public WidgetOf<QScrollBar, ScrollBar> {
public:
    ScrollBarWidget(PanelWindow& window, ScrollBar& bar, Qt::Orientation orientation, QWidget* parent);

    void refresh() override;

    /// The limits and the value of the control, as reported to screen readers.
    [[nodiscard]] int limitAtStart() const { return min_; }
    [[nodiscard]] int limitAtEnd() const { return max_; }
    [[nodiscard]] int shownValue() const { return valueAt(value()); }
    void setShownValue(int value) { setValue(positionOf(value)); }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] int positionOf(int value) const { return min_ <= max_ ? value - min_ : min_ - value; }
    [[nodiscard]] int valueAt(int position) const { return min_ <= max_ ? min_ + position : min_ - position; }
    void reportValue();
    /// Treats the mouse button as released: it was let go over a box, unseen by the bar.
    void releaseSlider();

    int min_ = 0;
    int max_ = 0;
};

} // namespace ondelis
