#pragma once

#include <QApplication>

#include "view/Style.h"

namespace ondelis {

/// What must be settled before the application is made: the widgets' style, so that no other one is made first, and
/// that the user's settings ask for no scale which is none.
struct ChosenStyle {
    ChosenStyle();
};

/// The application as the toolkit sees it: its style, its name, its words.
class Application final : private ChosenStyle, public QApplication {
public:
    Application(int& argc, char** argv);

private:
    /// Makes the toolkit's own words French, whatever the system's language: context menus, and what its dialogs say.
    void speakFrench();
};

} // namespace ondelis
