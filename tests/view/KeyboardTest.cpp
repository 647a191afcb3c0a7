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
namespace {

/// The whole program without a mouse. All keys go to the main window, as from a real keyboard.
class KeyboardTest : public testing::TestWithParam<const MenuEntry*> {
protected:
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
};

TEST_P(KeyboardTest, tabWalksThroughEveryPanel)
{
    const BoxCloser closer;
    Program program;
    program.pick(GetParam()->control);
    program.view.mainWindow().activateWindow(); // a box may have been before it, and there is no window manager
    ASSERT_TRUE(QTest::qWaitForWindowActive(&program.view.mainWindow()));
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
        EXPECT_EQ(walked, stops);
        EXPECT_EQ(focused(), stops.first()); // round and round inside the panel
        walked.clear();
        for (int i = 0; i < stops.size(); ++i) {
            press(program, Qt::Key_Backtab, Qt::ShiftModifier);
            walked.prepend(focused());
        }
        EXPECT_EQ(walked, stops);
    }
}

TEST_F(KeyboardTest, tabFollowsFieldsThatCodeMoves)
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
    EXPECT_EQ(walked(), (QStringList{"OptZ", "TxtCote", "TxtDiamAme", "TxtZ"}));
    press(program, Qt::Key_Down); // the other option
    EXPECT_EQ(walked(), (QStringList{"OptD", "TxtZ", "TxtDiamAme", "TxtCote"}));
    press(program, Qt::Key_Up);
    EXPECT_EQ(walked(), (QStringList{"OptZ", "TxtCote", "TxtDiamAme", "TxtZ"}));
}

TEST_F(KeyboardTest, tabEntersTheOptionsAtTheChosenOne)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.widget(panel.LstR).setFocus();
    press(program, Qt::Key_Tab);
    EXPECT_EQ(focused(), QStringLiteral("OptX")); // none is chosen
    program.widget(panel.LstR).setFocus();
    program.store([&] { panel.OptY.Value = true; });
    press(program, Qt::Key_Tab);
    EXPECT_EQ(focused(), QStringLiteral("OptY"));
    press(program, Qt::Key_Tab);
    EXPECT_EQ(focused(), QStringLiteral("BtnGo"));
    program.store([&] { panel.OptY.Visible = false; });
    press(program, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), QStringLiteral("OptX"));
}

TEST_F(KeyboardTest, arrowsChooseAnOption)
{
    Program program;
    program.pick("MenuThomson");
    auto& panel = program.desk.get<FormuleDeThomson>();
    program.widget(panel.OptF).setFocus();
    press(program, Qt::Key_Down);
    EXPECT_TRUE(panel.OptL.Value);
    EXPECT_EQ(focused(), QStringLiteral("OptL"));
    press(program, Qt::Key_Up);
    EXPECT_TRUE(panel.OptF.Value);
}

TEST_F(KeyboardTest, spaceChoosesAnOption)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.widget(panel.OptX).setFocus();
    EXPECT_FALSE(panel.OptX.Value);
    press(program, Qt::Key_Space);
    EXPECT_TRUE(panel.OptX.Value);
}

TEST_F(KeyboardTest, arrowsChooseARow)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.widget(panel.LstU).setFocus();
    const auto row = [&] { return panel.LstU.ListIndex.get().value(); };
    EXPECT_EQ(row(), -1);
    for (const auto& [key, wanted] : {std::pair{Qt::Key_Down, 0}, {Qt::Key_Down, 1}, {Qt::Key_End, 2},
             {Qt::Key_Home, 0}, {Qt::Key_N, 1}, {Qt::Key_Up, 0}}) {
        press(program, key);
        EXPECT_EQ(row(), wanted);
    }
}

TEST_F(KeyboardTest, theCopyKeyCopiesTheSelectionOrTheWholeField)
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
    EXPECT_EQ(copied(panel.TxtA), QStringLiteral("14.1"));
    EXPECT_EQ(copied(panel.TxtB), QStringLiteral(" 4.7 Kilo")); // locked
    EXPECT_EQ(copied(panel.TxtM), QStringLiteral("un\ndeux"));
    EXPECT_EQ(copied(panel.MebI), QStringLiteral("0.12"));
    EXPECT_EQ(copied(panel.TxtC), QStringLiteral("nothing")); // empty
    program.widget<QLineEdit>(panel.TxtB).setSelection(1, 3);
    EXPECT_EQ(copied(panel.TxtB), QStringLiteral("4.7"));
    program.widget<QPlainTextEdit>(panel.TxtM).setFocus();
    press(program, Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(copied(panel.TxtM), QStringLiteral("un"));
    EXPECT_EQ(std::string{panel.TxtA.Text}, "14.1");
}

TEST_F(KeyboardTest, altLeadsToTheMenuAndBack)
{
    Program program;
    program.open<TestPanel>();
    EXPECT_EQ(focused(), QStringLiteral("TxtA"));
    pressAlt(program);
    EXPECT_EQ(menuBar(program).activeAction(), menuBar(program).actions().first());
    EXPECT_EQ(QApplication::focusWidget(), &menuBar(program));
    press(program, Qt::Key_Escape);
    EXPECT_EQ(menuBar(program).activeAction(), nullptr);
    EXPECT_EQ(focused(), QStringLiteral("TxtA"));
    pressAlt(program);
    pressAlt(program);
    EXPECT_EQ(focused(), QStringLiteral("TxtA"));
}

TEST_F(KeyboardTest, theMenuKeyOpensTheFirstMenu)
{
    Program program;
    program.open<TestPanel>();
    press(program, Qt::Key_F10);
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    pressInMenu(program, Qt::Key_Escape);
    pressInMenu(program, Qt::Key_Escape);
    EXPECT_EQ(focused(), QStringLiteral("TxtA"));
}

TEST_F(KeyboardTest, keysPickAnEntry)
{
    Program program;
    program.open<TestPanel>();
    pressAlt(program);
    press(program, Qt::Key_Left); // round to the last menu, then to the last but one
    press(program, Qt::Key_Left);
    press(program, Qt::Key_Down);
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    pressInMenu(program, Qt::Key_Down);
    pressInMenu(program, Qt::Key_Return);
    // The test's own panel stays.
    ASSERT_TRUE(QTest::qWaitFor([&] { return program.desk.loadedPanels().size() == 2; }));
    EXPECT_EQ(program.desk.loadedPanels().back()->design().name, "SectionDiametre");
    EXPECT_EQ(menuBar(program).activeAction(), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([] { return focused() == QStringLiteral("TxtS"); }));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("2"));
    EXPECT_EQ(program.desk.focused()->name(), "TxtS");
}

TEST_F(KeyboardTest, keysGoFromAFilterToItsCompanion)
{
    Program program;
    program.pick("MenuPasseHaut");
    const auto& filter = program.desk.get<FiltrePasseHaut>();
    const auto& companion = program.desk.get<CalculNombreSpires>();
    program.widget(filter.TxtZCharge).setFocus();
    press(program, Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyRelease(program.view.mainWindow().windowHandle(), Qt::Key_Control);
    EXPECT_EQ(program.view.mainWindow().area().activeSubWindow(), &program.window(companion));
    EXPECT_EQ(focused(), QStringLiteral("TxtS"));
    press(program, Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyRelease(program.view.mainWindow().windowHandle(), Qt::Key_Control);
    EXPECT_EQ(focused(), QStringLiteral("TxtZCharge")); // where it was
    press(program, Qt::Key_F4, Qt::ControlModifier);
    EXPECT_FALSE(filter.loaded());
    ASSERT_TRUE(QTest::qWaitFor([] { return focused() == QStringLiteral("TxtS"); }));
    press(program, Qt::Key_F4, Qt::ControlModifier);
    EXPECT_FALSE(companion.loaded());
}

TEST_F(KeyboardTest, keysCloseAPanelWithoutControls)
{
    Program program;
    program.pick("MenuLogiciel");
    EXPECT_EQ(program.desk.loadedPanels().size(), 1U);
    press(program, Qt::Key_F4, Qt::ControlModifier);
    EXPECT_TRUE(program.desk.loadedPanels().empty());
}

TEST_F(KeyboardTest, otherKeysCloseAPanelAndTheProgram)
{
    Program program;
    const auto& panel = program.open<TestPanel>();
    press(program, Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(panel.loaded());
    program.open<TestPanel>();
    press(program, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(program.desk.ended());
}

TEST_F(KeyboardTest, keysThatReachADropDownTooLateAreNotLost)
{
    Program program;
    program.open<TestPanel>();
    press(program, Qt::Key_F10);
    press(program, Qt::Key_Left); // round to the last menu, then to the last but one
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    pressInMenu(program, Qt::Key_Left);
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    QWidget& dropDown = *QApplication::activePopupWidget();
    pressInMenu(program, Qt::Key_Down);
    pressInMenu(program, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([] { return focused() == QStringLiteral("TxtS"); }));
    EXPECT_TRUE(dropDown.isHidden());
    EXPECT_NE(dropDown.windowHandle()->handle(), nullptr); // the system's window for what it still sends there
    QTest::keyClick(dropDown.windowHandle(), Qt::Key_2);
    EXPECT_EQ(program.view.mainWindow().findChild<QLineEdit*>(QStringLiteral("TxtS"))->text(), QStringLiteral("2"));
}

TEST_F(KeyboardTest, aPanelThatIsOnlyWrittenToLeavesTheKeyboard)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onA = [&] { program.desk.get<CalculNombreSpires>().TxtS.Text = panel.TxtA.Text.get(); };
    press(program, Qt::Key_1);
    EXPECT_TRUE(program.desk.get<CalculNombreSpires>().visible());
    press(program, Qt::Key_2);
    EXPECT_EQ(focused(), QStringLiteral("TxtA"));
    EXPECT_EQ(std::string{program.desk.get<CalculNombreSpires>().TxtS.Text}, "12");
}

TEST_F(KeyboardTest, spaceAndEnterPressAButton)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.widget(panel.BtnGo).setFocus();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        press(program, key);
    EXPECT_EQ(panel.events, (std::vector<std::string>(3, "BtnGo_Click")));
}

INSTANTIATE_TEST_SUITE_P(Panels, KeyboardTest, testing::ValuesIn(panelEntries()), nameOfRow<const MenuEntry*>);

} // namespace
} // namespace ondelis
