#pragma once

#include <QApplication>

#include "view/Style.h"

namespace ondelis {

/// Chooses the widgets' style before the application is made, so that no other one is made first.
struct ChosenStyle {
    ChosenStyle() { QApplication::setStyle(new Style); }
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
