#include "view/Application.h"

#include <QLibraryInfo>
#include <QTranslator>
#include <clocale>
#include <cmath>

namespace ondelis {

StyleSetup::StyleSetup()
{
    QApplication::setStyle(new Style);
    // The toolkit accepts any number; with some, windows have no size.
    bool number = false;
    const double scale = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(&number);
    if (number && !(scale > 0 && std::isfinite(scale)))
        qunsetenv("QT_SCALE_FACTOR");
}

Application::Application(int& argc, char** argv) : QApplication{argc, argv}
{
    // Qt has set the C library to the user's locale; the kit writes numbers, by its own region.
    std::setlocale(LC_NUMERIC, "C");
    setApplicationName(QStringLiteral("Ondelis"));
    setApplicationVersion(QStringLiteral(ONDELIS_VERSION));
    setDesktopFileName(QStringLiteral("ondelis"));
    setQuitOnLastWindowClosed(false); // the runtime says when the program is over
    installTranslations();
}

void Application::installTranslations()
{
    auto* const words = new QTranslator{this};
    if (words->load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        installTranslator(words);
}

} // namespace ondelis
