#include "panels/timer555/Reglages.h"

#include <utility>

#include "forms/Column.h"

namespace ondelis {

Box sousLegende(const Label& legende, double width)
{
    return under(legende, width, legende.at().Height, 30);
}

HScrollBar::Design barre(Box at, Integer value, Label& legende)
{
    return {.Min = 1, .Max = 1000, .Value = value, .LargeChange = 10, .at = at, .label = &legende};
}

ListBox::Design unites(Label& legende, std::vector<std::string> items)
{
    constexpr double gap = 105;
    constexpr double middle = 270;
    const Box& at = legende.at();
    const double height = listHeight(static_cast<int>(items.size()));
    return {.Items = std::move(items),
        .at = {at.Left + at.Width + gap, at.Top + middle - height / 2, 960, height},
        .label = &legende};
}

Double facteurFrequence(Integer row)
{
    return row == 1 ? 1000 : 1;
}

Double facteurResistance(Integer row)
{
    switch (row.value()) {
    case 1:
        return 1000;
    case 2:
        return 1e6;
    default:
        return 1;
    }
}

Double facteurCapacite(Integer row)
{
    switch (row.value()) {
    case 0:
        return 1e-6;
    case 1:
        return 1e-9;
    case 2:
        return 1e-12;
    default:
        return 1;
    }
}

} // namespace ondelis
