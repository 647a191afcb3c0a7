#pragma once

#include <QObject>
#include <QString>
#include <functional>

namespace ondelis {

/// Opens a page of the guide in the desktop's browser: that of a panel by its name, "index" for the first one. Where
/// that cannot be, `say` is told why: no guide installed, none of this version, no browser. That there is no browser
/// shows a moment later; it is not told once the owner is gone.
void openGuide(QObject& owner, const QString& page, const std::function<void(const QString&)>& say);

} // namespace ondelis
