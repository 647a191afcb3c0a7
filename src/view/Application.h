#pragma once

#include <QApplication>

#include "view/Style.h"

namespace ondelis {

/// Settles what must be settled before the application is made: the widgets' style, so that no other one is made first,
/// and that the user's settings do not ask for an invalid scale.
struct StyleSetup {
    StyleSetup();
};

/// Sets the application up for the toolkit: its style, its name, its words.
class Application final : private StyleSetup, public QApplication {
public:
    Application(int& argc, char** argv);

private:
    /// Makes the toolkit's own words French, whatever the system's language: context menus, and what its dialogs say.
    void installTranslations();
};

} // namespace ondelis
