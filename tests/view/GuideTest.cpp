#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QMdiSubWindow>
#include <QUrl>

#include "Program.h"

namespace ondelis {

/// The key F1: which page it opens, and what it says where there is none.
class GuideTest final : public QObject {
    Q_OBJECT

public slots:
    /// The browser: it notes what it is to show.
    void open(const QUrl& url) { opened_ = url.toLocalFile(); }

private:
    QString opened_;

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
        opened_.clear();
        folder().removeRecursively();
        QDesktopServices::setUrlHandler("file", this, "open");
    }

    void cleanup()
    {
        QDesktopServices::unsetUrlHandler("file");
        folder().removeRecursively();
    }

    void opensThePageOfTheActivePanel()
    {
        install("FormuleDeThomson.html", QCoreApplication::applicationVersion());
        Program program;
        program.pick("MenuThomson"); // its companion stands beside it
        pressF1(program);
        QCOMPARE(opened_, QDir::cleanPath(folder().filePath("FormuleDeThomson.html")));
    }

    void opensTheFirstPageWhereNoPanelIsOpen()
    {
        install("index.html", QCoreApplication::applicationVersion());
        Program program;
        pressF1(program);
        QCOMPARE(opened_, QDir::cleanPath(folder().filePath("index.html")));
    }

    void saysWhichPackageHasTheGuide()
    {
        Program program;
        Reader reader{{"OK"}};
        pressF1(program);
        QCOMPARE(reader.seen.size(), 1U);
        QCOMPARE(reader.seen[0].text,
            QStringLiteral("Le guide n'est pas installé : il est dans le paquet « ondelis-doc »."));
        QCOMPARE(opened_, QString{});
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
        QCOMPARE(opened_, QDir::cleanPath(folder().filePath("index.html")));
    }

    void saysWhereTheGuideIsWithoutABrowser()
    {
        QDesktopServices::unsetUrlHandler("file"); // this platform knows no desktop
        install("index.html", QCoreApplication::applicationVersion());
        Program program;
        Reader reader{{"OK"}};
        pressF1(program);
        QCOMPARE(reader.seen.size(), 1U);
        QVERIFY(reader.seen[0].text.contains(QDir::cleanPath(folder().filePath("index.html"))));
    }

    void waitsForTheAnswerToABox()
    {
        install("FiltrePasseBasEnPi.html", QCoreApplication::applicationVersion());
        Program program;
        Reader reader{{"Oui"}};
        reader.meanwhile = [&] { pressF1(program); };
        program.pick("MenuFiltrePasseBasEnPi");
        QCOMPARE(opened_, QString{});
        program.view.mainWindow().activateWindow(); // as a window manager does when a box goes
        QVERIFY(QTest::qWaitForWindowActive(&program.view.mainWindow()));
        pressF1(program);
        QCOMPARE(opened_, QDir::cleanPath(folder().filePath("FiltrePasseBasEnPi.html")));
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::GuideTest>(argc, argv);
}

#include "GuideTest.moc"
