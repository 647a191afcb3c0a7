#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <memory>

#include "Support.h"

namespace ondelis {
namespace {

/// The program `galerie`, as a person calls it.
class LooksTest : public testing::Test {
protected:
    struct Outcome {
        int status;
        QString said; ///< on standard error
    };

    static Outcome run(const QStringList& panels)
    {
        QProcess process;
        process.start(QStringLiteral(GALERIE), QStringList{folder->path()} + panels);
        process.waitForFinished(-1);
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
    }

    /// Draws one panel, for all tests.
    static void SetUpTestSuite()
    {
        folder = std::make_unique<QTemporaryDir>();
        const Outcome outcome = run({"CircuitsOscillants"});
        ASSERT_EQ(outcome.status, 0) << qPrintable(outcome.said);
    }
    static void TearDownTestSuite() { folder.reset(); }

    static QImage picture(const char* look)
    {
        return QImage{folder->filePath(QStringLiteral("CircuitsOscillants-exemple-%1.png").arg(QLatin1String{look}))};
    }

    static bool opensDark(const QImage& panel)
    {
        constexpr int border = 12;
        return qGray(panel.pixel(border, panel.height() - border)) < 128;
    }

    static inline std::unique_ptr<QTemporaryDir> folder;
};

TEST_F(LooksTest, everyPanelIsPicturedInEachLook)
{
    EXPECT_FALSE(opensDark(picture("96")));
    EXPECT_TRUE(opensDark(picture("sombre-96")));
    EXPECT_EQ(picture("sombre-96").size(), picture("96").size());
    EXPECT_FALSE(opensDark(picture("120")));
    EXPECT_TRUE(opensDark(picture("sombre-120")));
    EXPECT_TRUE(opensDark(picture("sombre-144")));
    EXPECT_EQ(picture("120").size(), picture("96").size() * 1.25);
    EXPECT_EQ(picture("144").size(), picture("96").size() * 1.5);
    EXPECT_EQ(picture("192").size(), picture("96").size() * 2);
    EXPECT_EQ(picture("sombre-192").size(), picture("192").size());
    EXPECT_TRUE(QFile::exists(folder->filePath(QStringLiteral("CircuitsOscillants-sombre-96.png"))));
}

TEST_F(LooksTest, thePageShowsWhatIsThere)
{
    QFile page{folder->filePath(QStringLiteral("index.html"))};
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QByteArray text = page.readAll();
    EXPECT_TRUE(text.contains("<h2>Circuits oscillants et Selfs</h2>"));
    EXPECT_TRUE(text.contains("src=\"CircuitsOscillants-exemple-sombre-96.png\""));
    EXPECT_TRUE(text.contains("href=\"CircuitsOscillants-120.png\">125 %"));
    EXPECT_TRUE(text.contains("href=\"CircuitsOscillants-sombre-120.png\">125 % sombre"));
    EXPECT_FALSE(text.contains("Antennes"));
}

TEST_F(LooksTest, anUnknownPanelIsNamed)
{
    const Outcome outcome = run({"Boussole"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.said, QStringLiteral("galerie: the menu opens no panel Boussole\n"));
}

} // namespace
} // namespace ondelis
