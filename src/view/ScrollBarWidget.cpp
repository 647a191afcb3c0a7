#include "view/ScrollBarWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>

namespace ondelis {
namespace {

/// Tells screen readers the values of the control, not the positions of the widget.
class ScrollBarAccessible final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit ScrollBarAccessible(ScrollBarWidget& bar) : QAccessibleWidget{&bar, QAccessible::ScrollBar}, bar_{bar} { }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? QString::number(bar_.shownValue()) : QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QVariant currentValue() const override { return bar_.shownValue(); }
    void setCurrentValue(const QVariant& value) override { bar_.setShownValue(value.toInt()); }
    [[nodiscard]] QVariant minimumValue() const override { return std::min(bar_.limitAtStart(), bar_.limitAtEnd()); }
    [[nodiscard]] QVariant maximumValue() const override { return std::max(bar_.limitAtStart(), bar_.limitAtEnd()); }
    [[nodiscard]] QVariant minimumStepSize() const override { return bar_.singleStep(); }

private:
    ScrollBarWidget& bar_;
};

QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object)
{
    auto* const bar = dynamic_cast<ScrollBarWidget*>(object);
    return bar == nullptr ? nullptr : new ScrollBarAccessible{*bar};
}

} // namespace

ScrollBarWidget::ScrollBarWidget(PanelWindow& window, ScrollBar& bar, Qt::Orientation orientation, QWidget* parent)
    : WidgetOf{window, bar, orientation, parent}
{
    QAccessible::installFactory(makeAccessible); // counts once however often it is called
    setFocusPolicy(Qt::TabFocus); // and by the left button
    setContextMenuPolicy(Qt::NoContextMenu);
    setSingleStep(bar.design().SmallChange.value());
    setPageStep(bar.design().LargeChange.value());
    connect(this, &QScrollBar::valueChanged, this, [this] { tellValue(); });
}

void ScrollBarWidget::follow()
{
    place();
    const QSignalBlocker quiet{this};
    const int before = shownValue();
    min_ = control().Min.get().value();
    max_ = control().Max.get().value();
    setRange(0, positionOf(max_));
    setValue(positionOf(control().Value.get().value()));
    if (shownValue() != before) {
        QAccessibleValueChangeEvent event{this, shownValue()};
        QAccessible::updateAccessibility(&event);
    }
    setVisible(control().Visible);
}

void ScrollBarWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) // the middle one would move the slider under the pointer
        return;
    setFocus(Qt::MouseFocusReason);
    if (!gone())
        QScrollBar::mousePressEvent(event);
}

void ScrollBarWidget::wheelEvent(QWheelEvent* event)
{
    // Without the keyboard it ignores the wheel, which scrolls the client area.
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    QScrollBar::wheelEvent(event);
    event->accept(); // even at its limit: the area must not start scrolling instead
}

void ScrollBarWidget::keyPressEvent(QKeyEvent* event)
{
    // The base class reverses some of the keys.
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        triggerAction(SliderSingleStepSub);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        triggerAction(SliderSingleStepAdd);
        break;
    case Qt::Key_PageUp:
        triggerAction(SliderPageStepSub);
        break;
    case Qt::Key_PageDown:
        triggerAction(SliderPageStepAdd);
        break;
    case Qt::Key_Home:
        triggerAction(SliderToMinimum);
        break;
    case Qt::Key_End:
        triggerAction(SliderToMaximum);
        break;
    default:
        event->ignore();
    }
}

void ScrollBarWidget::tellValue()
{
    const unsigned boxes = panelWindow().view().boxesShown();
    tell([&](User& user) { user.move(control(), shownValue()); });
    if (panelWindow().view().boxesShown() != boxes)
        letGo();
}

void ScrollBarWidget::letGo()
{
    setRepeatAction(SliderNoAction);
    setSliderDown(false);
}

} // namespace ondelis
