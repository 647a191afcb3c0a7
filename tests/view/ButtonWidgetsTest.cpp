#include <QPushButton>
#include <QRadioButton>

#include "Program.h"
#include "TestPanel.h"

namespace ondelis {
namespace {

/// Options and buttons.
class ButtonWidgetsTest : public testing::Test { };

TEST_F(ButtonWidgetsTest, optionsExcludeOneAnother)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& x = program.widget<QRadioButton>(panel.OptX);
    auto& y = program.widget<QRadioButton>(panel.OptY);
    EXPECT_TRUE(!x.isChecked() && !y.isChecked());
    const QPoint text{12, x.height() / 2};
    QTest::mouseClick(&x, Qt::LeftButton, Qt::NoModifier, text);
    QTest::mouseClick(&y, Qt::LeftButton, Qt::NoModifier, text);
    QTest::mouseClick(&y, Qt::LeftButton, Qt::NoModifier, text);
    EXPECT_TRUE(!x.isChecked() && y.isChecked());
    EXPECT_EQ(panel.events, (std::vector<std::string>{"OptX_Click", "OptY_Click"}));
    program.store([&] { panel.OptY.Value = false; });
    EXPECT_TRUE(!x.isChecked() && !y.isChecked());
}

TEST_F(ButtonWidgetsTest, arrowsWalkThroughTheOptions)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& x = program.widget<QRadioButton>(panel.OptX);
    QTest::mouseClick(&x, Qt::LeftButton, Qt::NoModifier, {12, x.height() / 2});
    QTest::keyClick(&x, Qt::Key_Right);
    EXPECT_TRUE(panel.OptY.Value);
    EXPECT_FALSE(panel.OptX.Value);
    EXPECT_EQ(panel.events, (std::vector<std::string>{"OptX_Click", "OptY_Click"}));
}

TEST_F(ButtonWidgetsTest, captionsKeepTheirAmpersands)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    EXPECT_EQ(program.widget<QRadioButton>(panel.OptX).text(), QStringLiteral("Self && capa"));
    EXPECT_TRUE(program.widget<QRadioButton>(panel.OptX).shortcut().isEmpty());
}

TEST_F(ButtonWidgetsTest, aButtonIsPressedByMouseAndByKey)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& button = program.widget<QPushButton>(panel.BtnGo);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_EQ(panel.events, (std::vector<std::string>(3, "BtnGo_Click")));
    EXPECT_EQ(program.desk.focused(), &panel.BtnGo);
}

TEST_F(ButtonWidgetsTest, codeMovesTheKeyboard)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onGo = [&] { panel.TxtC.SetFocus(); };
    QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
    EXPECT_TRUE(program.widget(panel.TxtC).hasFocus());
    EXPECT_EQ(program.desk.focused(), &panel.TxtC);
}

TEST_F(ButtonWidgetsTest, theWheelChoosesNothing)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    QTest::mouseClick(&program.widget(panel.OptX), Qt::LeftButton);
    panel.events.clear();
    turnWheel(program.widget(panel.OptX));
    turnWheel(program.widget(panel.OptY));
    EXPECT_TRUE(panel.events.empty());
}

} // namespace
} // namespace ondelis
