#pragma once

#include <QStringList>

#include "view/PanelWindow.h"

namespace ondelis {

/// What is wrong with how a panel looks in its present state, one line a fault: cut texts, controls beyond the client
/// area or on top of one another, drawings that do not exist, fields without a name. Measured with the fonts that the
/// widgets have.
[[nodiscard]] QStringList faultsOf(const PanelWindow& window);

} // namespace ondelis
