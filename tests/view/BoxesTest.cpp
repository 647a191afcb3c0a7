#include <utility>

#include "Program.h"
#include "TestPanel.h"

namespace ondelis {

/// Message boxes, the fault dialog, and the ends of the program inside them.
class BoxesTest final : public QObject {
    Q_OBJECT

    /// Clicks the button of the test panel once the program runs.
    static void clickLater(Program& program, TestPanel& panel)
    {
        QTimer::singleShot(
            0, &program.widget(panel.BtnGo), [&] { QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton); });
    }

    /// Types into the box that waits.
    static void type(const std::vector<Qt::Key>& keys)
    {
        QWidget& box = *QApplication::activeModalWidget();
        QVERIFY(QTest::qWaitFor([&] { return box.isActiveWindow(); }));
        for (const Qt::Key key : keys)
            QTest::keyClick(box.focusWidget(), key);
    }

private slots:
    void aBoxBlocksTheHandler()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onGo = [&] {
            panel.MsgBox("Vous devez renseigner Rho\n\tpuis & Theta <b>");
            panel.events.emplace_back("after the box");
        };
        Reader reader{{"OK"}};
        std::vector<std::string> whileItWaits;
        reader.meanwhile = [&] {
            whileItWaits = panel.events;
            QTest::keyClicks(&program.widget(panel.TxtA), QStringLiteral("5"));
        };
        QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
        QCOMPARE(whileItWaits, (std::vector<std::string>{"BtnGo_Click"}));
        QCOMPARE(panel.events, (std::vector<std::string>{"BtnGo_Click", "after the box"}));
        QCOMPARE(std::string{panel.TxtA.Text}, std::string{});
        QCOMPARE(reader.seen.at(0).title, QStringLiteral("Ondelis"));
        QCOMPARE(reader.seen.at(0).text, QStringLiteral("Vous devez renseigner Rho\n\tpuis & Theta <b>"));
        QCOMPARE(reader.seen.at(0).buttons, QStringList{"OK"});
        QCOMPARE(reader.seen.at(0).icon, QMessageBox::NoIcon);
    }

    void yesOrNo()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        std::vector<Answer> answers;
        panel.onGo = [&] { answers.push_back(panel.MsgBox("Continuer ?", 4, "Filtre")); };
        Reader reader{{"Oui", "Non"}};
        QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
        QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
        QCOMPARE(answers, (std::vector<Answer>{Answer::Yes, Answer::No}));
        QCOMPARE(reader.seen.at(0).title, QStringLiteral("Filtre"));
        QCOMPARE(reader.seen.at(0).buttons, (QStringList{"Oui", "Non"}));
    }

    void keysAnswerABox()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        std::vector<Answer> answers;
        panel.onGo = [&] { answers.push_back(panel.MsgBox("Continuer ?", 4, "Filtre")); };
        for (const auto& keys : {std::vector{Qt::Key_Return}, std::vector{Qt::Key_Space}, std::vector{Qt::Key_Escape},
                 std::vector{Qt::Key_Tab, Qt::Key_Return}, std::vector{Qt::Key_Right, Qt::Key_Space}}) {
            Reader reader{{}};
            reader.meanwhile = [&] { type(keys); };
            QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
        }
        QCOMPARE(answers, (std::vector{Answer::Yes, Answer::Yes, Answer::No, Answer::No, Answer::No}));
    }

    void keysConfirmABox()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onGo = [&] { panel.MsgBox("Regardez"); };
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
            Reader reader{{}};
            reader.meanwhile = [&] { type({key}); };
            QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
            QCOMPARE(reader.seen.size(), std::size_t{1});
        }
    }

    void aBoxShowsWhatTheHandlerHasStoredSoFar()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onGo = [&] {
            panel.TxtB.Text = "12";
            panel.MsgBox("Regardez");
        };
        Reader reader{{"OK"}};
        QString shown;
        reader.meanwhile = [&] { shown = program.widget<QLineEdit>(panel.TxtB).text(); };
        QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
        QCOMPARE(shown, QStringLiteral("12"));
    }

    void aFaultIsNamedAndEndsTheProgram()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onGo = [] { throw Fault{FaultKind::DivisionByZero}; };
        Reader reader{{"OK"}};
        clickLater(program, panel);
        QCOMPARE(program.view.run(), 1);
        QCOMPARE(reader.seen.size(), std::size_t{1});
        QCOMPARE(reader.seen.at(0).buttons, QStringList{"OK"});
        QVERIFY(reader.seen.at(0).text.contains(QStringLiteral("11")));
        QVERIFY(reader.seen.at(0).text.contains(QStringLiteral("Division par zéro")));
        QVERIFY(program.desk.ended());
    }

    void theCloseBoxEndsTheProgram()
    {
        Program program;
        QTimer::singleShot(0, &program.view.mainWindow(), [&] { program.view.mainWindow().close(); });
        QCOMPARE(program.view.run(), 0);
        QVERIFY(program.desk.ended());
    }

    void quitterEndsTheProgram()
    {
        Program program;
        program.open<TestPanel>();
        QTimer::singleShot(0, &program.view.mainWindow(), [&] { program.pick("MenuQuitter"); });
        QCOMPARE(program.view.run(), 0);
        QVERIFY(program.desk.ended());
    }

    void theEndInsideABoxLeavesTheHandler()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onGo = [&] {
            panel.MsgBox("un");
            panel.events.emplace_back("after the end");
            panel.MsgBox("deux");
        };
        Reader reader{{}};
        reader.meanwhile = [&] { program.view.mainWindow().close(); };
        clickLater(program, panel);
        QCOMPARE(program.view.run(), 0);
        QCOMPARE(reader.seen.size(), std::size_t{1});
        QCOMPARE(panel.events, (std::vector<std::string>{"BtnGo_Click"}));
    }

    void theEndWhileEventsRunLeavesTheHandler()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onGo = [&] {
            QTimer::singleShot(0, &program.view.mainWindow(), [&] { program.view.mainWindow().close(); });
            QTest::qSleep(2);
            panel.DoEvents();
            panel.events.emplace_back("after the end");
        };
        clickLater(program, panel);
        QCOMPARE(program.view.run(), 0);
        QCOMPARE(panel.events, (std::vector<std::string>{"BtnGo_Click"}));
    }

    void aFaultIsNamedThoughItsButtonIsGone()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onGo = [&] {
            panel.BtnGo.Visible = false; // the keyboard goes to another control
            throw Fault{FaultKind::DivisionByZero};
        };
        Reader reader{{"OK"}};
        clickLater(program, panel);
        QCOMPARE(program.view.run(), 1);
        QCOMPARE(reader.seen.size(), std::size_t{1});
        QVERIFY(reader.seen.at(0).text.contains(QStringLiteral("Division par zéro")));
    }

    void aFaultWhileEventsRunLeavesTheHandler()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onA = [] { throw Fault{FaultKind::Overflow}; };
        panel.onGo = [&] {
            QTimer::singleShot(0, &program.view.mainWindow(),
                [&] { QTest::keyClicks(&program.widget(panel.TxtA), QStringLiteral("1")); });
            QTest::qSleep(2);
            panel.DoEvents();
            panel.events.emplace_back("after the end");
        };
        Reader reader{{"OK"}};
        clickLater(program, panel);
        QCOMPARE(program.view.run(), 1);
        QCOMPARE(reader.seen.size(), std::size_t{1});
        QVERIFY(std::ranges::find(panel.events, "after the end") == panel.events.end());
    }

    void aPanelClosedWhileEventsRunLeavesItsHandler()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onA = [&] {
            QTimer::singleShot(0, &program.view.mainWindow(), [&] { program.window(panel).close(); });
            QTest::qSleep(2);
            panel.DoEvents();
            panel.events.emplace_back("after the close");
        };
        QTest::keyClicks(&program.widget(panel.TxtA), QStringLiteral("1"));
        QCOMPARE(panel.events, (std::vector<std::string>{"TxtA_KeyPress 49", "TxtA_Change"}));
        QVERIFY(!panel.loaded());
        QVERIFY(program.view.find(panel) == nullptr);
        QVERIFY(!program.desk.ended());
        panel.onA = [] {};
        program.open<TestPanel>();
        QVERIFY(program.window(panel).isVisible());
        QCOMPARE(program.widget<QLineEdit>(panel.TxtA).text(), QString{});
    }

    void aPanelThatIsRestartedWhileEventsRunStaysFresh()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        bool restarted = false;
        panel.onA = [&] {
            if (std::exchange(restarted, true))
                return;
            QTimer::singleShot(0, &program.view.mainWindow(), [&] {
                program.window(panel).close();
                program.open<TestPanel>();
            });
            QTest::qSleep(2);
            panel.DoEvents();
            panel.TxtB.Text = "an old result";
        };
        QTest::keyClicks(&program.widget(panel.TxtA), QStringLiteral("1"));
        QVERIFY(panel.loaded());
        QCOMPARE(program.widget<QLineEdit>(panel.TxtA).text(), QString{});
        QCOMPARE(program.widget<QLineEdit>(panel.TxtB).text(), QString{});
    }

    void aBoxInFormLoadComesBeforeThePanel()
    {
        Program program;
        auto& panel = program.desk.get<TestPanel>();
        panel.onLoad = [&] { panel.MsgBox("Bonjour"); };
        Reader reader{{"OK"}};
        bool onScreen = true;
        reader.meanwhile = [&] { onScreen = program.view.find(panel) != nullptr; };
        program.open<TestPanel>();
        QVERIFY(!onScreen);
        QVERIFY(program.window(panel).isVisible());
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::BoxesTest>(argc, argv);
}

#include "BoxesTest.moc"
