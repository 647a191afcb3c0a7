#include <QLineEdit>

#include "Program.h"
#include "TestPanel.h"

namespace ondelis {
namespace {

/// What is selected in a field that gets the keyboard, and what the mouse then does with it.
class LineFieldTest : public testing::Test {
protected:
    /// A panel with two filled fields; the keyboard is in neither.
    struct Fields {
        Program program;
        TestPanel& panel = program.open<TestPanel>();
        QLineEdit& input = program.widget<QLineEdit>(panel.TxtA);
        QLineEdit& result = program.widget<QLineEdit>(panel.TxtB);

        Fields()
        {
            program.store([&] {
                panel.TxtA.Text = "14.175";
                panel.TxtB.Text = " 4.7 Kilo";
                panel.MebI.Text = "0.12";
            });
            program.widget(panel.BtnGo).setFocus();
        }
    };

    static QPoint startOf(const QLineEdit& field) { return {3, field.height() / 2}; }
    static QPoint endOf(const QLineEdit& field) { return {field.width() - 5, field.height() / 2}; }

    /// Presses a button on a field as a person does: on the window, which then gives the field the keyboard.
    static void press(QLineEdit& field, const QPoint& place, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(field.window()->windowHandle(), button, {}, field.mapTo(field.window(), place));
    }
    static void release(QLineEdit& field, const QPoint& place, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(field.window()->windowHandle(), button, {}, field.mapTo(field.window(), place));
    }
    static void click(QLineEdit& field, const QPoint& place)
    {
        QTest::qWait(QApplication::doubleClickInterval() + 1);
        press(field, place);
        release(field, place);
    }
};

TEST_F(LineFieldTest, theFirstClickSelectsTheTextAndTheNextPlacesTheCaret)
{
    Fields on;
    for (QLineEdit* field : {&on.input, &on.result, &on.program.widget<QLineEdit>(on.panel.MebI)}) {
        click(*field, endOf(*field));
        EXPECT_TRUE(field->hasFocus());
        EXPECT_EQ(field->selectedText(), field->text());
        click(*field, startOf(*field));
        EXPECT_FALSE(field->hasSelectedText());
        EXPECT_LE(field->cursorPosition(), 1);
        click(*field, endOf(*field));
        EXPECT_FALSE(field->hasSelectedText());
        EXPECT_EQ(field->cursorPosition(), static_cast<int>(field->text().size()));
    }
}

TEST_F(LineFieldTest, whatIsTypedThenReplacesTheText)
{
    Fields on;
    click(on.input, endOf(on.input));
    QTest::keyClicks(&on.input, QStringLiteral("7"));
    EXPECT_EQ(std::string{on.panel.TxtA.Text}, "7");
    EXPECT_EQ(on.panel.events.back(), "TxtA_Change");
}

TEST_F(LineFieldTest, aDragSelectsWhatItCovers)
{
    Fields on;
    press(on.input, startOf(on.input));
    const QPoint end{
        startOf(on.input).x() + on.input.fontMetrics().horizontalAdvance(QStringLiteral("14.")), on.input.height() / 2};
    QTest::mouseMove(on.input.window()->windowHandle(), on.input.mapTo(on.input.window(), end));
    release(on.input, end);
    EXPECT_EQ(on.input.selectedText(), QStringLiteral("14."));
}

TEST_F(LineFieldTest, aRightClickSelectsTheTextForItsMenu)
{
    Fields on;
    press(on.input, endOf(on.input), Qt::RightButton);
    release(on.input, endOf(on.input), Qt::RightButton);
    EXPECT_EQ(on.input.selectedText(), QStringLiteral("14.175"));
}

TEST_F(LineFieldTest, theSelectionLastsWhileAnotherWindowHasTheKeyboard)
{
    Fields on;
    on.input.setFocus(Qt::TabFocusReason);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_FALSE(on.input.hasFocus());
    QEvent late{QEvent::WindowActivate}; // that arrives a moment late
    QCoreApplication::sendEvent(&on.input, &late);
    QTest::qWait(1);
    EXPECT_EQ(on.input.selectedText(), QStringLiteral("14.175"));
}

} // namespace
} // namespace ondelis
