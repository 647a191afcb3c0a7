#pragma once

#include <QApplication>

namespace ondelis {

/// Chooses the widgets' style before the application is made, so that no other one is made first.
struct FusionStyle {
    FusionStyle() { QApplication::setStyle(QStringLiteral("fusion")); }
};

/// The application as the toolkit sees it: its style, its name, its words.
class Application final : private FusionStyle, public QApplication {
public:
    Application(int& argc, char** argv);

private:
    /// Makes the toolkit's own words French, whatever the system's language: context menus, and what its dialogs say.
    void speakFrench();
};

} // namespace ondelis
