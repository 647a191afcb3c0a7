// The minimal program of this kind: a main window of the same size, a menu bar with as many drop-downs as the program's
// and some entries in each, an empty client area.

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>
#include <QScreen>

int main(int argc, char** argv)
{
    const QApplication application{argc, argv};
    QMainWindow window;
    constexpr int dropDowns = 12;
    constexpr int entries = 3;
    for (int i = 0; i < dropDowns; ++i) {
        QMenu* const menu = window.menuBar()->addMenu(QStringLiteral("Menu numéro %1").arg(i));
        for (int j = 0; j < entries; ++j)
            menu->addAction(QStringLiteral("Entrée numéro %1").arg(j));
    }
    window.setCentralWidget(new QMdiArea{&window});

    constexpr double twipsPerInch = 1440;
    const double dpi = window.screen()->logicalDotsPerInch();
    window.resize(qRound(19470 * dpi / twipsPerInch), qRound(15000 * dpi / twipsPerInch));
    window.show();
    return QApplication::exec();
}
