#include <QDir>
#include <QFile>
#include <QMdiSubWindow>
#include <QTemporaryDir>
#include <QUrl>

#include "Program.h"

namespace ondelis {
namespace {

/// The key F1: which page it opens, and what it says if there is none.
class GuideTest : public testing::Test {
protected:
    QTemporaryDir desktop;
    const QByteArray path = qgetenv("PATH");

    /// The desktop's command: it notes what it is to show, and ends as `end` says.
    void installBrowser(const QString& end)
    {
        QFile command{desktop.filePath("xdg-open")};
        ASSERT_TRUE(command.open(QIODevice::WriteOnly));
        command.write(QString{"#!/bin/sh\nprintf %s \"$1\" >'%1'.part\n/bin/mv '%1'.part '%1'\n%2\n"}
                          .arg(desktop.filePath("opened"), end)
                          .toUtf8());
        EXPECT_TRUE(command.setPermissions(QFile::ReadUser | QFile::ExeUser | QFile::WriteUser));
    }

    /// What the browser shows; empty where nothing was opened.
    QString opened() const
    {
        QFile note{desktop.filePath("opened")};
        return note.open(QIODevice::ReadOnly) ? QUrl::fromEncoded(note.readAll()).toLocalFile() : QString{};
    }

    static QDir folder() { return QDir{QCoreApplication::applicationDirPath() + "/../share/doc/ondelis/guide"}; }

    static void install(const QString& page, const QString& version)
    {
        ASSERT_TRUE(folder().mkpath("."));
        QFile file{folder().filePath(page)};
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QString{"<head><meta name=\"ondelis-version\" content=\"%1\"></head>"}.arg(version).toUtf8());
    }

    static void pressF1(Program& program) { QTest::keyClick(&program.view.mainWindow(), Qt::Key_F1); }

    static void saysWhereTheGuideIs()
    {
        install("index.html", QCoreApplication::applicationVersion());
        Program program;
        Reader reader{{"OK"}};
        pressF1(program);
        ASSERT_TRUE(QTest::qWaitFor([&] { return reader.seen.size() == 1; }));
        EXPECT_TRUE(reader.seen[0].text.contains(QDir::cleanPath(folder().filePath("index.html"))));
    }

    void SetUp() override
    {
        folder().removeRecursively();
        QFile::remove(desktop.filePath("opened"));
        installBrowser("exit 0");
        qputenv("PATH", desktop.path().toUtf8());
    }

    void TearDown() override
    {
        qputenv("PATH", path);
        folder().removeRecursively();
    }
};

TEST_F(GuideTest, opensThePageOfTheActivePanel)
{
    install("FormuleDeThomson.html", QCoreApplication::applicationVersion());
    Program program;
    program.pick("MenuThomson"); // its companion stands beside it
    pressF1(program);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return opened() == QDir::cleanPath(folder().filePath("FormuleDeThomson.html")); }));
}

TEST_F(GuideTest, opensTheFirstPageWhereNoPanelIsOpen)
{
    install("index.html", QCoreApplication::applicationVersion());
    Program program;
    pressF1(program);
    EXPECT_TRUE(QTest::qWaitFor([&] { return opened() == QDir::cleanPath(folder().filePath("index.html")); }));
}

TEST_F(GuideTest, saysWhichPackageHasTheGuide)
{
    Program program;
    Reader reader{{"OK"}};
    pressF1(program);
    ASSERT_EQ(reader.seen.size(), 1U);
    EXPECT_EQ(
        reader.seen[0].text, QStringLiteral("Le guide n'est pas installé : il est dans le paquet « ondelis-doc »."));
    EXPECT_EQ(opened(), QString{});
    program.pick("MenuAstable"); // the program goes on
    EXPECT_NE(program.view.mainWindow().findChild<QMdiSubWindow*>(QStringLiteral("Astable")), nullptr);
}

TEST_F(GuideTest, saysThatTheGuideIsOfAnotherVersion)
{
    install("index.html", "1.2.3");
    Program program;
    Reader reader{{"OK"}};
    pressF1(program);
    ASSERT_EQ(reader.seen.size(), 1U);
    EXPECT_TRUE(reader.seen[0].text.contains("1.2.3"));
    EXPECT_TRUE(reader.seen[0].text.contains(QCoreApplication::applicationVersion()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return opened() == QDir::cleanPath(folder().filePath("index.html")); }));
}

TEST_F(GuideTest, saysWhereTheGuideIsIfTheDesktopsCommandFindsNoBrowser)
{
    installBrowser("exit 3");
    saysWhereTheGuideIs();
}

TEST_F(GuideTest, saysWhereTheGuideIsIfTheDesktopHasNoSuchCommand)
{
    ASSERT_TRUE(QFile::remove(desktop.filePath("xdg-open")));
    saysWhereTheGuideIs();
}

TEST_F(GuideTest, waitsForTheAnswerToABox)
{
    install("FiltrePasseBasEnPi.html", QCoreApplication::applicationVersion());
    Program program;
    Reader reader{{"Oui"}};
    reader.meanwhile = [&] { pressF1(program); };
    program.pick("MenuFiltrePasseBasEnPi");
    EXPECT_EQ(opened(), QString{});
    program.view.mainWindow().activateWindow(); // as a window manager does when a box goes
    ASSERT_TRUE(QTest::qWaitForWindowActive(&program.view.mainWindow()));
    pressF1(program);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return opened() == QDir::cleanPath(folder().filePath("FiltrePasseBasEnPi.html")); }));
}

/// The last test, so that its browser is still open when this process ends: nothing may be reported as a leak then.
TEST_F(GuideTest, leavesTheBrowserOpenWhenItEnds)
{
    const QString closed = desktop.filePath("closed");
    installBrowser(QString{"/bin/sleep 2\n: >'%1'"}.arg(closed));
    install("index.html", QCoreApplication::applicationVersion());
    {
        Program program;
        pressF1(program);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !opened().isEmpty(); }));
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(closed); }));

    QFile::remove(desktop.filePath("opened"));
    installBrowser("exec /bin/sleep 2");
    Program program;
    pressF1(program);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !opened().isEmpty(); }));
}

} // namespace
} // namespace ondelis
