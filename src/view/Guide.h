#pragma once

#include <QString>
#include <QWidget>

namespace ondelis {

/// Opens a page of the guide in the desktop's browser: that of a panel by its name, "index" for the first one. Where
/// that cannot be, a box over the window says why: no guide installed, none of this version, no browser.
void openGuide(QWidget& window, const QString& page);

} // namespace ondelis
