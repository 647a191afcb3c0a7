#include "panels/timer555/Reglages.h"

namespace ondelis {

HScrollBar::Design barre(Box at, Integer Value, Label* label)
{
    return {.Min = 1, .Max = 1000, .Value = Value, .LargeChange = 10, .at = at, .label = label};
}

Double facteurFrequence(Integer rang)
{
    return rang == 1 ? 1000 : 1;
}

Double facteurResistance(Integer rang)
{
    switch (rang.value()) {
    case 1:
        return 1000;
    case 2:
        return 1e6;
    default:
        return 1;
    }
}

Double facteurCapacite(Integer rang)
{
    switch (rang.value()) {
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
