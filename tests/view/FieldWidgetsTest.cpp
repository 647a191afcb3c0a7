#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>

#include "Program.h"
#include "TestPanel.h"
#include "panels/resonance/CircuitsOscillants.h"

namespace ondelis {
namespace {

/// What a person pastes, and what then stands in the field.
struct Pasted {
    const char* name;
    QString text;
    QString stands;
};

void PrintTo(const Pasted& pasted, std::ostream* out)
{
    *out << pasted.name;
}

/// Text fields: typing, pasting, carets, limits, names.
class FieldWidgetsTest : public testing::TestWithParam<Pasted> { };

TEST_F(FieldWidgetsTest, typingMovesTheResults)
{
    Program program;
    program.pick("MenuCircuitOscillant");
    auto& panel = program.desk.get<CircuitsOscillants>();
    QTest::keyClicks(&program.widget(panel.TxtFreq), QStringLiteral("1"));
    QTest::keyClicks(&program.widget(panel.TxtRes), QStringLiteral("1000"));
    QTest::keyClicks(&program.widget(panel.TxtCapa), QStringLiteral("1000"));
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtImp).text(), QStringLiteral(" 1.012585 Kilo"));
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtDephase).text(), QStringLiteral("0"));
    EXPECT_TRUE(program.widget(panel.TxtResonance).isVisible());
    EXPECT_TRUE(program.widget(panel.LblResonance).isVisible());
    EXPECT_TRUE(program.widget(panel.frmCircuit(0)).isVisible());
    EXPECT_FALSE(program.widget(panel.frmCircuit(1)).isVisible());
}

TEST_F(FieldWidgetsTest, aPanelOpensWithTheKeyboardInItsFirstField)
{
    Program program;
    program.desk.get<TestPanel>().onLoad = [&] { program.desk.get<TestPanel>().TxtA.Text = "100"; };
    auto& panel = program.open<TestPanel>();
    auto& first = program.widget<QLineEdit>(panel.TxtA);
    EXPECT_TRUE(first.hasFocus());
    EXPECT_EQ(first.selectedText(), QStringLiteral("100"));
    EXPECT_EQ(program.desk.focused(), &panel.TxtA);
}

TEST_F(FieldWidgetsTest, aPanelOpensWithTheKeyboardWhereItsCodeHasPutIt)
{
    Program program;
    program.desk.get<TestPanel>().onLoad = [&] { program.desk.get<TestPanel>().TxtC.SetFocus(); };
    auto& panel = program.open<TestPanel>();
    EXPECT_TRUE(program.widget(panel.TxtC).hasFocus());
    EXPECT_EQ(program.desk.focused(), &panel.TxtC);
}

TEST_F(FieldWidgetsTest, eachKeyIsOneChange)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    QTest::keyClicks(&program.widget(panel.TxtC), QStringLiteral("1.5"));
    EXPECT_EQ(panel.events, (std::vector<std::string>{"TxtC_Change", "TxtC_Change", "TxtC_Change"}));
    EXPECT_EQ(std::string{panel.TxtC.Text}, "1.5");
}

TEST_F(FieldWidgetsTest, aPasteIsOneChangeAndNoKey)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    QGuiApplication::clipboard()->setText(QStringLiteral("12"));
    QTest::keyClick(&program.widget(panel.TxtA), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(panel.events, (std::vector<std::string>{"TxtA_Change"}));
    EXPECT_EQ(std::string{panel.TxtA.Text}, "12");
}

TEST_P(FieldWidgetsTest, aPasteEndsAtItsFirstLineBreak)
{
    const Pasted& pasted = GetParam();
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] { panel.TxtA.Text = "2"; });
    auto& field = program.widget<QLineEdit>(panel.TxtA);
    const auto stored = [&] { return toQString(panel.TxtA.Text.get()); };
    QGuiApplication::clipboard()->setText(pasted.text);
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(stored(), pasted.stands);
    EXPECT_EQ(field.text(), pasted.stands);
    // In the middle: typing goes on after what was put in.
    program.store([&] { panel.TxtA.Text = "89"; });
    field.setCursorPosition(1);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(stored(), QLatin1Char{'8'} + pasted.stands + QLatin1Char{'9'});
    EXPECT_EQ(field.cursorPosition(), 1 + pasted.stands.size());
}

TEST_F(FieldWidgetsTest, aDropEndsAtItsFirstLineBreak)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] { panel.TxtA.Text = "89"; });
    auto& field = program.widget<QLineEdit>(panel.TxtA);
    QMimeData dropped;
    dropped.setText(QStringLiteral("1\r\n2"));
    const QPoint end{field.width() - 5, field.height() / 2};
    QDragEnterEvent enter{end, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier};
    QApplication::sendEvent(&field, &enter);
    QDropEvent event{end, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier};
    QApplication::sendEvent(&field, &event);
    EXPECT_EQ(toQString(panel.TxtA.Text.get()), QStringLiteral("891"));
    EXPECT_EQ(field.text(), QStringLiteral("891"));
}

TEST_F(FieldWidgetsTest, aFieldOfSeveralLinesTakesThemAll)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    QGuiApplication::clipboard()->setText(QStringLiteral("un\ndeux"));
    QTest::keyClick(&program.widget(panel.TxtM), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(toQString(panel.TxtM.Text.get()), QStringLiteral("un\ndeux"));
}

TEST_F(FieldWidgetsTest, theCaretStaysAtTheEndOfTheFieldThatIsTypedIn)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onA = [&] {
        if (panel.TxtA.Text == "1")
            panel.TxtA.Text = "10";
        panel.TxtB.Text = "a long result that does not fit into its field";
    };
    auto& typed = program.widget<QLineEdit>(panel.TxtA);
    QTest::keyClicks(&typed, QStringLiteral("12"));
    EXPECT_EQ(typed.text(), QStringLiteral("102"));
    EXPECT_EQ(typed.cursorPosition(), 3);
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtB).cursorPosition(), 0);
}

TEST_F(FieldWidgetsTest, theCaretStaysInTheMiddleWhereNothingRewritesTheText)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.widget(panel.TxtC).setFocus();
    program.store([&] { panel.TxtA.Text = "15"; });
    auto& field = program.widget<QLineEdit>(panel.TxtA);
    EXPECT_EQ(field.cursorPosition(), 0);
    field.setFocus();
    field.setCursorPosition(1);
    QTest::keyClicks(&field, QStringLiteral("23"));
    EXPECT_EQ(std::string{panel.TxtA.Text}, "1235");
    EXPECT_EQ(field.cursorPosition(), 3);
}

TEST_F(FieldWidgetsTest, thePanelSeesAKeyBeforeItLands)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    std::vector<std::string> seen;
    panel.onKey = [&](Integer& /*key*/) { seen.push_back(panel.TxtA.Text); };
    auto& field = program.widget(panel.TxtA);
    QTest::keyClicks(&field, QStringLiteral("7"));
    QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_Eacute, QStringLiteral("é"), Qt::NoModifier);
    QTest::keyClick(&field, Qt::Key_Backspace);
    QTest::keyClick(&field, Qt::Key_Home);
    QTest::keyClick(&field, Qt::Key_Delete);
    EXPECT_EQ(seen, (std::vector<std::string>{"", "7", "7é"}));
    EXPECT_EQ(panel.events,
        (std::vector<std::string>{"TxtA_KeyPress 55", "TxtA_Change", "TxtA_KeyPress 233", "TxtA_Change",
            "TxtA_KeyPress 8", "TxtA_Change", "TxtA_Change"}));
    EXPECT_EQ(std::string{panel.TxtA.Text}, "");
}

TEST_F(FieldWidgetsTest, aBackspaceThatThePanelHasDealtWithRemovesNothingMore)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onKey = [&](Integer& key) {
        const std::string text = panel.TxtA.Text;
        if (key == 8)
            panel.TxtA.Text = text.substr(0, text.size() - 1);
    };
    auto& field = program.widget<QLineEdit>(panel.TxtA);
    QTest::keyClicks(&field, QStringLiteral("1234"));
    field.setCursorPosition(2);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(field.text(), QStringLiteral("123"));
    EXPECT_EQ(field.cursorPosition(), 3);
    QTest::keyClick(&field, Qt::Key_5);
    EXPECT_EQ(std::string{panel.TxtA.Text}, "1235");
}

TEST_F(FieldWidgetsTest, aKeyLandsAfterTheBoxThatItRaises)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onKey = [&](Integer& /*key*/) { panel.MsgBox("La saisie doit être exclusivement numérique"); };
    Reader reader{{"OK"}};
    QTest::keyClicks(&program.widget(panel.TxtA), QStringLiteral("x"));
    EXPECT_EQ(reader.seen.size(), 1U);
    EXPECT_EQ(std::string{panel.TxtA.Text}, "x");
}

TEST_F(FieldWidgetsTest, theLimitHoldsTypingAndPasting)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& field = program.widget<QLineEdit>(panel.TxtC);
    QTest::keyClicks(&field, QStringLiteral("12345678"));
    EXPECT_EQ(std::string{panel.TxtC.Text}, "123456");
    QGuiApplication::clipboard()->setText(QStringLiteral("987654321"));
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(std::string{panel.TxtC.Text}, "987654");
}

TEST_F(FieldWidgetsTest, aStoreFromCodeIsNotCut)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& field = program.widget<QLineEdit>(panel.TxtC);
    program.store([&] { panel.TxtC.Text = "13.979400086"; });
    EXPECT_EQ(field.text(), QStringLiteral("13.979400086"));
    QTest::keyClicks(&field, QStringLiteral("9"));
    EXPECT_EQ(std::string{panel.TxtC.Text}, "13.979400086");
    QTest::keyClick(&field, Qt::Key_End);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(std::string{panel.TxtC.Text}, "13.97940008");
    QTest::keyClick(&field, Qt::Key_Home);
    QTest::keyClick(&field, Qt::Key_Delete);
    EXPECT_EQ(std::string{panel.TxtC.Text}, "3.97940008");
    EXPECT_EQ(field.text(), QStringLiteral("3.97940008"));
    QTest::keyClick(&field, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClicks(&field, QStringLiteral("4"));
    EXPECT_EQ(std::string{panel.TxtC.Text}, ".97940008");
    EXPECT_EQ(field.text(), QStringLiteral(".97940008"));
    program.store([&] { panel.TxtC.Text = "1"; });
    QTest::keyClicks(&field, QStringLiteral("2345678"));
    EXPECT_EQ(std::string{panel.TxtC.Text}.size(), 6U);
}

TEST_F(FieldWidgetsTest, aLockedFieldCanBeReadAndCopied)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] { panel.TxtB.Text = "4.7 Kilo"; });
    auto& field = program.widget<QLineEdit>(panel.TxtB);
    QTest::mouseClick(&field, Qt::LeftButton);
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(program.desk.focused(), &panel.TxtB);
    QTest::keyClicks(&field, QStringLiteral("9"));
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(std::string{panel.TxtB.Text}, "4.7 Kilo");
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("4.7 Kilo"));
}

TEST_F(FieldWidgetsTest, severalLinesAreAFieldToo)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] { panel.TxtM.Text = "un\ndeux"; });
    auto& field = program.widget<QPlainTextEdit>(panel.TxtM);
    EXPECT_EQ(field.toPlainText(), QStringLiteral("un\ndeux"));
    QTest::keyClick(&field, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(&field, QStringLiteral("!"));
    EXPECT_EQ(std::string{panel.TxtM.Text}, "un\ndeux!");
    program.store([&] { panel.TxtM.Locked = true; });
    QTest::keyClicks(&field, QStringLiteral("?"));
    EXPECT_EQ(std::string{panel.TxtM.Text}, "un\ndeux!");
}

TEST_F(FieldWidgetsTest, aMaskedBoxShowsItsTextWhileItHasTheKeyboard)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] { panel.MebI.Text = "0.12"; });
    auto& field = program.widget<QLineEdit>(panel.MebI);
    EXPECT_EQ(field.text(), QStringLiteral("1.200E-01"));
    field.setFocus();
    EXPECT_EQ(field.text(), QStringLiteral("0.12"));
    program.widget(panel.TxtA).setFocus();
    EXPECT_EQ(field.text(), QStringLiteral("1.200E-01"));
}

TEST_F(FieldWidgetsTest, colorsFollowTheControl)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& field = program.widget<QLineEdit>(panel.TxtB);
    EXPECT_EQ(field.palette().color(QPalette::Base), QColor(0xC0, 0xFF, 0xFF));
    EXPECT_EQ(field.palette().color(QPalette::Text), QColor(Qt::black));
    program.store([&] { panel.TxtB.BackColor = 0x800000; });
    EXPECT_EQ(field.palette().color(QPalette::Text), QColor(Qt::white));
    program.store([&] { panel.TxtB.ForeColor = 0x00FFFF; });
    EXPECT_EQ(field.palette().color(QPalette::Text), QColor(Qt::yellow));
    program.store([&] {
        panel.TxtB.BackColor = windowColor;
        panel.TxtB.ForeColor = windowTextColor;
    });
    EXPECT_EQ(field.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
    EXPECT_EQ(field.palette().color(QPalette::Text), QApplication::palette().color(QPalette::Text));
}

TEST_F(FieldWidgetsTest, fieldsBearTheirLabelsAsNames)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    const auto nameOf = [&](const Control& control) {
        return QAccessible::queryAccessibleInterface(&program.widget(control))->text(QAccessible::Name);
    };
    EXPECT_EQ(nameOf(panel.TxtA), QStringLiteral("Première valeur"));
    EXPECT_EQ(nameOf(panel.LstU), QStringLiteral("Première valeur"));
    EXPECT_EQ(nameOf(panel.HscrA), QStringLiteral("Première valeur"));
    EXPECT_EQ(nameOf(panel.TxtC), QStringLiteral("Gain & perte"));
    EXPECT_EQ(nameOf(panel.OptX), QStringLiteral("Self & capa"));
    program.store([&] { panel.LblB.Caption = "Largeur"; });
    EXPECT_EQ(nameOf(panel.TxtB), QStringLiteral("Largeur"));
}

TEST_F(FieldWidgetsTest, tabGoesInTheOrderOfTheForm)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.widget(panel.TxtA).setFocus();
    QStringList order;
    for (int i = 0; i < 14; ++i) {
        order.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order.join(QLatin1Char{' '}),
        QStringLiteral("TxtA TxtB TxtC LstU LstR OptX BtnGo HscrA HscrR VscrA VscrR MebI TxtM TxtF"));
}

TEST_F(FieldWidgetsTest, theContextMenuIsFrench)
{
    const QLineEdit field;
    QLineEdit writable;
    const std::unique_ptr<QMenu> menu{writable.createStandardContextMenu()};
    QStringList words;
    for (const QAction* action : menu->actions())
        words.append(action->text().section(QLatin1Char{'\t'}, 0, 0).remove(QLatin1Char{'&'}));
    EXPECT_TRUE(words.contains(QStringLiteral("Copier")));
    EXPECT_TRUE(words.contains(QStringLiteral("Coller")));
    EXPECT_TRUE(words.contains(QStringLiteral("Tout sélectionner")));
}

INSTANTIATE_TEST_SUITE_P(Texts, FieldWidgetsTest,
    testing::Values(Pasted{"two cells", "1\n2", "1"}, Pasted{"a cell with its end", "12\r\n", "12"},
        Pasted{"an old file", "3\r4", "3"}, Pasted{"an empty line first", "\n5", ""}, Pasted{"a tab", "6\t7", "6\t7"}),
    nameOfRow<Pasted>);

} // namespace
} // namespace ondelis
