#include "view/TabOrder.h"

#include <QLineEdit>
#include <algorithm>
#include <vector>

#include "forms/Controls.h"
#include "view/ControlWidget.h"
#include "view/PanelWindow.h"

namespace ondelis {

void orderTabs(const PanelWindow& window)
{
    std::vector<QWidget*> stops;
    std::vector<QWidget*> moved;
    std::vector<std::size_t> turns;
    for (const Control* const control : window.panel().controls()) {
        ControlWidget* const shown = window.find(*control);
        if (shown == nullptr || shown->widget().focusPolicy() == Qt::NoFocus)
            continue;
        stops.push_back(&shown->widget());
        const auto* const box = dynamic_cast<const TextBox*>(control);
        if (box == nullptr || box->Top == box->design().at.Top)
            continue;
        moved.push_back(stops.back());
        turns.push_back(stops.size() - 1);
    }
    std::ranges::stable_sort(moved, {}, &QWidget::y);
    for (std::size_t i = 0; i < moved.size(); ++i)
        stops[turns[i]] = moved[i];
    for (std::size_t i = 1; i < stops.size(); ++i)
        QWidget::setTabOrder(stops[i - 1], stops[i]);
}

QWidget* firstTabStop(const PanelWindow& window)
{
    QWidget* first = nullptr;
    for (const Control* const control : window.panel().controls()) {
        if (!control->focusable())
            continue;
        QWidget& widget = window.find(*control)->widget();
        const auto* const field = qobject_cast<QLineEdit*>(&widget);
        if (field != nullptr && !field->isReadOnly())
            return &widget;
        if (first == nullptr)
            first = &widget;
    }
    return first;
}

} // namespace ondelis
