#pragma once

#include <QWidget>

namespace ondelis {

class PanelWindow;

/// Makes the Tab key follow the eye where code has moved fields: it goes from top to bottom. The other controls keep
/// the order of the form.
void orderTabs(const PanelWindow& window);

/// Where the keyboard goes first: the first field to type into, else the first control; null if there is none.
[[nodiscard]] QWidget* firstTabStop(const PanelWindow& window);

} // namespace ondelis
