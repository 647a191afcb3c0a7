#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>

#include "Program.h"
#include "TestPanel.h"
#include "panels/resonance/CalculNombreSpires.h"
#include "shell/Menu.h"
#include "view/ClientArea.h"

namespace ondelis {
namespace {

/// The program on the screen of a small laptop, 1366 by 768 pixels, which the frame does not fit on.
class SmallScreenTest : public testing::TestWithParam<const MenuEntry*> {
protected:
    void SetUp() override
    {
        if (QGuiApplication::primaryScreen()->size() != QSize{1366, 768})
            GTEST_SKIP() << "this is another screen";
    }

    static QRect onScreen(const QWidget& widget) { return {widget.mapToGlobal(QPoint{}), widget.size()}; }

    /// What can be seen of the client area.
    static QRect seen(const Program& program)
    {
        return onScreen(*program.view.mainWindow().area().viewport()) & program.view.mainWindow().screen()->geometry();
    }

    /// The controls that do not come into sight when they get the keyboard.
    static QStringList controlsOutOfSight(const Program& program)
    {
        QStringList faults;
        for (const FeuilleCalcul* panel : program.desk.loadedPanels())
            for (const Control* control : panel->controls()) {
                if (!control->focusable())
                    continue;
                QWidget& widget = program.widget(*control);
                widget.setFocus(Qt::TabFocusReason);
                if (!seen(program).contains(onScreen(widget)))
                    faults.append(toQString(panel->design().name + "." + control->name()));
            }
        return faults;
    }

    /// The panels of which some part is not seen, wherever the client area is scrolled to.
    static QStringList panelsOutOfSight(const Program& program)
    {
        QScrollBar& across = *program.view.mainWindow().area().horizontalScrollBar();
        QScrollBar& down = *program.view.mainWindow().area().verticalScrollBar();
        QStringList faults;
        for (const FeuilleCalcul* panel : program.desk.loadedPanels()) {
            const PanelWindow& window = program.window(*panel);
            across.setValue(across.minimum());
            down.setValue(down.minimum());
            const bool start = seen(program).contains(onScreen(window).topLeft());
            across.setValue(across.maximum());
            down.setValue(down.maximum());
            if (!start || !seen(program).contains(onScreen(window).bottomRight()))
                faults.append(toQString(panel->design().name));
        }
        return faults;
    }
};

TEST_F(SmallScreenTest, theFrameIsAsLargeAsItSays)
{
    const Program program;
    const MainWindow& window = program.view.mainWindow();
    EXPECT_EQ(window.frameGeometry(), (QRect{34, -116, 1298, 1000}));
    EXPECT_EQ(Double{program.frame.Height}.value(), 15000.0);
    EXPECT_LT(Double{program.frame.Top}.value(), 0);
}

TEST_F(SmallScreenTest, menuAndClientAreaAreSeen)
{
    const Program program;
    const MainWindow& window = program.view.mainWindow();
    const QRect screen = window.screen()->geometry();
    EXPECT_TRUE(screen.contains(onScreen(*window.menuBar())));
    EXPECT_TRUE(screen.contains(onScreen(window.area())));
    EXPECT_GT(window.area().height(), 700);
}

TEST_F(SmallScreenTest, theyComeWithTheWindow)
{
    const Program program;
    MainWindow& window = program.view.mainWindow();
    window.move(window.x(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.menuBar()->y() == 0; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.screen()->geometry().contains(onScreen(window.area())); }));
    window.resize(800, 600);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.contentsMargins() == QMargins{}; }));
    window.move(-100, 400); // it fits on the screen: the user may put it anywhere
    EXPECT_EQ(window.contentsMargins(), QMargins{});
}

TEST_P(SmallScreenTest, everythingCanBeReached)
{
    const BoxCloser closer;
    Program program;
    MainWindow& window = program.view.mainWindow();
    program.pick(GetParam()->control);
    window.activateWindow(); // a box may have been before it, and there is no window manager
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(controlsOutOfSight(program), QStringList{});
    EXPECT_EQ(panelsOutOfSight(program), QStringList{});
    window.setGeometry(100, 100, 800, 600);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.contentsMargins() == QMargins{}; }));
    EXPECT_EQ(controlsOutOfSight(program), QStringList{});
    EXPECT_EQ(panelsOutOfSight(program), QStringList{});
}

TEST_F(SmallScreenTest, aPanelComesIntoSightAsItOpens)
{
    Program program;
    auto& panel = program.desk.get<TestPanel>();
    panel.onLoad = [&] { panel.Left = 24000; };
    program.open<TestPanel>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return seen(program).contains(onScreen(program.widget(panel.TxtA))); }));
    EXPECT_EQ(Double{panel.Left}.value(), 24000.0);
}

TEST_F(SmallScreenTest, theKeyboardStaysInSightInASmallWindow)
{
    Program program;
    MainWindow& window = program.view.mainWindow();
    window.setGeometry(100, 100, 800, 600);
    program.pick("MenuThomson");
    const auto seenWhole = [&] { return seen(program).contains(onScreen(*QApplication::focusWidget())); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.view.mainWindow().area().verticalScrollBar()->isVisible(); }));
    EXPECT_TRUE(QTest::qWaitFor(seenWhole));
    window.resize(600, 500);
    EXPECT_TRUE(QTest::qWaitFor(seenWhole));
}

TEST_F(SmallScreenTest, whatWasClickedStaysInSightToo)
{
    Program program;
    MainWindow& window = program.view.mainWindow();
    window.setGeometry(100, 100, 1200, 700);
    program.pick("MenuThomson");
    const auto& companion = program.desk.get<CalculNombreSpires>();
    QWidget& field = program.widget(companion.TxtS);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, field.mapTo(&window, field.rect().center()));
    EXPECT_TRUE(field.hasFocus());
    window.resize(500, 400);
    EXPECT_TRUE(QTest::qWaitFor([&] { return seen(program).contains(onScreen(field)); }));
}

TEST_F(SmallScreenTest, theWindowKeepsItsSizeWhereverItIs)
{
    const Program program;
    MainWindow& window = program.view.mainWindow();
    window.resize(1500, 900); // larger than the screen
    for (const QPoint place : {QPoint{1350, 100}, {-1490, 100}, {100, 760}, {100, -890}, {5000, 5000}, {0, 0}}) {
        window.move(place);
        QTest::qWait(10);
        EXPECT_EQ(window.size(), (QSize{1500, 900}));
    }
}

TEST_F(SmallScreenTest, nothingMovesUnderTheMouse)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] { panel.Left = 14000; }); // the second list is cut by the edge
    auto& list = program.widget(panel.LstR);
    EXPECT_FALSE(seen(program).contains(onScreen(list)));
    const QPoint place = onScreen(list).topLeft();
    EXPECT_TRUE(seen(program).contains(place));
    QWindow* const window = program.view.mainWindow().windowHandle();
    const QPoint press = window->mapFromGlobal(place) + QPoint{3, 3};
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, press);
    EXPECT_TRUE(list.hasFocus());
    EXPECT_EQ(onScreen(list).topLeft(), place);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, press);
    EXPECT_EQ(panel.LstR.ListIndex.get().value(), 0);
}

INSTANTIATE_TEST_SUITE_P(Panels, SmallScreenTest, testing::ValuesIn(panelEntries()), nameOfRow<const MenuEntry*>);

} // namespace
} // namespace ondelis
