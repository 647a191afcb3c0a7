#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QWheelEvent>

#include "Program.h"
#include "TestPanel.h"
#include "panels/lignes/RVListeCoaxiaux.h"
#include "panels/puissance/Transformateur.h"

namespace ondelis {

/// Lists, options, buttons.
class ChoicesTest final : public QObject {
    Q_OBJECT

    static void click(QListWidget& list, int row, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(list.viewport(), button, Qt::NoModifier, list.visualItemRect(list.item(row)).center());
    }

    /// As a person does: on the window, whose widgets then pass the keyboard on.
    static void clickOnWindow(QListWidget& list, int row, Qt::MouseButton button)
    {
        const QPoint place = list.visualItemRect(list.item(row)).center();
        QTest::mouseClick(
            list.window()->windowHandle(), button, Qt::NoModifier, list.viewport()->mapTo(list.window(), place));
    }

private slots:
    void aClickChoosesARow()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& list = program.widget<QListWidget>(panel.LstU);
        QCOMPARE(list.currentRow(), -1);
        program.widget(panel.TxtA).setFocus();
        panel.events.clear();
        click(list, 1);
        QCOMPARE(panel.events, (std::vector<std::string>{"LstU_GotFocus", "LstU_Click"}));
        QCOMPARE(panel.LstU.ListIndex.get().value(), 1);
    }

    void onlyTheLeftButtonChoosesARow()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& list = program.widget<QListWidget>(panel.LstU);
        click(list, 1);
        panel.events.clear();
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
            click(list, 2, button);
            const QPoint place = list.visualItemRect(list.item(0)).center();
            QTest::mouseDClick(list.viewport(), button, Qt::NoModifier, place);
            QTest::mousePress(list.viewport(), button, Qt::NoModifier, place);
            QTest::mouseMove(list.viewport(), list.visualItemRect(list.item(2)).center());
            QTest::mouseRelease(list.viewport(), button);
        }
        QVERIFY(panel.events.empty());
        QCOMPARE(list.currentRow(), 1);
        QCOMPARE(panel.LstU.ListIndex.get().value(), 1);
    }

    void onlyTheLeftButtonGivesAListTheKeyboard()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& list = program.widget<QListWidget>(panel.LstU);
        auto& field = program.widget<QLineEdit>(panel.TxtA);
        QTest::keyClicks(&field, QStringLiteral("14"));
        panel.events.clear();
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
            clickOnWindow(list, 1, button);
            QVERIFY(field.hasFocus());
            QCOMPARE(program.desk.focused(), &panel.TxtA);
        }
        QVERIFY(panel.events.empty());
        clickOnWindow(list, 1, Qt::LeftButton);
        QVERIFY(list.hasFocus());
        QCOMPARE(panel.events, (std::vector<std::string>{"LstU_GotFocus", "LstU_Click"}));
    }

    void aRightClickLeavesTheHeadingOfTheCatalogue()
    {
        Program program;
        program.pick("MenuCoaxiauxCourants");
        auto& panel = program.desk.get<RVListeCoaxiaux>();
        QTest::mouseClick(&program.widget(panel.OptVF), Qt::LeftButton, {}, {12, 8});
        click(program.widget<QListWidget>(panel.LstCritere), 0);
        QCOMPARE(std::string{panel.LblCriteres.Caption}, std::string{"Velocite"});
        auto& results = program.widget<QListWidget>(panel.LstResultat);
        clickOnWindow(results, 0, Qt::RightButton);
        QCOMPARE(std::string{panel.LblCriteres.Caption}, std::string{"Velocite"});
        clickOnWindow(results, 0, Qt::LeftButton);
        QCOMPARE(std::string{panel.LblCriteres.Caption}, std::string{"Impédances"});
    }

    void theWheelChoosesNothing()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& list = program.widget<QListWidget>(panel.LstU);
        click(list, 1);
        QTest::mouseClick(&program.widget(panel.OptX), Qt::LeftButton);
        panel.events.clear();
        for (QWidget* widget : {list.viewport(), &program.widget(panel.OptX), &program.widget(panel.OptY)}) {
            const QPoint place = widget->rect().center();
            QWheelEvent event{place, widget->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                Qt::NoScrollPhase, false};
            QApplication::sendEvent(widget, &event);
        }
        QVERIFY(panel.events.empty());
    }

    void theChosenRowAgainRaisesNothing()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& list = program.widget<QListWidget>(panel.LstU);
        click(list, 1);
        panel.events.clear();
        click(list, 1);
        QVERIFY(panel.events.empty());
    }

    void someListsListenToAClickOnTheChosenRow()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& list = program.widget<QListWidget>(panel.LstR);
        click(list, 1);
        click(list, 1);
        QCOMPARE(panel.events, (std::vector<std::string>{"LstR_Click", "LstR_Click"}));
        QTest::keyClick(&list, Qt::Key_Down); // the last row already
        QCOMPARE(panel.events.size(), std::size_t{2});
    }

    void theChosenLaminationIsDesignedAgain()
    {
        Program program;
        program.pick("mnuCalcTransfo");
        auto& panel = program.desk.get<Transformateur>();
        auto& list = program.widget<QListWidget>(panel.LstTole);
        auto& current = program.widget<QLineEdit>(panel.Secondaires(0).TxtIsec);
        current.setFocus();
        current.selectAll();
        QTest::keyClicks(&current, QStringLiteral("2"));
        QCOMPARE(list.currentRow(), 0);
        QCOMPARE(list.palette().color(QPalette::Base), QColor(Qt::white));
        QCOMPARE(std::string{panel.Secondaires(0).TxtSpires.Text}, std::string{"44.6"});
        click(list, 0);
        QCOMPARE(std::string{panel.Secondaires(0).TxtSpires.Text}, std::string{"53.2"});
    }

    void keysWalkThroughTheRows()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& list = program.widget<QListWidget>(panel.LstU);
        list.setFocus();
        QCOMPARE(panel.LstU.ListIndex.get().value(), -1);
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_End);
        QTest::keyClick(&list, Qt::Key_Up);
        QTest::keyClicks(&list, QStringLiteral("p"));
        QCOMPARE(panel.LstU.ListIndex.get().value(), 0);
        QCOMPARE(panel.events.size(), std::size_t{5}); // the focus and four rows
    }

    void aHandlerMayChooseAnotherRow()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& list = program.widget<QListWidget>(panel.LstU);
        panel.onRow = [&] { panel.LstU.ListIndex = 0; };
        click(list, 2);
        QCOMPARE(panel.LstU.ListIndex.get().value(), 0);
        QCOMPARE(list.currentRow(), 0);
        QVERIFY(list.item(0)->isSelected());
        QVERIFY(!list.item(2)->isSelected());
    }

    void aHandlerMayFillTheListAnew()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& list = program.widget<QListWidget>(panel.LstU);
        panel.onRow = [&] {
            panel.LstU.Clear();
            panel.LstU.AddItem("seul");
        };
        click(list, 2);
        QCOMPARE(list.count(), 1);
        QCOMPARE(list.item(0)->text(), QStringLiteral("seul"));
        QCOMPARE(list.currentRow(), -1);
        QVERIFY(list.selectedItems().isEmpty());
    }

    void theRowCannotBeTakenBack()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& list = program.widget<QListWidget>(panel.LstU);
        click(list, 1);
        QTest::mouseClick(
            list.viewport(), Qt::LeftButton, Qt::ControlModifier, list.visualItemRect(list.item(1)).center());
        QVERIFY(list.item(1)->isSelected());
        QCOMPARE(panel.LstU.ListIndex.get().value(), 1);
    }

    void optionsExcludeOneAnother()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& x = program.widget<QRadioButton>(panel.OptX);
        auto& y = program.widget<QRadioButton>(panel.OptY);
        QVERIFY(!x.isChecked() && !y.isChecked());
        const QPoint text{12, x.height() / 2};
        QTest::mouseClick(&x, Qt::LeftButton, Qt::NoModifier, text);
        QTest::mouseClick(&y, Qt::LeftButton, Qt::NoModifier, text);
        QTest::mouseClick(&y, Qt::LeftButton, Qt::NoModifier, text);
        QVERIFY(!x.isChecked() && y.isChecked());
        QCOMPARE(panel.events, (std::vector<std::string>{"OptX_Click", "OptY_Click"}));
        program.store([&] { panel.OptY.Value = false; });
        QVERIFY(!x.isChecked() && !y.isChecked());
    }

    void arrowsWalkThroughTheOptions()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& x = program.widget<QRadioButton>(panel.OptX);
        QTest::mouseClick(&x, Qt::LeftButton, Qt::NoModifier, {12, x.height() / 2});
        QTest::keyClick(&x, Qt::Key_Right);
        QVERIFY(panel.OptY.Value);
        QVERIFY(!panel.OptX.Value);
        QCOMPARE(panel.events, (std::vector<std::string>{"OptX_Click", "OptY_Click"}));
    }

    void captionsKeepTheirAmpersands()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        QCOMPARE(program.widget<QRadioButton>(panel.OptX).text(), QStringLiteral("Self && capa"));
        QVERIFY(program.widget<QRadioButton>(panel.OptX).shortcut().isEmpty());
    }

    void aButtonIsPressedByMouseAndByKey()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& button = program.widget<QPushButton>(panel.BtnGo);
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::keyClick(&button, Qt::Key_Space);
        QTest::keyClick(&button, Qt::Key_Return);
        QCOMPARE(panel.events, (std::vector<std::string>(3, "BtnGo_Click")));
        QCOMPARE(program.desk.focused(), &panel.BtnGo);
    }

    void codeMovesTheKeyboard()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onGo = [&] { panel.TxtC.SetFocus(); };
        QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
        QVERIFY(program.widget(panel.TxtC).hasFocus());
        QCOMPARE(program.desk.focused(), &panel.TxtC);
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::ChoicesTest>(argc, argv);
}

#include "ChoicesTest.moc"
