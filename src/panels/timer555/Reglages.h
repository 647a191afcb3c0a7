#pragma once

#include <string>
#include <vector>

#include "forms/Controls.h"

namespace ondelis {

// What the timer panels have in common: a bar sets a value, and a list beside it gives the unit.

/// The line under the caption of a value: its bar, or what stands at the left end of the bar.
[[nodiscard]] Box sousLegende(const Label& legende, double width);
/// The bar of a value: 1 to 1000 of the chosen unit.
[[nodiscard]] HScrollBar::Design barre(Box at, Integer value, Label& legende);
/// The units of a value, level with the middle of its caption and bar.
[[nodiscard]] ListBox::Design unites(Label& legende, std::vector<std::string> items);

// The factor of the chosen row of a list of units; 1 where none is chosen.

/// "Hz", "KHz"; to hertz.
[[nodiscard]] Double facteurFrequence(Integer row);
/// "Ohms", "KOhms", "MOhms"; to ohms.
[[nodiscard]] Double facteurResistance(Integer row);
/// "µF", "nF", "pF"; to farads.
[[nodiscard]] Double facteurCapacite(Integer row);

} // namespace ondelis
