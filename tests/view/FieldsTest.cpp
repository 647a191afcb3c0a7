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

/// Text fields: typing, pasting, carets, limits, names.
class FieldsTest final : public QObject {
    Q_OBJECT

private slots:
    void typingMovesTheResults()
    {
        Program program;
        program.pick("MenuCircuitOscillant");
        auto& panel = program.desk.get<CircuitsOscillants>();
        QTest::keyClicks(&program.widget(panel.TxtFreq), QStringLiteral("1"));
        QTest::keyClicks(&program.widget(panel.TxtRes), QStringLiteral("1000"));
        QTest::keyClicks(&program.widget(panel.TxtCapa), QStringLiteral("1000"));
        QCOMPARE(program.widget<QLineEdit>(panel.TxtImp).text(), QStringLiteral(" 1.012585 Kilo"));
        QCOMPARE(program.widget<QLineEdit>(panel.TxtDephase).text(), QStringLiteral("0"));
        QVERIFY(program.widget(panel.TxtResonance).isVisible());
        QVERIFY(program.widget(panel.LblResonance).isVisible());
        QVERIFY(program.widget(panel.frmCircuit(0)).isVisible());
        QVERIFY(!program.widget(panel.frmCircuit(1)).isVisible());
    }

    void aPanelOpensWithTheKeyboardInItsFirstField()
    {
        Program program;
        program.desk.get<TestPanel>().onLoad = [&] { program.desk.get<TestPanel>().TxtA.Text = "100"; };
        auto& panel = program.open<TestPanel>();
        auto& first = program.widget<QLineEdit>(panel.TxtA);
        QVERIFY(first.hasFocus());
        QCOMPARE(first.selectedText(), QStringLiteral("100"));
        QCOMPARE(program.desk.focused(), &panel.TxtA);
    }

    void aPanelOpensWithTheKeyboardWhereItsCodeHasPutIt()
    {
        Program program;
        program.desk.get<TestPanel>().onLoad = [&] { program.desk.get<TestPanel>().TxtC.SetFocus(); };
        auto& panel = program.open<TestPanel>();
        QVERIFY(program.widget(panel.TxtC).hasFocus());
        QCOMPARE(program.desk.focused(), &panel.TxtC);
    }

    void eachKeyIsOneChange()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        QTest::keyClicks(&program.widget(panel.TxtC), QStringLiteral("1.5"));
        QCOMPARE(panel.events, (std::vector<std::string>{"TxtC_Change", "TxtC_Change", "TxtC_Change"}));
        QCOMPARE(std::string{panel.TxtC.Text}, std::string{"1.5"});
    }

    void aPasteIsOneChangeAndNoKey()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        QGuiApplication::clipboard()->setText(QStringLiteral("12"));
        QTest::keyClick(&program.widget(panel.TxtA), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(panel.events, (std::vector<std::string>{"TxtA_Change"}));
        QCOMPARE(std::string{panel.TxtA.Text}, std::string{"12"});
    }

    void aPasteEndsAtItsFirstLineBreak_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("stands");
        QTest::newRow("two cells") << QStringLiteral("1\n2") << QStringLiteral("1");
        QTest::newRow("a cell with its end") << QStringLiteral("12\r\n") << QStringLiteral("12");
        QTest::newRow("an old file") << QStringLiteral("3\r4") << QStringLiteral("3");
        QTest::newRow("an empty line first") << QStringLiteral("\n5") << QString{};
        QTest::newRow("a tab") << QStringLiteral("6\t7") << QStringLiteral("6\t7");
    }

    void aPasteEndsAtItsFirstLineBreak()
    {
        QFETCH(QString, pasted);
        QFETCH(QString, stands);
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] { panel.TxtA.Text = "2"; });
        auto& field = program.widget<QLineEdit>(panel.TxtA);
        const auto stored = [&] { return toQString(panel.TxtA.Text.get()); };
        QGuiApplication::clipboard()->setText(pasted);
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(stored(), stands);
        QCOMPARE(field.text(), stands);
        // In the middle: typing goes on after what was put in.
        program.store([&] { panel.TxtA.Text = "89"; });
        field.setCursorPosition(1);
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(stored(), QLatin1Char{'8'} + stands + QLatin1Char{'9'});
        QCOMPARE(field.cursorPosition(), 1 + stands.size());
    }

    void aDropEndsAtItsFirstLineBreak()
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
        QCOMPARE(toQString(panel.TxtA.Text.get()), QStringLiteral("891"));
        QCOMPARE(field.text(), QStringLiteral("891"));
    }

    void aFieldOfSeveralLinesTakesThemAll()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        QGuiApplication::clipboard()->setText(QStringLiteral("un\ndeux"));
        QTest::keyClick(&program.widget(panel.TxtM), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(toQString(panel.TxtM.Text.get()), QStringLiteral("un\ndeux"));
    }

    void theCaretStaysAtTheEndOfTheFieldThatIsTypedIn()
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
        QCOMPARE(typed.text(), QStringLiteral("102"));
        QCOMPARE(typed.cursorPosition(), 3);
        QCOMPARE(program.widget<QLineEdit>(panel.TxtB).cursorPosition(), 0);
    }

    void theCaretStaysInTheMiddleWhereNothingRewritesTheText()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.widget(panel.TxtC).setFocus();
        program.store([&] { panel.TxtA.Text = "15"; });
        auto& field = program.widget<QLineEdit>(panel.TxtA);
        QCOMPARE(field.cursorPosition(), 0);
        field.setFocus();
        field.setCursorPosition(1);
        QTest::keyClicks(&field, QStringLiteral("23"));
        QCOMPARE(std::string{panel.TxtA.Text}, std::string{"1235"});
        QCOMPARE(field.cursorPosition(), 3);
    }

    void thePanelSeesAKeyBeforeItLands()
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
        QCOMPARE(seen, (std::vector<std::string>{"", "7", "7é"}));
        QCOMPARE(panel.events,
            (std::vector<std::string>{"TxtA_KeyPress 55", "TxtA_Change", "TxtA_KeyPress 233", "TxtA_Change",
                "TxtA_KeyPress 8", "TxtA_Change", "TxtA_Change"}));
        QCOMPARE(std::string{panel.TxtA.Text}, std::string{});
    }

    void aBackspaceThatThePanelHasDealtWithRemovesNothingMore()
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
        QCOMPARE(field.text(), QStringLiteral("123"));
        QCOMPARE(field.cursorPosition(), 3);
        QTest::keyClick(&field, Qt::Key_5);
        QCOMPARE(std::string{panel.TxtA.Text}, std::string{"1235"});
    }

    void aKeyLandsAfterTheBoxThatItRaises()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onKey = [&](Integer& /*key*/) { panel.MsgBox("La saisie doit être exclusivement numérique"); };
        Reader reader{{"OK"}};
        QTest::keyClicks(&program.widget(panel.TxtA), QStringLiteral("x"));
        QCOMPARE(reader.seen.size(), std::size_t{1});
        QCOMPARE(std::string{panel.TxtA.Text}, std::string{"x"});
    }

    void theLimitHoldsTypingAndPasting()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& field = program.widget<QLineEdit>(panel.TxtC);
        QTest::keyClicks(&field, QStringLiteral("12345678"));
        QCOMPARE(std::string{panel.TxtC.Text}, std::string{"123456"});
        QGuiApplication::clipboard()->setText(QStringLiteral("987654321"));
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(std::string{panel.TxtC.Text}, std::string{"987654"});
    }

    void aStoreFromCodeIsNotCut()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& field = program.widget<QLineEdit>(panel.TxtC);
        program.store([&] { panel.TxtC.Text = "13.979400086"; });
        QCOMPARE(field.text(), QStringLiteral("13.979400086"));
        QTest::keyClicks(&field, QStringLiteral("9"));
        QCOMPARE(std::string{panel.TxtC.Text}, std::string{"13.979400086"});
        QTest::keyClick(&field, Qt::Key_End);
        QTest::keyClick(&field, Qt::Key_Backspace);
        QCOMPARE(std::string{panel.TxtC.Text}, std::string{"13.97940008"});
        QTest::keyClick(&field, Qt::Key_Home);
        QTest::keyClick(&field, Qt::Key_Delete);
        QCOMPARE(std::string{panel.TxtC.Text}, std::string{"3.97940008"});
        QCOMPARE(field.text(), QStringLiteral("3.97940008"));
        QTest::keyClick(&field, Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClicks(&field, QStringLiteral("4"));
        QCOMPARE(std::string{panel.TxtC.Text}, std::string{".97940008"});
        QCOMPARE(field.text(), QStringLiteral(".97940008"));
        program.store([&] { panel.TxtC.Text = "1"; });
        QTest::keyClicks(&field, QStringLiteral("2345678"));
        QCOMPARE(std::string{panel.TxtC.Text}.size(), std::size_t{6});
    }

    void aLockedFieldCanBeReadAndCopied()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] { panel.TxtB.Text = "4.7 Kilo"; });
        auto& field = program.widget<QLineEdit>(panel.TxtB);
        QTest::mouseClick(&field, Qt::LeftButton);
        QVERIFY(field.hasFocus());
        QCOMPARE(program.desk.focused(), &panel.TxtB);
        QTest::keyClicks(&field, QStringLiteral("9"));
        QTest::keyClick(&field, Qt::Key_Backspace);
        QCOMPARE(std::string{panel.TxtB.Text}, std::string{"4.7 Kilo"});
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&field, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("4.7 Kilo"));
    }

    void severalLinesAreAFieldToo()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] { panel.TxtM.Text = "un\ndeux"; });
        auto& field = program.widget<QPlainTextEdit>(panel.TxtM);
        QCOMPARE(field.toPlainText(), QStringLiteral("un\ndeux"));
        QTest::keyClick(&field, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClicks(&field, QStringLiteral("!"));
        QCOMPARE(std::string{panel.TxtM.Text}, std::string{"un\ndeux!"});
        program.store([&] { panel.TxtM.Locked = true; });
        QTest::keyClicks(&field, QStringLiteral("?"));
        QCOMPARE(std::string{panel.TxtM.Text}, std::string{"un\ndeux!"});
    }

    void aMaskedBoxShowsItsTextWhileItHasTheKeyboard()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] { panel.MebI.Text = "0.12"; });
        auto& field = program.widget<QLineEdit>(panel.MebI);
        QCOMPARE(field.text(), QStringLiteral("1.200E-01"));
        field.setFocus();
        QCOMPARE(field.text(), QStringLiteral("0.12"));
        program.widget(panel.TxtA).setFocus();
        QCOMPARE(field.text(), QStringLiteral("1.200E-01"));
    }

    void colorsFollowTheControl()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        auto& field = program.widget<QLineEdit>(panel.TxtB);
        QCOMPARE(field.palette().color(QPalette::Base), QColor(0xC0, 0xFF, 0xFF));
        QCOMPARE(field.palette().color(QPalette::Text), QColor(Qt::black));
        program.store([&] { panel.TxtB.BackColor = 0x800000; });
        QCOMPARE(field.palette().color(QPalette::Text), QColor(Qt::white));
        program.store([&] { panel.TxtB.ForeColor = 0x00FFFF; });
        QCOMPARE(field.palette().color(QPalette::Text), QColor(Qt::yellow));
        program.store([&] {
            panel.TxtB.BackColor = windowColor;
            panel.TxtB.ForeColor = windowTextColor;
        });
        QCOMPARE(field.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
        QCOMPARE(field.palette().color(QPalette::Text), QApplication::palette().color(QPalette::Text));
    }

    void fieldsBearTheirLabelsAsNames()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        const auto nameOf = [&](const Control& control) {
            return QAccessible::queryAccessibleInterface(&program.widget(control))->text(QAccessible::Name);
        };
        QCOMPARE(nameOf(panel.TxtA), QStringLiteral("Première valeur"));
        QCOMPARE(nameOf(panel.LstU), QStringLiteral("Première valeur"));
        QCOMPARE(nameOf(panel.HscrA), QStringLiteral("Première valeur"));
        QCOMPARE(nameOf(panel.TxtC), QStringLiteral("Gain & perte"));
        QCOMPARE(nameOf(panel.OptX), QStringLiteral("Self & capa"));
        program.store([&] { panel.LblB.Caption = "Largeur"; });
        QCOMPARE(nameOf(panel.TxtB), QStringLiteral("Largeur"));
    }

    void tabGoesInTheOrderOfTheForm()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.widget(panel.TxtA).setFocus();
        QStringList order;
        for (int i = 0; i < 14; ++i) {
            order.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order.join(QLatin1Char{' '}),
            QStringLiteral("TxtA TxtB TxtC LstU LstR OptX BtnGo HscrA HscrR VscrA VscrR MebI TxtM TxtF"));
    }

    void theContextMenuIsFrench()
    {
        const QLineEdit field;
        QLineEdit writable;
        const std::unique_ptr<QMenu> menu{writable.createStandardContextMenu()};
        QStringList words;
        for (const QAction* action : menu->actions())
            words.append(action->text().section(QLatin1Char{'\t'}, 0, 0).remove(QLatin1Char{'&'}));
        QVERIFY(words.contains(QStringLiteral("Copier")));
        QVERIFY(words.contains(QStringLiteral("Coller")));
        QVERIFY(words.contains(QStringLiteral("Tout sélectionner")));
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::FieldsTest>(argc, argv);
}

#include "FieldsTest.moc"
