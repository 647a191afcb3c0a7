#include <QAccessible>
#include <QMdiArea>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include "Program.h"
#include "TestPanel.h"

namespace ondelis {

/// Bars: `Min` stands at the left or upper end, whichever limit is the larger.
class ScrollBarsTest final : public QObject {
    Q_OBJECT

    /// Clicks a part of the bar.
    static void click(QScrollBar& bar, QStyle::SubControl part)
    {
        struct Bar : QScrollBar {
            using QScrollBar::initStyleOption; // the toolkit's own, which only its subclasses may call
        };
        QStyleOptionSlider option;
        (bar.*&Bar::initStyleOption)(&option);
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

    static ScrollBar& barOf(TestPanel& panel, const QString& name)
    {
        return dynamic_cast<ScrollBar&>(*panel.find(name.toStdString()));
    }

private slots:
    void moves_data()
    {
        QTest::addColumn<QString>("bar");
        QTest::addColumn<int>("towardsMax"); // the sign of a move away from the left or upper end
        QTest::newRow("horizontal") << "HscrA" << 1;
        QTest::newRow("horizontal, reversed") << "HscrR" << -1;
        QTest::newRow("vertical") << "VscrA" << 1;
        QTest::newRow("vertical, reversed") << "VscrR" << -1;
    }

    void moves()
    {
        QFETCH(QString, bar);
        QFETCH(int, towardsMax);
        Program program;
        auto& panel = program.open<TestPanel>();
        ScrollBar& control = barOf(panel, bar);
        auto& widget = program.widget<QScrollBar>(control);
        const auto value = [&] { return control.Value.get().value(); };

        click(widget, QStyle::SC_ScrollBarAddLine); // the arrow at the right or lower end
        QCOMPARE(value(), 50 + 2 * towardsMax);
        click(widget, QStyle::SC_ScrollBarSubLine);
        QCOMPARE(value(), 50);
        click(widget, QStyle::SC_ScrollBarAddPage);
        QCOMPARE(value(), 50 + 10 * towardsMax);
        click(widget, QStyle::SC_ScrollBarSubPage);
        QCOMPARE(value(), 50);

        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down}) {
            QTest::keyClick(&widget, key);
            QCOMPARE(value(), 50 + 2 * towardsMax);
            QTest::keyClick(&widget, key == Qt::Key_Right ? Qt::Key_Left : Qt::Key_Up);
            QCOMPARE(value(), 50);
        }
        QTest::keyClick(&widget, Qt::Key_PageDown);
        QCOMPARE(value(), 50 + 10 * towardsMax);
        QTest::keyClick(&widget, Qt::Key_PageUp);
        QCOMPARE(value(), 50);

        QVERIFY(widget.hasFocus());
        turnWheel(widget, -1);
        QVERIFY((value() - 50) * towardsMax > 0);
        turnWheel(widget, 1);
        QCOMPARE(value(), 50);

        QTest::keyClick(&widget, Qt::Key_Home);
        QCOMPARE(value(), control.Min.get().value());
        QTest::keyClick(&widget, Qt::Key_End);
        QCOMPARE(value(), control.Max.get().value());
    }

    void theWheelPassesOverABarThatLacksTheKeyboard()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        QMdiArea& area = *program.window(panel).mdiArea();
        program.window(panel).move(0, -200);
        QScrollBar& scrolled = *area.verticalScrollBar();
        QVERIFY(QTest::qWaitFor([&] { return scrolled.maximum() > scrolled.minimum(); }));
        auto& bar = program.widget<QScrollBar>(panel.VscrA);
        program.widget(panel.TxtA).setFocus();
        panel.events.clear();

        scrolled.setValue(scrolled.minimum());
        turnWheel(bar, -1);
        QCOMPARE(panel.VscrA.Value.get().value(), 50);
        QCOMPARE(program.desk.focused(), &panel.TxtA);
        QVERIFY(scrolled.value() > scrolled.minimum());

        bar.setFocus();
        const int stands = scrolled.value();
        QTest::keyClick(&bar, Qt::Key_End);
        turnWheel(bar, -1);
        QCOMPARE(panel.VscrA.Value.get().value(), 100);
        QCOMPARE(scrolled.value(), stands);
    }

    void otherButtonsMoveNoBar()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& bar = program.widget<QScrollBar>(panel.HscrA);
        for (const Qt::MouseButton button : {Qt::MiddleButton, Qt::RightButton})
            for (const QPoint place : {QPoint{3, 5}, QPoint{bar.width() / 4, 5}, QPoint{bar.width() - 3, 5}})
                QTest::mouseClick(bar.window()->windowHandle(), button, {}, bar.mapTo(bar.window(), place));
        QCOMPARE(panel.HscrA.Value.get().value(), 50);
        QCOMPARE(program.desk.focused(), &panel.TxtA); // the wheel must not move it then either
        QTest::mouseClick(bar.window()->windowHandle(), Qt::LeftButton, {}, bar.mapTo(bar.window(), QPoint{3, 5}));
        QCOMPARE(panel.HscrA.Value.get().value(), 48);
        QCOMPARE(program.desk.focused(), &panel.HscrA);
    }

    void theSliderStandsWhereTheValueIs()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] { panel.HscrR.Value = 100; });
        auto& reversed = program.widget<QScrollBar>(panel.HscrR);
        QCOMPARE(reversed.sliderPosition(), reversed.minimum());
        program.store([&] { panel.HscrR.Value = -10; });
        QCOMPARE(reversed.sliderPosition(), reversed.maximum());
        program.store([&] { panel.HscrR.Max = 40; });
        QCOMPARE(panel.HscrR.Value.get().value(), 40);
        QCOMPARE(reversed.sliderPosition(), reversed.maximum());
        QCOMPARE(reversed.maximum() - reversed.minimum(), 60);
    }

    void aHandlerMayMoveTheBarElsewhere()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onBar = [&] { panel.HscrA.Value = 0; };
        auto& bar = program.widget<QScrollBar>(panel.HscrA);
        QTest::keyClick(&bar, Qt::Key_Right);
        QCOMPARE(panel.HscrA.Value.get().value(), 0);
        QCOMPARE(bar.value() - bar.minimum(), 10);
    }

    void screenReadersAreToldTheValue()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        QAccessibleInterface* const reversed = QAccessible::queryAccessibleInterface(&program.widget(panel.HscrR));
        QCOMPARE(reversed->role(), QAccessible::ScrollBar);
        QCOMPARE(reversed->valueInterface()->currentValue().toInt(), 50);
        QCOMPARE(reversed->valueInterface()->minimumValue().toInt(), -10);
        QCOMPARE(reversed->valueInterface()->maximumValue().toInt(), 100);
        reversed->valueInterface()->setCurrentValue(70);
        QCOMPARE(panel.HscrR.Value.get().value(), 70);
    }

    void aBarThatRaisesABoxIsLetGo()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onBar = [&] { panel.MsgBox("Valeur trop grande"); };
        auto& bar = program.widget<QScrollBar>(panel.HscrA);
        Reader reader{{"OK", "OK", "OK"}};
        QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, {bar.width() - 4, bar.height() / 2});
        QTest::qWait(1000); // longer than the delay after which a held arrow repeats
        QCOMPARE(reader.seen.size(), std::size_t{1});
        QCOMPARE(panel.HscrA.Value.get().value(), 52);
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::ScrollBarsTest>(argc, argv);
}

#include "ScrollBarsTest.moc"
