#pragma once

#include <QMenuBar>
#include <QStringList>

#include "view/PanelWindow.h"

namespace ondelis {

/// The texts of a panel, in its present state, that stand out too little from their background, one line per fault: the
/// least is 4.5 to 1 by WCAG 2.1. The background is what is really painted under the text; the colours of
/// selected texts and rows are checked even if nothing is selected.
[[nodiscard]] QStringList contrastFaultsOf(PanelWindow& window);

/// The same for the texts of a menu bar and its menus.
[[nodiscard]] QStringList contrastFaultsOfMenus(QMenuBar& bar);

/// The same for the labels and buttons of a message box.
[[nodiscard]] QStringList contrastFaultsOfBox(QWidget& box);

} // namespace ondelis
