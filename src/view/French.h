#pragma once

#include <QCoreApplication>

namespace ondelis {

/// Makes the toolkit's own words French, whatever the system's language: context menus, and what its dialogs say.
void speakFrench(QCoreApplication& application);

} // namespace ondelis
