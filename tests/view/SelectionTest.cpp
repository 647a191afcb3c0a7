#include <QLineEdit>

#include "Program.h"
#include "TestPanel.h"

namespace ondelis {

/// What is selected in a field that gets the keyboard, and what the mouse then does with it.
class SelectionTest final : public QObject {
    Q_OBJECT

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

private slots:
    void theFirstClickSelectsTheTextAndTheNextPlacesTheCaret()
    {
        Fields on;
        for (QLineEdit* field : {&on.input, &on.result, &on.program.widget<QLineEdit>(on.panel.MebI)}) {
            click(*field, endOf(*field));
            QVERIFY(field->hasFocus());
            QCOMPARE(field->selectedText(), field->text());
            click(*field, startOf(*field));
            QVERIFY(!field->hasSelectedText());
            QVERIFY(field->cursorPosition() <= 1);
            click(*field, endOf(*field));
            QVERIFY(!field->hasSelectedText());
            QCOMPARE(field->cursorPosition(), static_cast<int>(field->text().size()));
        }
    }

    void whatIsTypedThenReplacesTheText()
    {
        Fields on;
        click(on.input, endOf(on.input));
        QTest::keyClicks(&on.input, QStringLiteral("7"));
        QCOMPARE(std::string{on.panel.TxtA.Text}, std::string{"7"});
        QVERIFY(on.panel.events.back() == "TxtA_Change");
    }

    void aDragSelectsWhatItCovers()
    {
        Fields on;
        press(on.input, startOf(on.input));
        const QPoint end{startOf(on.input).x() + on.input.fontMetrics().horizontalAdvance(QStringLiteral("14.")),
            on.input.height() / 2};
        QTest::mouseMove(on.input.window()->windowHandle(), on.input.mapTo(on.input.window(), end));
        release(on.input, end);
        QCOMPARE(on.input.selectedText(), QStringLiteral("14."));
    }

    void aRightClickSelectsTheTextForItsMenu()
    {
        Fields on;
        press(on.input, endOf(on.input), Qt::RightButton);
        release(on.input, endOf(on.input), Qt::RightButton);
        QCOMPARE(on.input.selectedText(), QStringLiteral("14.175"));
    }

    void theSelectionLastsWhileAnotherWindowHasTheKeyboard()
    {
        Fields on;
        on.input.setFocus(Qt::TabFocusReason);
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QVERIFY(!on.input.hasFocus());
        QEvent late{QEvent::WindowActivate}; // that arrives a moment late
        QCoreApplication::sendEvent(&on.input, &late);
        QTest::qWait(1);
        QCOMPARE(on.input.selectedText(), QStringLiteral("14.175"));
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::SelectionTest>(argc, argv);
}

#include "SelectionTest.moc"
