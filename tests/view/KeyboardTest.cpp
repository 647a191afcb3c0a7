#include <QApplication>
#include <QClipboard>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "Program.h"
#include "TestPanel.h"
#include "panels/filtres/FiltrePasseHaut.h"
#include "panels/lignes/CoaxSectCarree.h"
#include "panels/resonance/CalculNombreSpires.h"
#include "panels/resonance/FormuleDeThomson.h"
#include "shell/Menu.h"
#include "view/ClientArea.h"

namespace ondelis {

/// The whole program without a mouse. All keys go to the main window, as from a real keyboard.
class KeyboardTest final : public QObject {
    Q_OBJECT

    static void press(const Program& program, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(program.view.mainWindow().windowHandle(), key, modifiers);
    }

    static void pressAlt(const Program& program)
    {
        QWindow* const window = program.view.mainWindow().windowHandle();
        QTest::keyPress(window, Qt::Key_Alt, Qt::AltModifier);
        QTest::keyRelease(window, Qt::Key_Alt);
    }

    /// A key for the open drop-down, or for the menu bar where none is open.
    static void pressInMenu(const Program& program, Qt::Key key)
    {
        if (QWidget* const dropDown = QApplication::activePopupWidget())
            QTest::keyClick(dropDown, key);
        else
            press(program, key);
    }

    static QString focused()
    {
        const QWidget* const widget = QApplication::focusWidget();
        return widget == nullptr ? QString{} : widget->objectName();
    }

    static QMenuBar& menuBar(const Program& program) { return *program.view.mainWindow().menuBar(); }

    /// The stops of the Tab key: all that takes the keyboard, in the order of the form, but one option a panel.
    static QStringList stopsOf(const FeuilleCalcul& panel)
    {
        const OptionButton* entry = nullptr;
        for (Control* control : panel.controls())
            if (const auto* const option = dynamic_cast<OptionButton*>(control))
                if (option->onScreen() && (entry == nullptr || option->Value))
                    entry = option;
        QStringList stops;
        for (const Control* control : panel.controls())
            if (control->focusable() && (dynamic_cast<const OptionButton*>(control) == nullptr || control == entry))
                stops.append(toQString(control->name()));
        return stops;
    }

private slots:
    void tabWalksThroughEveryPanel_data()
    {
        QTest::addColumn<QString>("entry");
        for (const MenuEntry* entry : panelEntries())
            QTest::newRow(std::string{entry->control}.c_str()) << toQString(entry->control);
    }

    void tabWalksThroughEveryPanel()
    {
        QFETCH(QString, entry);
        const BoxCloser closer;
        Program program;
        program.pick(entry.toUtf8().constData());
        program.view.mainWindow().activateWindow(); // a box may have been before it, and there is no window manager
        QVERIFY(QTest::qWaitForWindowActive(&program.view.mainWindow()));
        for (const FeuilleCalcul* panel : program.desk.loadedPanels()) {
            const QStringList stops = stopsOf(*panel);
            if (stops.isEmpty())
                continue;
            program.widget(*panel->find(stops.first().toStdString())).setFocus();
            QStringList walked;
            for (int i = 0; i < stops.size(); ++i) {
                walked.append(focused());
                press(program, Qt::Key_Tab);
            }
            QCOMPARE(walked, stops);
            QCOMPARE(focused(), stops.first()); // round and round inside the panel
            walked.clear();
            for (int i = 0; i < stops.size(); ++i) {
                press(program, Qt::Key_Backtab, Qt::ShiftModifier);
                walked.prepend(focused());
            }
            QCOMPARE(walked, stops);
        }
    }

    void tabFollowsFieldsThatCodeMoves()
    {
        Program program;
        program.pick("mnuCoaxiauxSectionCarree");
        const auto& panel = program.desk.get<CoaxSectCarree>();
        const auto walked = [&] {
            QStringList stops;
            for (int i = 0; i < 4; ++i) {
                stops.append(focused());
                press(program, Qt::Key_Tab);
            }
            return stops;
        };
        program.widget(panel.OptZ).setFocus();
        QCOMPARE(walked(), (QStringList{"OptZ", "TxtCote", "TxtDiamAme", "TxtZ"}));
        press(program, Qt::Key_Down); // the other option
        QCOMPARE(walked(), (QStringList{"OptD", "TxtZ", "TxtDiamAme", "TxtCote"}));
        press(program, Qt::Key_Up);
        QCOMPARE(walked(), (QStringList{"OptZ", "TxtCote", "TxtDiamAme", "TxtZ"}));
    }

    void tabEntersTheOptionsAtTheChosenOne()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.widget(panel.LstR).setFocus();
        press(program, Qt::Key_Tab);
        QCOMPARE(focused(), QStringLiteral("OptX")); // none is chosen
        program.widget(panel.LstR).setFocus();
        program.store([&] { panel.OptY.Value = true; });
        press(program, Qt::Key_Tab);
        QCOMPARE(focused(), QStringLiteral("OptY"));
        press(program, Qt::Key_Tab);
        QCOMPARE(focused(), QStringLiteral("BtnGo"));
        program.store([&] { panel.OptY.Visible = false; });
        press(program, Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(focused(), QStringLiteral("OptX"));
    }

    void arrowsChooseAnOption()
    {
        Program program;
        program.pick("MenuThomson");
        auto& panel = program.desk.get<FormuleDeThomson>();
        program.widget(panel.OptF).setFocus();
        press(program, Qt::Key_Down);
        QVERIFY(panel.OptL.Value);
        QCOMPARE(focused(), QStringLiteral("OptL"));
        press(program, Qt::Key_Up);
        QVERIFY(panel.OptF.Value);
    }

    void spaceChoosesAnOption()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.widget(panel.OptX).setFocus();
        QVERIFY(!panel.OptX.Value);
        press(program, Qt::Key_Space);
        QVERIFY(panel.OptX.Value);
    }

    void arrowsChooseARow()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.widget(panel.LstU).setFocus();
        const auto row = [&] { return panel.LstU.ListIndex.get().value(); };
        QCOMPARE(row(), -1);
        for (const auto& [key, wanted] : {std::pair{Qt::Key_Down, 0}, {Qt::Key_Down, 1}, {Qt::Key_End, 2},
                 {Qt::Key_Home, 0}, {Qt::Key_N, 1}, {Qt::Key_Up, 0}}) {
            press(program, key);
            QCOMPARE(row(), wanted);
        }
    }

    void theCopyKeyCopiesTheSelectionOrTheWholeField()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] {
            panel.TxtA.Text = "14.1";
            panel.TxtB.Text = " 4.7 Kilo";
            panel.TxtM.Text = "un\ndeux";
            panel.MebI.Text = "0.12";
        });
        QClipboard& clipboard = *QGuiApplication::clipboard();
        const auto copied = [&](const Control& control) {
            clipboard.setText(QStringLiteral("nothing"));
            program.widget(control).setFocus(Qt::MouseFocusReason); // as a click, it selects nothing
            press(program, Qt::Key_C, Qt::ControlModifier);
            return clipboard.text();
        };
        QCOMPARE(copied(panel.TxtA), QStringLiteral("14.1"));
        QCOMPARE(copied(panel.TxtB), QStringLiteral(" 4.7 Kilo")); // locked
        QCOMPARE(copied(panel.TxtM), QStringLiteral("un\ndeux"));
        QCOMPARE(copied(panel.MebI), QStringLiteral("0.12"));
        QCOMPARE(copied(panel.TxtC), QStringLiteral("nothing")); // empty
        program.widget<QLineEdit>(panel.TxtB).setSelection(1, 3);
        QCOMPARE(copied(panel.TxtB), QStringLiteral("4.7"));
        program.widget<QPlainTextEdit>(panel.TxtM).setFocus();
        press(program, Qt::Key_End, Qt::ShiftModifier);
        QCOMPARE(copied(panel.TxtM), QStringLiteral("un"));
        QCOMPARE(std::string{panel.TxtA.Text}, std::string{"14.1"});
    }

    void altLeadsToTheMenuAndBack()
    {
        Program program;
        program.open<TestPanel>();
        QCOMPARE(focused(), QStringLiteral("TxtA"));
        pressAlt(program);
        QCOMPARE(menuBar(program).activeAction(), menuBar(program).actions().first());
        QCOMPARE(QApplication::focusWidget(), &menuBar(program));
        press(program, Qt::Key_Escape);
        QCOMPARE(menuBar(program).activeAction(), nullptr);
        QCOMPARE(focused(), QStringLiteral("TxtA"));
        pressAlt(program);
        pressAlt(program);
        QCOMPARE(focused(), QStringLiteral("TxtA"));
    }

    void theMenuKeyOpensTheFirstMenu()
    {
        Program program;
        program.open<TestPanel>();
        press(program, Qt::Key_F10);
        QVERIFY(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        pressInMenu(program, Qt::Key_Escape);
        pressInMenu(program, Qt::Key_Escape);
        QCOMPARE(focused(), QStringLiteral("TxtA"));
    }

    void keysPickAnEntry()
    {
        Program program;
        program.open<TestPanel>();
        pressAlt(program);
        press(program, Qt::Key_Left); // round to the last menu, then to the last but one
        press(program, Qt::Key_Left);
        press(program, Qt::Key_Down);
        QVERIFY(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        pressInMenu(program, Qt::Key_Down);
        pressInMenu(program, Qt::Key_Return);
        // The test's own panel stays.
        QVERIFY(QTest::qWaitFor([&] { return program.desk.loadedPanels().size() == 2; }));
        QCOMPARE(program.desk.loadedPanels().back()->design().name, std::string{"SectionDiametre"});
        QCOMPARE(menuBar(program).activeAction(), nullptr);
        QVERIFY(QTest::qWaitFor([] { return focused() == QStringLiteral("TxtS"); }));
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("2"));
        QCOMPARE(program.desk.focused()->name(), std::string{"TxtS"});
    }

    void keysGoFromAFilterToItsCompanion()
    {
        Program program;
        program.pick("MenuPasseHaut");
        const auto& filter = program.desk.get<FiltrePasseHaut>();
        const auto& companion = program.desk.get<CalculNombreSpires>();
        program.widget(filter.TxtZCharge).setFocus();
        press(program, Qt::Key_Tab, Qt::ControlModifier);
        QTest::keyRelease(program.view.mainWindow().windowHandle(), Qt::Key_Control);
        QCOMPARE(program.view.mainWindow().area().activeSubWindow(), &program.window(companion));
        QCOMPARE(focused(), QStringLiteral("TxtS"));
        press(program, Qt::Key_Tab, Qt::ControlModifier);
        QTest::keyRelease(program.view.mainWindow().windowHandle(), Qt::Key_Control);
        QCOMPARE(focused(), QStringLiteral("TxtZCharge")); // where it was
        press(program, Qt::Key_F4, Qt::ControlModifier);
        QVERIFY(!filter.loaded());
        QVERIFY(QTest::qWaitFor([] { return focused() == QStringLiteral("TxtS"); }));
        press(program, Qt::Key_F4, Qt::ControlModifier);
        QVERIFY(!companion.loaded());
    }

    void keysCloseAPanelWithoutControls()
    {
        Program program;
        program.pick("MenuLogiciel");
        QCOMPARE(program.desk.loadedPanels().size(), std::size_t{1});
        press(program, Qt::Key_F4, Qt::ControlModifier);
        QVERIFY(program.desk.loadedPanels().empty());
    }

    void otherKeysCloseAPanelAndTheProgram()
    {
        Program program;
        const auto& panel = program.open<TestPanel>();
        press(program, Qt::Key_W, Qt::ControlModifier);
        QVERIFY(!panel.loaded());
        program.open<TestPanel>();
        press(program, Qt::Key_Q, Qt::ControlModifier);
        QVERIFY(program.desk.ended());
    }

    void keysThatReachADropDownTooLateAreNotLost()
    {
        Program program;
        program.open<TestPanel>();
        press(program, Qt::Key_F10);
        press(program, Qt::Key_Left); // round to the last menu, then to the last but one
        QVERIFY(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        pressInMenu(program, Qt::Key_Left);
        QVERIFY(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        QWidget& dropDown = *QApplication::activePopupWidget();
        pressInMenu(program, Qt::Key_Down);
        pressInMenu(program, Qt::Key_Return);
        QVERIFY(QTest::qWaitFor([] { return focused() == QStringLiteral("TxtS"); }));
        QVERIFY(dropDown.isHidden());
        QVERIFY(dropDown.windowHandle()->handle() != nullptr); // the system's window for what it still sends there
        QTest::keyClick(dropDown.windowHandle(), Qt::Key_2);
        QCOMPARE(program.view.mainWindow().findChild<QLineEdit*>(QStringLiteral("TxtS"))->text(), QStringLiteral("2"));
    }

    void aPanelThatIsOnlyWrittenToLeavesTheKeyboard()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onA = [&] { program.desk.get<CalculNombreSpires>().TxtS.Text = panel.TxtA.Text.get(); };
        press(program, Qt::Key_1);
        QVERIFY(program.desk.get<CalculNombreSpires>().visible());
        press(program, Qt::Key_2);
        QCOMPARE(focused(), QStringLiteral("TxtA"));
        QCOMPARE(std::string{program.desk.get<CalculNombreSpires>().TxtS.Text}, std::string{"12"});
    }

    void spaceAndEnterPressAButton()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.widget(panel.BtnGo).setFocus();
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
            press(program, key);
        QCOMPARE(panel.events, (std::vector<std::string>(3, "BtnGo_Click")));
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::KeyboardTest>(argc, argv);
}

#include "KeyboardTest.moc"
