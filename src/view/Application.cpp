#include "view/Application.h"

#include <QLibraryInfo>
#include <QTranslator>
#include <clocale>
#include <cmath>

namespace ondelis {

ChosenStyle::ChosenStyle()
{
    QApplication::setStyle(new Style);
    // The toolkit takes any number; with some of them no window has a size.
    bool number = false;
    const double scale = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(&number);
    if (number && !(scale > 0 && std::isfinite(scale)))
        qunsetenv("QT_SCALE_FACTOR");
}

Application::Application(int& argc, char** argv) : QApplication{argc, argv}
{
    // Qt has given the C library the user's locale; numbers are written by the kit, which asks its own region.
    std::setlocale(LC_NUMERIC, "C");
    setApplicationName(QStringLiteral("Ondelis"));
    setApplicationVersion(QStringLiteral(ONDELIS_VERSION));
    setDesktopFileName(QStringLiteral("ondelis"));
    setQuitOnLastWindowClosed(false); // the desk says when the program is over
    speakFrench();
}

void Application::speakFrench()
{
    auto* const words = new QTranslator{this};
    if (words->load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        installTranslator(words);
}

} // namespace ondelis
