#include <QDir>
#include <QFile>
#include <QMdiSubWindow>
#include <QTemporaryDir>
#include <QUrl>

#include "Program.h"

namespace ondelis {

/// The key F1: which page it opens, and what it says if there is none.
class GuideTest final : public QObject {
    Q_OBJECT

    QTemporaryDir desktop_;
    const QByteArray path_ = qgetenv("PATH");

    /// The desktop's command: it notes what it is to show, and ends as `end` says.
    void installBrowser(const QString& end)
    {
        QFile command{desktop_.filePath("xdg-open")};
        QVERIFY(command.open(QIODevice::WriteOnly));
        command.write(QString{"#!/bin/sh\nprintf %s \"$1\" >'%1'.part\n/bin/mv '%1'.part '%1'\n%2\n"}
                          .arg(desktop_.filePath("opened"), end)
                          .toUtf8());
        QVERIFY(command.setPermissions(QFile::ReadUser | QFile::ExeUser | QFile::WriteUser));
    }

    /// What the browser shows; empty where nothing was opened.
    QString opened() const
    {
        QFile note{desktop_.filePath("opened")};
        return note.open(QIODevice::ReadOnly) ? QUrl::fromEncoded(note.readAll()).toLocalFile() : QString{};
    }

    static QDir folder() { return QDir{QCoreApplication::applicationDirPath() + "/../share/doc/ondelis/guide"}; }

    static void install(const QString& page, const QString& version)
    {
        QVERIFY(folder().mkpath("."));
        QFile file{folder().filePath(page)};
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QString{"<head><meta name=\"ondelis-version\" content=\"%1\"></head>"}.arg(version).toUtf8());
    }

    static void pressF1(Program& program) { QTest::keyClick(&program.view.mainWindow(), Qt::Key_F1); }

private slots:
    void init()
    {
        folder().removeRecursively();
        QFile::remove(desktop_.filePath("opened"));
        installBrowser("exit 0");
        qputenv("PATH", desktop_.path().toUtf8());
    }

    void cleanup()
    {
        qputenv("PATH", path_);
        folder().removeRecursively();
    }

    void opensThePageOfTheActivePanel()
    {
        install("FormuleDeThomson.html", QCoreApplication::applicationVersion());
        Program program;
        program.pick("MenuThomson"); // its companion stands beside it
        pressF1(program);
        QVERIFY(
            QTest::qWaitFor([&] { return opened() == QDir::cleanPath(folder().filePath("FormuleDeThomson.html")); }));
    }

    void opensTheFirstPageWhereNoPanelIsOpen()
    {
        install("index.html", QCoreApplication::applicationVersion());
        Program program;
        pressF1(program);
        QVERIFY(QTest::qWaitFor([&] { return opened() == QDir::cleanPath(folder().filePath("index.html")); }));
    }

    void saysWhichPackageHasTheGuide()
    {
        Program program;
        Reader reader{{"OK"}};
        pressF1(program);
        QCOMPARE(reader.seen.size(), 1U);
        QCOMPARE(reader.seen[0].text,
            QStringLiteral("Le guide n'est pas installé : il est dans le paquet « ondelis-doc »."));
        QCOMPARE(opened(), QString{});
        program.pick("MenuAstable"); // the program goes on
        QVERIFY(program.view.mainWindow().findChild<QMdiSubWindow*>(QStringLiteral("Astable")) != nullptr);
    }

    void saysThatTheGuideIsOfAnotherVersion()
    {
        install("index.html", "1.2.3");
        Program program;
        Reader reader{{"OK"}};
        pressF1(program);
        QCOMPARE(reader.seen.size(), 1U);
        QVERIFY(reader.seen[0].text.contains("1.2.3"));
        QVERIFY(reader.seen[0].text.contains(QCoreApplication::applicationVersion()));
        QVERIFY(QTest::qWaitFor([&] { return opened() == QDir::cleanPath(folder().filePath("index.html")); }));
    }

    void saysWhereTheGuideIsWithoutABrowser_data()
    {
        QTest::addColumn<bool>("command");
        QTest::newRow("the desktop's command finds none") << true;
        QTest::newRow("the desktop has no such command") << false;
    }

    void saysWhereTheGuideIsWithoutABrowser()
    {
        QFETCH(const bool, command);
        if (command)
            installBrowser("exit 3");
        else
            QVERIFY(QFile::remove(desktop_.filePath("xdg-open")));
        install("index.html", QCoreApplication::applicationVersion());
        Program program;
        Reader reader{{"OK"}};
        pressF1(program);
        QVERIFY(QTest::qWaitFor([&] { return reader.seen.size() == 1U; }));
        QVERIFY(reader.seen[0].text.contains(QDir::cleanPath(folder().filePath("index.html"))));
    }

    void waitsForTheAnswerToABox()
    {
        install("FiltrePasseBasEnPi.html", QCoreApplication::applicationVersion());
        Program program;
        Reader reader{{"Oui"}};
        reader.meanwhile = [&] { pressF1(program); };
        program.pick("MenuFiltrePasseBasEnPi");
        QCOMPARE(opened(), QString{});
        program.view.mainWindow().activateWindow(); // as a window manager does when a box goes
        QVERIFY(QTest::qWaitForWindowActive(&program.view.mainWindow()));
        pressF1(program);
        QVERIFY(
            QTest::qWaitFor([&] { return opened() == QDir::cleanPath(folder().filePath("FiltrePasseBasEnPi.html")); }));
    }

    /// The last test, so that its browser is still open when this process ends: nothing may be reported as a leak then.
    void leavesTheBrowserOpenWhenItEnds()
    {
        const QString closed = desktop_.filePath("closed");
        installBrowser(QString{"/bin/sleep 2\n: >'%1'"}.arg(closed));
        install("index.html", QCoreApplication::applicationVersion());
        {
            Program program;
            pressF1(program);
            QVERIFY(QTest::qWaitFor([&] { return !opened().isEmpty(); }));
        }
        QVERIFY(QTest::qWaitFor([&] { return QFile::exists(closed); }));

        QFile::remove(desktop_.filePath("opened"));
        installBrowser("exec /bin/sleep 2");
        Program program;
        pressF1(program);
        QVERIFY(QTest::qWaitFor([&] { return !opened().isEmpty(); }));
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::GuideTest>(argc, argv);
}

#include "GuideTest.moc"
