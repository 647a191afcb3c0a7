#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace ondelis {

/// The program `galerie`, as a person calls it.
class LooksTest final : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;

    /// Its exit status; `said` gets its error messages.
    int run(const QStringList& panels, QString& said) const
    {
        QProcess process;
        process.start(QStringLiteral(GALERIE), QStringList{folder_.path()} + panels);
        process.waitForFinished(-1);
        said = QString::fromUtf8(process.readAllStandardError());
        return process.exitCode();
    }

    [[nodiscard]] QImage picture(const char* look) const
    {
        return QImage{folder_.filePath(QStringLiteral("CircuitsOscillants-exemple-%1.png").arg(QLatin1String{look}))};
    }

    static bool opensDark(const QImage& panel)
    {
        constexpr int border = 12;
        return qGray(panel.pixel(border, panel.height() - border)) < 128;
    }

private slots:
    void everyPanelIsPicturedInEachLook()
    {
        QString said;
        QCOMPARE(run({"CircuitsOscillants"}, said), 0);
        QVERIFY(!opensDark(picture("96")));
        QVERIFY(opensDark(picture("sombre-96")));
        QCOMPARE(picture("sombre-96").size(), picture("96").size());
        QVERIFY(!opensDark(picture("120")));
        QVERIFY(opensDark(picture("sombre-120")));
        QVERIFY(opensDark(picture("sombre-144")));
        QCOMPARE(picture("120").size(), picture("96").size() * 1.25);
        QCOMPARE(picture("144").size(), picture("96").size() * 1.5);
        QCOMPARE(picture("192").size(), picture("96").size() * 2);
        QCOMPARE(picture("sombre-192").size(), picture("192").size());
        QVERIFY(QFile::exists(folder_.filePath(QStringLiteral("CircuitsOscillants-sombre-96.png"))));
    }

    void thePageShowsWhatIsThere()
    {
        QFile page{folder_.filePath(QStringLiteral("index.html"))};
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QByteArray text = page.readAll();
        QVERIFY(text.contains("<h2>Circuits oscillants et Selfs</h2>"));
        QVERIFY(text.contains("src=\"CircuitsOscillants-exemple-sombre-96.png\""));
        QVERIFY(text.contains("href=\"CircuitsOscillants-120.png\">125 %"));
        QVERIFY(text.contains("href=\"CircuitsOscillants-sombre-120.png\">125 % sombre"));
        QVERIFY(!text.contains("Antennes"));
    }

    void anUnknownPanelIsNamed()
    {
        QString said;
        QCOMPARE(run({"Boussole"}, said), 1);
        QCOMPARE(said, QStringLiteral("galerie: the menu opens no panel Boussole\n"));
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    const QCoreApplication application{argc, argv};
    ondelis::LooksTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "LooksTest.moc"
