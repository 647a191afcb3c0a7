#include <QApplication>
#include <clocale>

#include "forms/Desk.h"
#include "kit/Region.h"
#include "shell/MDIOndelis.h"
#include "view/French.h"
#include "view/View.h"

int main(int argc, char** argv)
{
    using namespace ondelis;

    setRegion(Region::ofUser());
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setApplicationName(QStringLiteral("Ondelis"));
    QGuiApplication::setDesktopFileName(QStringLiteral("ondelis"));
    QApplication application{argc, argv};
    // Qt has given the C library the user's locale; numbers are written by the kit, which asks its own region.
    std::setlocale(LC_NUMERIC, "C");
    speakFrench(application);

    View view;
    Desk desk{view};
    MDIOndelis frame{desk};
    view.open(frame);
    return view.run();
}
