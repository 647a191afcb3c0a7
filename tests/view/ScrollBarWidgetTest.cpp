#include <QAccessible>
#include <QMdiArea>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include "Program.h"
#include "TestPanel.h"

namespace ondelis {
namespace {

struct Bar {
    const char* name; ///< of the control
    const char* kind;
    int towardsMax; ///< the sign of a move away from the left or upper end
};

void PrintTo(const Bar& bar, std::ostream* out)
{
    *out << bar.kind;
}

/// Bars: `Min` stands at the left or upper end, whichever limit is the larger.
class ScrollBarWidgetTest : public testing::TestWithParam<Bar> {
protected:
    /// Clicks a part of the bar.
    static void click(QScrollBar& bar, QStyle::SubControl part)
    {
        struct Options : QScrollBar {
            using QScrollBar::initStyleOption; // the toolkit's own, which only its subclasses may call
        };
        QStyleOptionSlider option;
        (bar.*&Options::initStyleOption)(&option);
        const QRect at = bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, at.center());
    }

    /// Turns the mouse wheel over a bar; a widget that does not take the event leaves it to its parent.
    static void turnWheel(QScrollBar& bar, int notches)
    {
        const QPoint middle = bar.rect().center();
        QWheelEvent event{middle, bar.mapToGlobal(middle), {}, {0, 120 * notches}, Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false};
        QSpontaneKeyEvent::setSpontaneous(&event); // an event that a program sends goes no further
        QApplication::instance()->notify(&bar, &event);
    }
};

TEST_P(ScrollBarWidgetTest, moves)
{
    const int towardsMax = GetParam().towardsMax;
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& control = dynamic_cast<ScrollBar&>(*panel.find(GetParam().name));
    auto& widget = program.widget<QScrollBar>(control);
    const auto value = [&] { return control.Value.get().value(); };

    click(widget, QStyle::SC_ScrollBarAddLine); // the arrow at the right or lower end
    EXPECT_EQ(value(), 50 + 2 * towardsMax);
    click(widget, QStyle::SC_ScrollBarSubLine);
    EXPECT_EQ(value(), 50);
    click(widget, QStyle::SC_ScrollBarAddPage);
    EXPECT_EQ(value(), 50 + 10 * towardsMax);
    click(widget, QStyle::SC_ScrollBarSubPage);
    EXPECT_EQ(value(), 50);

    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down}) {
        QTest::keyClick(&widget, key);
        EXPECT_EQ(value(), 50 + 2 * towardsMax);
        QTest::keyClick(&widget, key == Qt::Key_Right ? Qt::Key_Left : Qt::Key_Up);
        EXPECT_EQ(value(), 50);
    }
    QTest::keyClick(&widget, Qt::Key_PageDown);
    EXPECT_EQ(value(), 50 + 10 * towardsMax);
    QTest::keyClick(&widget, Qt::Key_PageUp);
    EXPECT_EQ(value(), 50);

    EXPECT_TRUE(widget.hasFocus());
    turnWheel(widget, -1);
    EXPECT_GT((value() - 50) * towardsMax, 0);
    turnWheel(widget, 1);
    EXPECT_EQ(value(), 50);

    QTest::keyClick(&widget, Qt::Key_Home);
    EXPECT_EQ(value(), control.Min.get().value());
    QTest::keyClick(&widget, Qt::Key_End);
    EXPECT_EQ(value(), control.Max.get().value());
}

TEST_F(ScrollBarWidgetTest, theWheelPassesOverABarThatLacksTheKeyboard)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    QMdiArea& area = *program.window(panel).mdiArea();
    program.window(panel).move(0, -200);
    QScrollBar& scrolled = *area.verticalScrollBar();
    EXPECT_TRUE(QTest::qWaitFor([&] { return scrolled.maximum() > scrolled.minimum(); }));
    auto& bar = program.widget<QScrollBar>(panel.VscrA);
    program.widget(panel.TxtA).setFocus();
    panel.events.clear();

    scrolled.setValue(scrolled.minimum());
    turnWheel(bar, -1);
    EXPECT_EQ(panel.VscrA.Value.get().value(), 50);
    EXPECT_EQ(program.desk.focused(), &panel.TxtA);
    EXPECT_GT(scrolled.value(), scrolled.minimum());

    bar.setFocus();
    const int stands = scrolled.value();
    QTest::keyClick(&bar, Qt::Key_End);
    turnWheel(bar, -1);
    EXPECT_EQ(panel.VscrA.Value.get().value(), 100);
    EXPECT_EQ(scrolled.value(), stands);
}

TEST_F(ScrollBarWidgetTest, otherButtonsMoveNoBar)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& bar = program.widget<QScrollBar>(panel.HscrA);
    for (const Qt::MouseButton button : {Qt::MiddleButton, Qt::RightButton})
        for (const QPoint place : {QPoint{3, 5}, QPoint{bar.width() / 4, 5}, QPoint{bar.width() - 3, 5}})
            QTest::mouseClick(bar.window()->windowHandle(), button, {}, bar.mapTo(bar.window(), place));
    EXPECT_EQ(panel.HscrA.Value.get().value(), 50);
    EXPECT_EQ(program.desk.focused(), &panel.TxtA); // the wheel must not move it then either
    QTest::mouseClick(bar.window()->windowHandle(), Qt::LeftButton, {}, bar.mapTo(bar.window(), QPoint{3, 5}));
    EXPECT_EQ(panel.HscrA.Value.get().value(), 48);
    EXPECT_EQ(program.desk.focused(), &panel.HscrA);
}

TEST_F(ScrollBarWidgetTest, theSliderStandsWhereTheValueIs)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] { panel.HscrR.Value = 100; });
    auto& reversed = program.widget<QScrollBar>(panel.HscrR);
    EXPECT_EQ(reversed.sliderPosition(), reversed.minimum());
    program.store([&] { panel.HscrR.Value = -10; });
    EXPECT_EQ(reversed.sliderPosition(), reversed.maximum());
    program.store([&] { panel.HscrR.Max = 40; });
    EXPECT_EQ(panel.HscrR.Value.get().value(), 40);
    EXPECT_EQ(reversed.sliderPosition(), reversed.maximum());
    EXPECT_EQ(reversed.maximum() - reversed.minimum(), 60);
}

TEST_F(ScrollBarWidgetTest, aHandlerMayMoveTheBarElsewhere)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onBar = [&] { panel.HscrA.Value = 0; };
    auto& bar = program.widget<QScrollBar>(panel.HscrA);
    QTest::keyClick(&bar, Qt::Key_Right);
    EXPECT_EQ(panel.HscrA.Value.get().value(), 0);
    EXPECT_EQ(bar.value() - bar.minimum(), 10);
}

TEST_F(ScrollBarWidgetTest, screenReadersAreToldTheValue)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    QAccessibleInterface* const reversed = QAccessible::queryAccessibleInterface(&program.widget(panel.HscrR));
    EXPECT_EQ(reversed->role(), QAccessible::ScrollBar);
    EXPECT_EQ(reversed->valueInterface()->currentValue().toInt(), 50);
    EXPECT_EQ(reversed->valueInterface()->minimumValue().toInt(), -10);
    EXPECT_EQ(reversed->valueInterface()->maximumValue().toInt(), 100);
    reversed->valueInterface()->setCurrentValue(70);
    EXPECT_EQ(panel.HscrR.Value.get().value(), 70);
}

TEST_F(ScrollBarWidgetTest, aBarThatRaisesABoxIsLetGo)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onBar = [&] { panel.MsgBox("Valeur trop grande"); };
    auto& bar = program.widget<QScrollBar>(panel.HscrA);
    Reader reader{{"OK", "OK", "OK"}};
    QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, {bar.width() - 4, bar.height() / 2});
    QTest::qWait(1000); // longer than the delay after which a held arrow repeats
    EXPECT_EQ(reader.seen.size(), 1U);
    EXPECT_EQ(panel.HscrA.Value.get().value(), 52);
}

INSTANTIATE_TEST_SUITE_P(Bars, ScrollBarWidgetTest,
    testing::Values(Bar{"HscrA", "horizontal", 1}, Bar{"HscrR", "horizontal, reversed", -1},
        Bar{"VscrA", "vertical", 1}, Bar{"VscrR", "vertical, reversed", -1}),
    nameOfRow<Bar>);

} // namespace
} // namespace ondelis
