#include <QLineEdit>
#include <QListWidget>

#include "Program.h"
#include "TestPanel.h"
#include "panels/lignes/RVListeCoaxiaux.h"
#include "panels/puissance/Transformateur.h"

namespace ondelis {
namespace {

/// The rows of lists, by mouse and by key.
class ListBoxWidgetTest : public testing::Test {
protected:
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
};

TEST_F(ListBoxWidgetTest, aClickChoosesARow)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& list = program.widget<QListWidget>(panel.LstU);
    EXPECT_EQ(list.currentRow(), -1);
    program.widget(panel.TxtA).setFocus();
    panel.events.clear();
    click(list, 1);
    EXPECT_EQ(panel.events, (std::vector<std::string>{"LstU_GotFocus", "LstU_Click"}));
    EXPECT_EQ(panel.LstU.ListIndex.get().value(), 1);
}

TEST_F(ListBoxWidgetTest, onlyTheLeftButtonChoosesARow)
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
    EXPECT_TRUE(panel.events.empty());
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_EQ(panel.LstU.ListIndex.get().value(), 1);
}

TEST_F(ListBoxWidgetTest, onlyTheLeftButtonGivesAListTheKeyboard)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& list = program.widget<QListWidget>(panel.LstU);
    auto& field = program.widget<QLineEdit>(panel.TxtA);
    QTest::keyClicks(&field, QStringLiteral("14"));
    panel.events.clear();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        clickOnWindow(list, 1, button);
        EXPECT_TRUE(field.hasFocus());
        EXPECT_EQ(program.desk.focused(), &panel.TxtA);
    }
    EXPECT_TRUE(panel.events.empty());
    clickOnWindow(list, 1, Qt::LeftButton);
    EXPECT_TRUE(list.hasFocus());
    EXPECT_EQ(panel.events, (std::vector<std::string>{"LstU_GotFocus", "LstU_Click"}));
}

TEST_F(ListBoxWidgetTest, aRightClickLeavesTheHeadingOfTheCatalogue)
{
    Program program;
    program.pick("MenuCoaxiauxCourants");
    auto& panel = program.desk.get<RVListeCoaxiaux>();
    QTest::mouseClick(&program.widget(panel.OptVF), Qt::LeftButton, {}, {12, 8});
    click(program.widget<QListWidget>(panel.LstCritere), 0);
    EXPECT_EQ(std::string{panel.LblCriteres.Caption}, "Velocite");
    auto& results = program.widget<QListWidget>(panel.LstResultat);
    clickOnWindow(results, 0, Qt::RightButton);
    EXPECT_EQ(std::string{panel.LblCriteres.Caption}, "Velocite");
    clickOnWindow(results, 0, Qt::LeftButton);
    EXPECT_EQ(std::string{panel.LblCriteres.Caption}, "Impédances");
}

TEST_F(ListBoxWidgetTest, theWheelChoosesNothing)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& list = program.widget<QListWidget>(panel.LstU);
    click(list, 1);
    panel.events.clear();
    turnWheel(*list.viewport());
    EXPECT_TRUE(panel.events.empty());
}

TEST_F(ListBoxWidgetTest, theChosenRowAgainRaisesNothing)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& list = program.widget<QListWidget>(panel.LstU);
    click(list, 1);
    panel.events.clear();
    click(list, 1);
    EXPECT_TRUE(panel.events.empty());
}

TEST_F(ListBoxWidgetTest, someListsListenToAClickOnTheChosenRow)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& list = program.widget<QListWidget>(panel.LstR);
    click(list, 1);
    click(list, 1);
    EXPECT_EQ(panel.events, (std::vector<std::string>{"LstR_Click", "LstR_Click"}));
    QTest::keyClick(&list, Qt::Key_Down); // the last row already
    EXPECT_EQ(panel.events.size(), 2U);
}

TEST_F(ListBoxWidgetTest, theChosenLaminationIsDesignedAgain)
{
    Program program;
    program.pick("mnuCalcTransfo");
    auto& panel = program.desk.get<Transformateur>();
    auto& list = program.widget<QListWidget>(panel.LstTole);
    auto& current = program.widget<QLineEdit>(panel.Secondaires(0).TxtIsec);
    current.setFocus();
    current.selectAll();
    QTest::keyClicks(&current, QStringLiteral("2"));
    EXPECT_EQ(list.currentRow(), 0);
    EXPECT_EQ(list.palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(std::string{panel.Secondaires(0).TxtSpires.Text}, "44.6");
    click(list, 0);
    EXPECT_EQ(std::string{panel.Secondaires(0).TxtSpires.Text}, "53.2");
}

TEST_F(ListBoxWidgetTest, keysWalkThroughTheRows)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& list = program.widget<QListWidget>(panel.LstU);
    list.setFocus();
    EXPECT_EQ(panel.LstU.ListIndex.get().value(), -1);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_End);
    QTest::keyClick(&list, Qt::Key_Up);
    QTest::keyClicks(&list, QStringLiteral("p"));
    EXPECT_EQ(panel.LstU.ListIndex.get().value(), 0);
    EXPECT_EQ(panel.events.size(), 5U); // the focus and four rows
}

TEST_F(ListBoxWidgetTest, aHandlerMayChooseAnotherRow)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& list = program.widget<QListWidget>(panel.LstU);
    panel.onRow = [&] { panel.LstU.ListIndex = 0; };
    click(list, 2);
    EXPECT_EQ(panel.LstU.ListIndex.get().value(), 0);
    EXPECT_EQ(list.currentRow(), 0);
    EXPECT_TRUE(list.item(0)->isSelected());
    EXPECT_FALSE(list.item(2)->isSelected());
}

TEST_F(ListBoxWidgetTest, aHandlerMayFillTheListAnew)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& list = program.widget<QListWidget>(panel.LstU);
    panel.onRow = [&] {
        panel.LstU.Clear();
        panel.LstU.AddItem("seul");
    };
    click(list, 2);
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(list.item(0)->text(), QStringLiteral("seul"));
    EXPECT_EQ(list.currentRow(), -1);
    EXPECT_TRUE(list.selectedItems().isEmpty());
}

TEST_F(ListBoxWidgetTest, theRowCannotBeTakenBack)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& list = program.widget<QListWidget>(panel.LstU);
    click(list, 1);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, list.visualItemRect(list.item(1)).center());
    EXPECT_TRUE(list.item(1)->isSelected());
    EXPECT_EQ(panel.LstU.ListIndex.get().value(), 1);
}

} // namespace
} // namespace ondelis
