#pragma once

#include <QObject>
#include <QString>
#include <functional>

namespace ondelis {

/// Opens a page of the guide in the desktop's browser: that of a panel by its name, "index" for the first one. If that
/// fails, calls `say` with the reason: no guide installed, none of this version, no browser. A missing browser is found
/// a moment later, and not reported once the owner is gone.
void openGuide(QObject& owner, const QString& page, const std::function<void(const QString&)>& say);

} // namespace ondelis
