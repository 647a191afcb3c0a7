#include <utility>

#include "Program.h"
#include "TestPanel.h"

namespace ondelis {
namespace {

/// Message boxes, the fault dialog, and the ends of the program inside them.
class BoxesTest : public testing::Test {
protected:
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
        ASSERT_TRUE(QTest::qWaitFor([&] { return box.isActiveWindow(); }));
        for (const Qt::Key key : keys)
            QTest::keyClick(box.focusWidget(), key);
    }
};

TEST_F(BoxesTest, aBoxBlocksTheHandler)
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
    EXPECT_EQ(whileItWaits, (std::vector<std::string>{"BtnGo_Click"}));
    EXPECT_EQ(panel.events, (std::vector<std::string>{"BtnGo_Click", "after the box"}));
    EXPECT_EQ(std::string{panel.TxtA.Text}, "");
    EXPECT_EQ(reader.seen.at(0).title, QStringLiteral("Ondelis"));
    EXPECT_EQ(reader.seen.at(0).text, QStringLiteral("Vous devez renseigner Rho\n\tpuis & Theta <b>"));
    EXPECT_EQ(reader.seen.at(0).buttons, QStringList{"OK"});
    EXPECT_EQ(reader.seen.at(0).icon, QMessageBox::NoIcon);
}

TEST_F(BoxesTest, yesOrNo)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    std::vector<Answer> answers;
    panel.onGo = [&] { answers.push_back(panel.MsgBox("Continuer ?", 4, "Filtre")); };
    Reader reader{{"Oui", "Non"}};
    QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
    QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
    EXPECT_EQ(answers, (std::vector<Answer>{Answer::Yes, Answer::No}));
    EXPECT_EQ(reader.seen.at(0).title, QStringLiteral("Filtre"));
    EXPECT_EQ(reader.seen.at(0).buttons, (QStringList{"Oui", "Non"}));
}

TEST_F(BoxesTest, keysAnswerABox)
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
    EXPECT_EQ(answers, (std::vector{Answer::Yes, Answer::Yes, Answer::No, Answer::No, Answer::No}));
}

TEST_F(BoxesTest, keysConfirmABox)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onGo = [&] { panel.MsgBox("Regardez"); };
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
        Reader reader{{}};
        reader.meanwhile = [&] { type({key}); };
        QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
        EXPECT_EQ(reader.seen.size(), 1U);
    }
}

TEST_F(BoxesTest, aBoxShowsWhatTheHandlerHasStoredSoFar)
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
    EXPECT_EQ(shown, QStringLiteral("12"));
}

TEST_F(BoxesTest, aFaultIsNamedAndEndsTheProgram)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onGo = [] { throw Fault{FaultKind::DivisionByZero}; };
    Reader reader{{"OK"}};
    clickLater(program, panel);
    EXPECT_EQ(program.view.run(), 1);
    EXPECT_EQ(reader.seen.size(), 1U);
    EXPECT_EQ(reader.seen.at(0).buttons, QStringList{"OK"});
    EXPECT_TRUE(reader.seen.at(0).text.contains(QStringLiteral("11")));
    EXPECT_TRUE(reader.seen.at(0).text.contains(QStringLiteral("Division par zéro")));
    EXPECT_TRUE(program.desk.ended());
}

TEST_F(BoxesTest, theCloseBoxEndsTheProgram)
{
    Program program;
    QTimer::singleShot(0, &program.view.mainWindow(), [&] { program.view.mainWindow().close(); });
    EXPECT_EQ(program.view.run(), 0);
    EXPECT_TRUE(program.desk.ended());
}

TEST_F(BoxesTest, quitterEndsTheProgram)
{
    Program program;
    program.open<TestPanel>();
    QTimer::singleShot(0, &program.view.mainWindow(), [&] { program.pick("MenuQuitter"); });
    EXPECT_EQ(program.view.run(), 0);
    EXPECT_TRUE(program.desk.ended());
}

TEST_F(BoxesTest, theEndInsideABoxLeavesTheHandler)
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
    EXPECT_EQ(program.view.run(), 0);
    EXPECT_EQ(reader.seen.size(), 1U);
    EXPECT_EQ(panel.events, (std::vector<std::string>{"BtnGo_Click"}));
}

TEST_F(BoxesTest, theEndWhileEventsRunLeavesTheHandler)
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
    EXPECT_EQ(program.view.run(), 0);
    EXPECT_EQ(panel.events, (std::vector<std::string>{"BtnGo_Click"}));
}

TEST_F(BoxesTest, aFaultIsNamedThoughItsButtonIsGone)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onGo = [&] {
        panel.BtnGo.Visible = false; // the keyboard goes to another control
        throw Fault{FaultKind::DivisionByZero};
    };
    Reader reader{{"OK"}};
    clickLater(program, panel);
    EXPECT_EQ(program.view.run(), 1);
    EXPECT_EQ(reader.seen.size(), 1U);
    EXPECT_TRUE(reader.seen.at(0).text.contains(QStringLiteral("Division par zéro")));
}

TEST_F(BoxesTest, aFaultWhileEventsRunLeavesTheHandler)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onA = [] { throw Fault{FaultKind::Overflow}; };
    panel.onGo = [&] {
        QTimer::singleShot(
            0, &program.view.mainWindow(), [&] { QTest::keyClicks(&program.widget(panel.TxtA), QStringLiteral("1")); });
        QTest::qSleep(2);
        panel.DoEvents();
        panel.events.emplace_back("after the end");
    };
    Reader reader{{"OK"}};
    clickLater(program, panel);
    EXPECT_EQ(program.view.run(), 1);
    EXPECT_EQ(reader.seen.size(), 1U);
    EXPECT_EQ(std::ranges::find(panel.events, "after the end"), panel.events.end());
}

TEST_F(BoxesTest, aPanelClosedWhileEventsRunLeavesItsHandler)
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
    EXPECT_EQ(panel.events, (std::vector<std::string>{"TxtA_KeyPress 49", "TxtA_Change"}));
    EXPECT_FALSE(panel.loaded());
    EXPECT_EQ(program.view.find(panel), nullptr);
    EXPECT_FALSE(program.desk.ended());
    panel.onA = [] {};
    program.open<TestPanel>();
    EXPECT_TRUE(program.window(panel).isVisible());
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtA).text(), QString{});
}

TEST_F(BoxesTest, aPanelThatIsRestartedWhileEventsRunStaysFresh)
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
    EXPECT_TRUE(panel.loaded());
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtA).text(), QString{});
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtB).text(), QString{});
}

TEST_F(BoxesTest, aBoxInFormLoadComesBeforeThePanel)
{
    Program program;
    auto& panel = program.desk.get<TestPanel>();
    panel.onLoad = [&] { panel.MsgBox("Bonjour"); };
    Reader reader{{"OK"}};
    bool onScreen = true;
    reader.meanwhile = [&] { onScreen = program.view.find(panel) != nullptr; };
    program.open<TestPanel>();
    EXPECT_FALSE(onScreen);
    EXPECT_TRUE(program.window(panel).isVisible());
}

} // namespace
} // namespace ondelis
