// Pictures of the panels as they open, in the real view.
//
//     galerie FOLDER [PANEL ...]
//
// Writes FOLDER/PANEL-96.png and FOLDER/PANEL-192.png for each panel of the menu, or for those that are named, and
// FOLDER/Ondelis-96.png and -192.png, the main window with the first of them.

#include <QAbstractButton>
#include <QDir>
#include <QMessageBox>
#include <QProcess>
#include <QTextStream>
#include <QTimer>
#include <utility>

#include "forms/Desk.h"
#include "shell/MDIOndelis.h"
#include "shell/Menu.h"
#include "view/Application.h"
#include "view/ControlWidget.h"
#include "view/MainWindow.h"
#include "view/PanelWindow.h"
#include "view/View.h"

namespace {

using namespace ondelis;

/// Qt fixes the logical resolution at its start: each one takes a process of its own.
constexpr const char* resolutionVariable = "QT_FONT_DPI";

/// Lets the windows be laid out and painted.
void settle()
{
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
}

/// Answers the box that a panel shows as it opens, by "Oui" or "OK".
void answerBox()
{
    const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr)
        return;
    for (QAbstractButton* button : box->buttons())
        if (box->buttonRole(button) != QMessageBox::NoRole)
            button->click();
}

bool save(QWidget& widget, const QDir& folder, const QString& name)
{
    const QString file
        = folder.filePath(QStringLiteral("%1-%2.png").arg(name, qEnvironmentVariable(resolutionVariable)));
    if (widget.grab().save(file)) {
        QTextStream{stdout} << file << '\n';
        return true;
    }
    QTextStream{stderr} << "galerie: cannot write " << file << '\n';
    return false;
}

/// Opens one entry of the menu after the other and saves what it brings on screen.
int draw(const QDir& folder, const QStringList& wanted)
{
    View view;
    Desk desk{view};
    MDIOndelis frame{desk};
    view.open(frame);
    QTimer boxes;
    QObject::connect(&boxes, &QTimer::timeout, answerBox);
    boxes.start(10);

    bool allSaved = true;
    bool framed = false;
    QStringList saved;
    for (const Menu& menu : menuTree()) {
        for (const MenuEntry& entry : menu.entries) {
            if (entry.control == "MenuQuitter" || entry.steps.empty())
                continue;
            view.act([&](User&) { frame.click(entry); });
            settle();
            for (const FeuilleCalcul* panel : desk.loadedPanels()) {
                const QString name = toQString(panel->design().name);
                PanelWindow* const window = view.find(*panel);
                if (window == nullptr || saved.contains(name) || !(wanted.isEmpty() || wanted.contains(name)))
                    continue;
                saved.append(name);
                allSaved = save(*window, folder, name) && allSaved;
                if (!std::exchange(framed, true))
                    allSaved = save(view.mainWindow(), folder, QStringLiteral("Ondelis")) && allSaved;
            }
        }
    }
    for (const QString& name : wanted) {
        if (saved.contains(name))
            continue;
        QTextStream{stderr} << "galerie: the menu opens no panel " << name << '\n';
        allSaved = false;
    }
    return allSaved ? 0 : 1;
}

/// Runs the program again for one resolution.
int drawAt(const QString& resolution, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String{resolutionVariable}, resolution);
    if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM")))
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(), arguments);
    process.waitForFinished(-1);
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        QTextStream{stderr} << "usage: galerie FOLDER [PANEL ...]\n";
        return 2;
    }
    if (!qEnvironmentVariableIsSet(resolutionVariable)) {
        const QCoreApplication application{argc, argv};
        const QStringList arguments = QCoreApplication::arguments().mid(1);
        const int small = drawAt(QStringLiteral("96"), arguments);
        const int large = drawAt(QStringLiteral("192"), arguments);
        return small != 0 ? small : large;
    }
    const Application application{argc, argv};
    const QDir folder{QApplication::arguments().at(1)};
    if (!folder.mkpath(QStringLiteral("."))) {
        QTextStream{stderr} << "galerie: cannot make " << folder.path() << '\n';
        return 1;
    }
    return draw(folder, QApplication::arguments().mid(2));
}
