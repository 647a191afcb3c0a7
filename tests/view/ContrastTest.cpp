#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QToolButton>
#include <algorithm>

#include "Contrast.h"
#include "Desktop.h"
#include "PanelSession.h"
#include "Program.h"
#include "TestPanel.h"
#include "view/Colors.h"

namespace ondelis {
namespace {

/// Every text can be read, on light windows and on dark ones, of which the parameter says which.
class ContrastTest : public testing::TestWithParam<bool> {
protected:
    static ScopedDesktop palette(bool dark) { return {QStringLiteral("DejaVu Sans"), 9, dark}; }

    static void report(const QStringList& faults)
    {
        EXPECT_TRUE(faults.isEmpty()) << qPrintable(faults.join(QLatin1Char{'\n'}));
    }

    /// Gives a widget text of nearly the colour of its ground.
    static void spoil(QWidget& widget, QPalette::ColorRole text, QPalette::ColorRole ground)
    {
        QPalette palette = widget.palette();
        palette.setColor(text, palette.color(ground).darker(110));
        widget.setPalette(palette);
    }
};

TEST_F(ContrastTest, contrastIsThatOfTheGuidelines)
{
    EXPECT_EQ(contrast(Qt::black, Qt::white), 21.0);
    EXPECT_EQ(contrast(Qt::white, Qt::white), 1.0);
    EXPECT_NEAR(contrast(QColor{0x767676}, Qt::white), 4.54, 0.005);
    EXPECT_NEAR(contrast(QColor{0x777777}, Qt::white), 4.48, 0.005);
    EXPECT_NEAR(contrast(Qt::red, Qt::white), 4.00, 0.005);
}

TEST_F(ContrastTest, colorsChangeOnlyAsFarAsTheyMust)
{
    EXPECT_EQ(readable(Qt::blue, Qt::white), QColor{Qt::blue});
    for (const QColor& ground : {QColor{0xC0FFFF}, QColor{0x353535}, QColor{0x808080}, QColor{0xEFEFEF}})
        for (const QColor& text : {QColor{0xFF80FF}, QColor{0xFF0000}, QColor{0x0000FF}, ground}) {
            const double before = contrast(text, ground);
            const double after = contrast(readable(text, ground), ground);
            EXPECT_GE(after, 4.5);
            EXPECT_TRUE(before >= 4.5 ? after == before : after < 4.9);
        }
}

TEST_F(ContrastTest, theCheckFindsEachFault)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] { panel.LstR.ListIndex = 0; });
    spoil(program.widget(panel.LblA), QPalette::WindowText, QPalette::Window);
    spoil(program.widget(panel.TxtB), QPalette::Text, QPalette::Base);
    spoil(program.widget(panel.TxtC), QPalette::HighlightedText, QPalette::Highlight);
    spoil(program.widget(panel.LstU), QPalette::Text, QPalette::Base);
    spoil(program.widget(panel.LstR), QPalette::HighlightedText, QPalette::Highlight);
    spoil(program.widget(panel.OptX), QPalette::WindowText, QPalette::Window);
    spoil(program.widget(panel.BtnGo), QPalette::ButtonText, QPalette::Button);
    spoil(program.widget(panel.TxtM), QPalette::Text, QPalette::Base);
    spoil(program.widget(panel.Frame1), QPalette::WindowText, QPalette::Window);
    QStringList found;
    for (const QString& fault : contrastFaultsOf(program.window(panel)))
        found.append(fault.section(QLatin1Char{':'}, 0, 0).section(QLatin1Char{'.'}, 1));
    found.removeDuplicates();
    const QStringList expected{QStringLiteral("LblA"), QStringLiteral("TxtB"), QStringLiteral("TxtC"),
        QStringLiteral("LstU"), QStringLiteral("LstR"), QStringLiteral("OptX"), QStringLiteral("BtnGo"),
        QStringLiteral("TxtM"), QStringLiteral("Frame1")};
    EXPECT_EQ(found, expected);
}

TEST_F(ContrastTest, theCheckSeesWhatIsPaintedUnderAText)
{
    Program program;
    const auto& panel = program.open<TestPanel>();
    QWidget under{&program.window(panel).form()};
    under.setGeometry(program.widget(panel.LblA).geometry());
    under.setAutoFillBackground(true);
    under.setPalette(QPalette{Qt::darkGray, Qt::darkGray});
    under.show();
    program.widget(panel.LblA).raise();
    EXPECT_TRUE(contrastFaultsOf(program.window(panel)).isEmpty());
    under.setPalette(QPalette{Qt::black, Qt::black});
    const QStringList faults = contrastFaultsOf(program.window(panel));
    EXPECT_EQ(faults.size(), 1);
    EXPECT_TRUE(faults.first().startsWith(QStringLiteral("TestPanel.LblA")));
}

TEST_F(ContrastTest, theCheckFindsAPoorTitleAndMenu)
{
    const ScopedDesktop look = palette(false);
    QPalette poor = QApplication::palette();
    poor.setColor(QPalette::Text, poor.color(QPalette::Base));
    QApplication::setPalette(poor);
    Program program;
    EXPECT_GT(contrastFaultsOfMenus(*program.view.mainWindow().menuBar()).size(), 40);
    program.open<TestPanel>();
    program.pick("MenuThomson"); // two panels, one of which has no keyboard
    const QStringList faults = contrastFaultsOf(program.window(*program.runtime.loadedPanels().front()))
        + contrastFaultsOf(program.window(*program.runtime.loadedPanels().back()));
    EXPECT_FALSE(faults.filter(QStringLiteral("(title)")).isEmpty());
}

TEST_F(ContrastTest, aPropertyKeepsAColorThatIsNotReadable)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] {
        panel.TxtB.BackColor = 0xFFFFC0;
        panel.TxtB.ForeColor = 0xFF80FF;
    });
    EXPECT_EQ(panel.TxtB.ForeColor.get(), 0xFF80FFU);
    const QPalette shown = program.widget(panel.TxtB).palette();
    EXPECT_EQ(shown.color(QPalette::Base), QColor(0xC0, 0xFF, 0xFF));
    EXPECT_EQ(shown.color(QPalette::Text), readable(QColor{0xFF, 0x80, 0xFF}, QColor{0xC0, 0xFF, 0xFF}));
}

TEST_F(ContrastTest, colorsAreInvertedOnDarkPalettes)
{
    const ScopedDesktop look = palette(true);
    const QPalette system = QApplication::palette();
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] {
        panel.TxtA.BackColor = 0xFFFFFF;
        panel.TxtB.BackColor = 0xFFFFC0;
        panel.TxtC.ForeColor = 0;
    });
    const auto color = [&](const Control& control, QPalette::ColorRole role) {
        return program.widget(control).palette().color(role);
    };
    EXPECT_EQ(color(panel.TxtA, QPalette::Base), system.color(QPalette::Base));
    EXPECT_EQ(color(panel.TxtC, QPalette::Text), QColor{Qt::white});
    const QColor result = color(panel.TxtB, QPalette::Base);
    EXPECT_LT(result.lightness(), 128);
    EXPECT_EQ(result.hue(), QColor(0xC0, 0xFF, 0xFF).hue());
    EXPECT_EQ(panel.TxtB.BackColor.get(), 0xFFFFC0U);
}

TEST_F(ContrastTest, aHueIsKeptOnDarkPalettes)
{
    const ScopedDesktop look = palette(true);
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] {
        panel.TxtA.BackColor = 0xFFFFC0;
        panel.TxtB.BackColor = 0xFFFFC0;
        panel.TxtB.ForeColor = 0xFF0000;
    });
    EXPECT_EQ(program.widget(panel.TxtA).palette().color(QPalette::Text), QColor{Qt::white});
    const QColor blue = program.widget(panel.TxtB).palette().color(QPalette::Text);
    EXPECT_EQ(blue.hue(), QColor{Qt::blue}.hue());
    EXPECT_GT(blue.blue() - blue.red(), 80);
}

TEST_F(ContrastTest, allColoredFieldsHaveWhiteTextOnDarkPalettes)
{
    const ScopedDesktop look = palette(true);
    Program program;
    auto& panel = program.open<TestPanel>();
    for (const Color ground : {0xFFFFC0U, 0xFFFF80U, 0xFFFF00U, 0xC0FFC0U, 0xC0E0FFU, 0xE0E0E0U}) {
        program.store([&] { panel.TxtB.BackColor = ground; });
        const QPalette shown = program.widget(panel.TxtB).palette();
        EXPECT_EQ(shown.color(QPalette::Text), QColor{Qt::white});
        EXPECT_GE(contrast(Qt::white, shown.color(QPalette::Base)), 4.5);
    }
}

TEST_P(ContrastTest, theCloseBoxIsSeen)
{
    const ScopedDesktop look = palette(GetParam());
    Program program;
    program.pick("MenuThomson"); // two panels, one of which has no keyboard
    for (const FeuilleCalcul* panel : program.runtime.loadedPanels())
        report(contrastFaultsOf(program.window(*panel)));
}

TEST_P(ContrastTest, theSliderIsSeen)
{
    const ScopedDesktop look = palette(GetParam());
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& bar = program.widget<QScrollBar>(panel.HscrA);
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Horizontal;
    option.state |= QStyle::State_Horizontal;
    option.maximum = bar.maximum();
    option.sliderPosition = bar.sliderPosition();
    option.sliderValue = bar.value();
    option.pageStep = bar.pageStep();
    const QRect slider = bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar);
    EXPECT_TRUE(slider.left() > bar.height() + 8 && slider.right() < bar.width() - bar.height() - 8);
    const QImage image = bar.grab().toImage();
    const QColor ground = image.pixelColor(slider.left() - 8, slider.center().y());
    EXPECT_GE(contrast(image.pixelColor(slider.left(), slider.center().y()), ground), lineContrast);
    EXPECT_GE(contrast(image.pixelColor(slider.right(), slider.center().y()), ground), lineContrast);
}

TEST_P(ContrastTest, theMarkOfMenusWithoutRoomIsSeen)
{
    const ScopedDesktop look = palette(GetParam());
    Program program;
    QMenuBar& bar = *program.view.mainWindow().menuBar();
    program.view.mainWindow().resize(500, 400);
    auto* const mark = bar.findChild<QToolButton*>();
    ASSERT_TRUE(mark != nullptr && QTest::qWaitFor([&] { return mark->isVisible(); }));
    const QImage image = mark->grab().toImage();
    double most = 0;
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y)
            most = std::max(most, contrast(image.pixelColor(x, y), image.pixelColor(1, 1)));
    EXPECT_GE(most, lineContrast);
}

TEST_P(ContrastTest, menus)
{
    const ScopedDesktop look = palette(GetParam());
    const Program program;
    report(contrastFaultsOfMenus(*program.view.mainWindow().menuBar()));
}

TEST_P(ContrastTest, boxes)
{
    const ScopedDesktop look = palette(GetParam());
    Program program;
    Reader reader{{QStringLiteral("Oui")}};
    QStringList faults;
    bool looked = false;
    reader.meanwhile = [&] {
        QWidget& box = *QApplication::activeModalWidget();
        looked = box.findChildren<QLabel*>().size() > 0 && box.findChildren<QPushButton*>().size() == 2;
        faults = contrastFaultsOfBox(box);
    };
    auto& panel = program.open<TestPanel>();
    panel.onGo = [&] { panel.MsgBox("Continuer ?", 4, "Question"); };
    program.store([&] { panel.BtnGo.Value = true; });
    EXPECT_TRUE(looked);
    report(faults);
}

TEST_P(ContrastTest, panels)
{
    const ScopedDesktop look = palette(GetParam());
    QStringList faults;
    PanelSession session;
    for (const MenuEntry* entry : panelEntries()) {
        session.open(*entry);
        session.choose([&](PanelWindow& window) { faults += contrastFaultsOf(window); });
    }
    faults.removeDuplicates();
    report(faults);
}

INSTANTIATE_TEST_SUITE_P(Desktops, ContrastTest, testing::Bool(),
    [](const testing::TestParamInfo<bool>& row) { return row.param ? "dark" : "light"; });

} // namespace
} // namespace ondelis
