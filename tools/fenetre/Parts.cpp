#include "Parts.h"

#include <QStyleOptionButton>
#include <QStyleOptionSlider>
#include <QStyleOptionTitleBar>

namespace ondelis::fenetre {
namespace {

QStyleOptionTitleBar optionOf(const QMdiSubWindow& window)
{
    QStyleOptionTitleBar option;
    option.initFrom(&window);
    option.titleBarFlags = window.windowFlags();
    option.titleBarState = static_cast<int>(window.windowState());
    option.subControls = QStyle::SC_All;
    option.text = window.windowTitle();
    option.rect.setHeight(window.style()->pixelMetric(QStyle::PM_TitleBarHeight, &option, &window));
    return option;
}

QStyleOptionSlider optionOf(const QScrollBar& bar)
{
    struct Bar : QScrollBar {
        using QScrollBar::initStyleOption; // the toolkit's own, which only its subclasses may call
    };
    QStyleOptionSlider option;
    (bar.*&Bar::initStyleOption)(&option);
    return option;
}

/// The range of a thumb.
struct Travel {
    int length; ///< pixels
    int now; ///< how far from its beginning it stands
};

Travel travelOf(const QScrollBar& bar)
{
    const QRect groove = barPart(bar, QStyle::SC_ScrollBarGroove);
    const QRect thumb = barPart(bar, QStyle::SC_ScrollBarSlider);
    if (bar.orientation() == Qt::Horizontal)
        return {groove.width() - thumb.width(), thumb.left() - groove.left()};
    return {groove.height() - thumb.height(), thumb.top() - groove.top()};
}

} // namespace

QRect titlePart(const QMdiSubWindow& window, QStyle::SubControl part)
{
    const QStyleOptionTitleBar option = optionOf(window);
    return window.style()->subControlRect(QStyle::CC_TitleBar, &option, part, &window);
}

QStyle::SubControl titlePartAt(const QMdiSubWindow& window, const QPoint& place)
{
    const QStyleOptionTitleBar option = optionOf(window);
    return window.style()->hitTestComplexControl(QStyle::CC_TitleBar, &option, place, &window);
}

QRect barPart(const QScrollBar& bar, QStyle::SubControl part)
{
    const QStyleOptionSlider option = optionOf(bar);
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
}

QRect indicatorOf(const QAbstractButton& option)
{
    QStyleOptionButton drawn;
    drawn.initFrom(&option);
    drawn.text = option.text();
    return option.style()->subElementRect(QStyle::SE_RadioButtonIndicator, &drawn, &option);
}

int thumbDistance(const QScrollBar& bar, int position)
{
    const Travel travel = travelOf(bar);
    return QStyle::sliderPositionFromValue(bar.minimum(), bar.maximum(), position, travel.length) - travel.now;
}

int positionAfter(const QScrollBar& bar, int way)
{
    const Travel travel = travelOf(bar);
    return QStyle::sliderValueFromPosition(bar.minimum(), bar.maximum(), travel.now + way, travel.length);
}

} // namespace ondelis::fenetre
