#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QStyleOptionTitleBar>

#include "Program.h"
#include "TestPanel.h"
#include "panels/resonance/CircuitsOscillants.h"
#include "shell/Menu.h"
#include "view/ClientArea.h"

namespace ondelis {
namespace {

/// The main window, its menu, and the sub-windows of the panels.
class WindowsTest : public testing::Test {
protected:
    static QPoint closeBoxOf(const QMdiSubWindow& window)
    {
        QStyleOptionTitleBar option;
        option.initFrom(&window);
        option.titleBarFlags = window.windowFlags();
        option.subControls = QStyle::SC_All;
        option.rect.setHeight(window.style()->pixelMetric(QStyle::PM_TitleBarHeight, &option, &window));
        return window.style()
            ->subControlRect(QStyle::CC_TitleBar, &option, QStyle::SC_TitleBarCloseButton, &window)
            .center();
    }

    /// Destroys closed windows.
    static void settle() { QTest::qWait(1); }
};

TEST_F(WindowsTest, theStartMakesNoPanel)
{
    const Program program;
    EXPECT_TRUE(program.desk.loadedPanels().empty());
    EXPECT_TRUE(program.view.mainWindow().area().subWindowList().isEmpty());
    EXPECT_TRUE(program.view.mainWindow().findChildren<QLineEdit*>().isEmpty());
}

TEST_F(WindowsTest, theWholeMenuIsThere)
{
    const Program program;
    const auto drops = program.view.mainWindow().menuBar()->actions();
    EXPECT_EQ(drops.size(), 12);
    EXPECT_EQ(drops.at(2)->text(), QStringLiteral("Circuits oscillants et Selfs"));
    EXPECT_EQ(drops.at(2)->menu()->actions().at(0)->text(), QStringLiteral("Adaptation d'impédance"));
    int entries = 0;
    for (const QAction* drop : drops)
        entries += static_cast<int>(drop->menu()->actions().size());
    EXPECT_EQ(entries, 43);
}

TEST_F(WindowsTest, theMainWindowHasItsOuterSize)
{
    const Program program;
    const QRect frame = program.view.mainWindow().frameGeometry();
    const Scale scale{program.view.mainWindow()};
    EXPECT_EQ(frame.size(), (QSize{scale.pixels(19470), scale.pixels(15000)}));
    EXPECT_EQ(
        program.view.mainWindow().windowTitle(), QStringLiteral("Kervane : Veloris divers V21.5.0 du 20 Janvier 2021"));
}

TEST_F(WindowsTest, theUserResizesTheMainWindow)
{
    Program program;
    program.view.mainWindow().resize(960, 720);
    settle();
    const Scale scale{program.view.mainWindow()};
    EXPECT_EQ(Double{program.frame.Width}.value(), scale.twips(program.view.mainWindow().frameGeometry().width()));
    EXPECT_EQ(Double{program.frame.Height}.value(), scale.twips(program.view.mainWindow().frameGeometry().height()));
    program.pick("MenuCircuitOscillant");
    const auto& panel = program.desk.get<CircuitsOscillants>();
    const QMdiSubWindow& window = program.window(panel);
    const QSize outer = program.view.mainWindow().frameGeometry().size();
    EXPECT_LE(qAbs(window.x() - (outer.width() - window.width()) / 2), 1);
    EXPECT_LE(qAbs(window.y() - (outer.height() - window.height()) / 2), 1);
}

TEST_F(WindowsTest, aPanelHasItsOuterSizeAndKeepsIt)
{
    Program program;
    const auto& panel = program.open<TestPanel>();
    const PanelWindow& window = program.window(panel);
    const Scale scale{window};
    EXPECT_EQ(window.size(), (QSize{scale.pixels(9000), scale.pixels(7200)}));
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    EXPECT_LT(window.form().height(), window.height());
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Panneau d'essai"));
}

TEST_F(WindowsTest, codeMovesAndResizesAPanel)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] {
        panel.Left = 1500;
        panel.Top = 750;
        panel.Width = 6000;
        panel.Caption = "Autre titre";
    });
    const PanelWindow& window = program.window(panel);
    const Scale scale{window};
    EXPECT_EQ(window.pos(), (QPoint{scale.pixels(1500), scale.pixels(750)}));
    EXPECT_EQ(window.width(), scale.pixels(6000));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Autre titre"));
}

TEST_F(WindowsTest, theUserDragsAPanel)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    PanelWindow& window = program.window(panel);
    const QPoint title{window.width() / 2, 10};
    const QPoint before = window.pos();
    QWindow* const screen = program.view.mainWindow().windowHandle();
    const QPoint start = window.mapTo(&program.view.mainWindow(), title);
    QTest::mousePress(screen, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(screen, start + QPoint{40, 24});
    QTest::mouseRelease(screen, Qt::LeftButton, Qt::NoModifier, start + QPoint{40, 24});
    const Scale scale{window};
    EXPECT_EQ(window.pos(), before + (QPoint{40, 24}));
    EXPECT_EQ(scale.pixels(Double{panel.Left}.value()), window.x());
    EXPECT_EQ(scale.pixels(Double{panel.Top}.value()), window.y());
}

TEST_F(WindowsTest, theAreaScrollsToAPanelBeyondIt)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] { panel.Left = 15000; });
    QScrollBar& bar = *program.view.mainWindow().area().horizontalScrollBar();
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.maximum() > 0; }));
    bar.setValue(bar.maximum());
    PanelWindow& window = program.window(panel);
    EXPECT_LE(window.geometry().right(), program.view.mainWindow().area().viewport()->width());
    EXPECT_EQ(Double{panel.Left}.value(), 15000.0);
    program.store([&] { panel.Left = 300; });
    EXPECT_EQ(window.x() + bar.value(), Scale{window}.pixels(300));
}

TEST_F(WindowsTest, theCloseBoxUnloadsAPanel)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    QTest::keyClicks(&program.widget(panel.TxtA), QStringLiteral("1"));
    const QPointer<PanelWindow> window = &program.window(panel);
    const QPoint closeBox = window->mapTo(&program.view.mainWindow(), closeBoxOf(*window));
    QTest::mouseMove(program.view.mainWindow().windowHandle(), closeBox);
    QTest::mouseClick(program.view.mainWindow().windowHandle(), Qt::LeftButton, Qt::NoModifier, closeBox);
    EXPECT_FALSE(panel.loaded());
    settle();
    EXPECT_EQ(window, nullptr);
    program.open<TestPanel>();
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtA).text(), QString{});
}

TEST_F(WindowsTest, aKeyClosesTheActivePanel)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    QTest::keyClick(&program.widget(panel.TxtA), Qt::Key_F4, Qt::ControlModifier);
    EXPECT_FALSE(panel.loaded());
}

TEST_F(WindowsTest, aHiddenPanelKeepsItsControls)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    QTest::keyClicks(&program.widget(panel.TxtA), QStringLiteral("1"));
    program.store([&] { panel.Hide(); });
    EXPECT_FALSE(program.window(panel).isVisible());
    program.store([&] { panel.Show(); });
    EXPECT_TRUE(program.window(panel).isVisible());
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtA).text(), QStringLiteral("1"));
}

TEST_F(WindowsTest, aLoadedPanelThatIsHiddenHasNoWidgets)
{
    Program program;
    auto& panel = program.desk.get<TestPanel>();
    program.store([&] { panel.Hide(); });
    EXPECT_TRUE(panel.loaded());
    EXPECT_EQ(program.view.find(panel), nullptr);
}

TEST_F(WindowsTest, openingAgainAndAgainLeavesNoWidgetBehind)
{
    Program program;
    program.pick("MenuCircuitOscillant");
    program.window(program.desk.get<CircuitsOscillants>()).close();
    settle();
    const auto before = QApplication::allWidgets().size();
    for (int round = 0; round < 100; ++round) {
        program.pick("MenuCircuitOscillant");
        EXPECT_EQ(program.view.mainWindow().area().subWindowList().size(), 1);
    }
    program.window(program.desk.get<CircuitsOscillants>()).close();
    settle();
    EXPECT_EQ(QApplication::allWidgets().size(), before);
    EXPECT_TRUE(program.view.mainWindow().area().subWindowList().isEmpty());
}

TEST_F(WindowsTest, openingAllPanelsLeavesNoWidgetBehind)
{
    const BoxCloser closer;
    Program program;
    const auto openAll = [&] {
        for (const MenuEntry* entry : panelEntries())
            program.pick(entry->control);
        settle();
        return QApplication::allWidgets().size();
    };
    const auto before = openAll();
    for (int round = 0; round < 5; ++round)
        EXPECT_EQ(openAll(), before);
}

TEST_F(WindowsTest, labelsArePlainText)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] { panel.LblA.Caption = "<b>R</b> & C"; });
    const auto& label = program.widget<QLabel>(panel.LblA);
    EXPECT_EQ(label.text(), QStringLiteral("<b>R</b> & C"));
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.buddy(), nullptr);
}

TEST_F(WindowsTest, theWindowMenuIsFrench)
{
    Program program;
    const auto& panel = program.open<TestPanel>();
    const auto actions = program.window(panel).systemMenu()->actions();
    EXPECT_EQ(actions.size(), 1);
    EXPECT_TRUE(actions.at(0)->text().remove(QLatin1Char{'&'}).startsWith(QStringLiteral("Fermer")));
}

TEST_F(WindowsTest, darkColorsStayReadable)
{
    const QPalette light = QApplication::palette();
    QPalette dark{QColor{45, 45, 45}};
    QApplication::setPalette(dark);
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        const auto& result = program.widget(panel.TxtB);
        EXPECT_LT(result.palette().color(QPalette::Base).lightness(), 128); // pale on light palettes
        EXPECT_EQ(result.palette().color(QPalette::Text), QColor(Qt::white));
        const auto& label = program.widget(panel.LblA);
        EXPECT_GT(label.palette().color(QPalette::WindowText).lightness(), 200);
        program.store([&] { panel.OptX.ForeColor = 0x800000; }); // a dark blue
        const QColor option = program.widget(panel.OptX).palette().color(QPalette::WindowText);
        EXPECT_GT(option.lightness(), 80);
        QApplication::setPalette(light);
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return program.widget(panel.OptX).palette().color(QPalette::WindowText) == QColor(0, 0, 0x80); }));
    }
    QApplication::setPalette(light);
}

} // namespace
} // namespace ondelis
