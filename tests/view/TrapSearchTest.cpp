#include <QStringList>

#include "Program.h"
#include "panels/antennes/AntennesTrappesCoaxiales.h"
#include "panels/antennes/GammaMatch.h"

namespace ondelis {
namespace {

/// What a person sees and does while the search for the turns of a coaxial trap runs.
class TrapSearchTest : public testing::Test {
protected:
    using Traps = AntennesTrappesCoaxiales;

    /// Acts once, in the middle of a search: the timer fires in each of its rounds.
    class Meanwhile {
    public:
        explicit Meanwhile(std::function<void()> action, int round = 100)
        {
            timer_.callOnTimeout([this, action = std::move(action), round] {
                if (++fired_ != round)
                    return;
                timer_.stop();
                action();
                done = true;
            });
            timer_.start(0);
        }
        bool done = false;

    private:
        QTimer timer_;
        int fired_ = 0;
    };

    /// Notes the text of a field each time that it is painted.
    class PaintedTexts final : public QObject {
    public:
        explicit PaintedTexts(QLineEdit& field) : field_{field} { field.installEventFilter(this); }
        QStringList seen;

        bool eventFilter(QObject* /*watched*/, QEvent* event) override
        {
            if (event->type() == QEvent::Paint && (seen.isEmpty() || seen.last() != field_.text()))
                seen.append(field_.text());
            return false;
        }

    private:
        QLineEdit& field_;
    };

    static Traps& openTraps(Program& program)
    {
        program.pick("mnuTrappesCoaxiales");
        return program.desk.get<Traps>();
    }

    /// A person's new value of a field.
    static void enter(const Program& program, const Control& field, const char* text)
    {
        auto& edit = program.widget<QLineEdit>(field);
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromUtf8(text));
    }

    static void clickCalculer(const Program& program, const Traps& panel)
    {
        QTest::mouseClick(&program.widget(panel.BtnCalculer), Qt::LeftButton);
    }

    template <class Search>
    static void openAnotherPanelDuring(Program& program, Search&& search)
    {
        const Meanwhile picking{[&] { program.pick("mnuGammaMatch"); }};
        search();
        EXPECT_TRUE(picking.done);
        const Traps& panel = program.desk.get<Traps>();
        EXPECT_FALSE(panel.loaded());
        EXPECT_EQ(program.view.find(panel), nullptr);
        EXPECT_TRUE(program.window(program.desk.get<GammaMatch>()).isVisible());
        EXPECT_FALSE(program.desk.ended());
    }
};

TEST_F(TrapSearchTest, bothReactancesAreSeenToConverge)
{
    Program program;
    const Traps& panel = openTraps(program);
    enter(program, panel.TxtFrequence, "3.6");
    PaintedTexts inductive{program.widget<QLineEdit>(panel.TxtReactanceInductive)};
    PaintedTexts capacitive{program.widget<QLineEdit>(panel.TxtReactanceCapacitive)};
    clickCalculer(program, panel);
    // Nearly each of the 662 rounds.
    EXPECT_GT(inductive.seen.size(), 600);
    EXPECT_GT(capacitive.seen.size(), 600);
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtReactanceInductive).text(), QStringLiteral("193.714642463106"));
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtReactanceCapacitive).text(), QStringLiteral("193.714642472944"));
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtNombreTours).text(), QStringLiteral("13.51"));
}

TEST_F(TrapSearchTest, aFieldTakesKeysDuringTheSearch)
{
    Program program;
    const Traps& panel = openTraps(program);
    const Meanwhile typing{[&] { enter(program, panel.TxtFrequence, "14.1"); }};
    clickCalculer(program, panel);
    EXPECT_TRUE(typing.done);
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtFrequence).text(), QStringLiteral("14.1"));
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtNombreTours).text(), QStringLiteral("7.75"));
    clickCalculer(program, panel);
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtNombreTours).text(), QStringLiteral("4.54"));
}

TEST_F(TrapSearchTest, aSecondClickRunsASearchInsideTheFirst)
{
    Program program;
    const Traps& panel = openTraps(program);
    enter(program, panel.TxtFrequence, "3.6");
    QString inside;
    const Meanwhile clicking{[&] {
        enter(program, panel.TxtFrequence, "14.1");
        clickCalculer(program, panel);
        inside = program.widget<QLineEdit>(panel.TxtNombreTours).text();
    }};
    clickCalculer(program, panel);
    EXPECT_TRUE(clicking.done);
    EXPECT_EQ(inside, QStringLiteral("4.54"));
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtNombreTours).text(), QStringLiteral("13.51"));
}

TEST_F(TrapSearchTest, closingThePanelLeavesTheSearch)
{
    Program program;
    const Traps& panel = openTraps(program);
    const Meanwhile closing{[&] { program.window(panel).close(); }};
    clickCalculer(program, panel);
    EXPECT_TRUE(closing.done);
    EXPECT_FALSE(panel.loaded());
    EXPECT_EQ(program.view.find(panel), nullptr);
    EXPECT_FALSE(program.desk.ended());
    openTraps(program);
    EXPECT_TRUE(program.window(panel).isVisible());
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtNombreTours).text(), QStringLiteral("7.75"));
}

TEST_F(TrapSearchTest, closingTheProgramLeavesTheSearch)
{
    Program program;
    const Traps& panel = openTraps(program);
    const Meanwhile closing{[&] { program.view.mainWindow().close(); }};
    QTimer::singleShot(0, &program.view.mainWindow(), [&] { clickCalculer(program, panel); });
    EXPECT_EQ(program.view.run(), 0);
    EXPECT_TRUE(closing.done);
    EXPECT_TRUE(program.desk.ended());
}

TEST_F(TrapSearchTest, closingTheProgramWhileThePanelOpensLeavesTheSearch)
{
    Program program;
    const Meanwhile closing{[&] { program.view.mainWindow().close(); }};
    QTimer::singleShot(0, &program.view.mainWindow(), [&] { openTraps(program); });
    EXPECT_EQ(program.view.run(), 0);
    EXPECT_TRUE(closing.done);
    EXPECT_FALSE(program.desk.get<Traps>().visible());
}

TEST_F(TrapSearchTest, aFaultInsideTheSearchEndsTheProgram)
{
    Program program;
    const Traps& panel = openTraps(program);
    const Meanwhile faulting{[&] {
        enter(program, panel.TxtFrequence, "0");
        clickCalculer(program, panel);
    }};
    Reader reader{{"OK"}};
    QTimer::singleShot(0, &program.view.mainWindow(), [&] { clickCalculer(program, panel); });
    EXPECT_EQ(program.view.run(), 1);
    EXPECT_EQ(reader.seen.size(), 1U);
    EXPECT_TRUE(reader.seen.at(0).text.contains(QStringLiteral("Division par zéro")));
}

TEST_F(TrapSearchTest, anotherPanelOpensInTheMiddleOfTheSearchAfterAClick)
{
    Program program;
    const Traps& panel = openTraps(program);
    openAnotherPanelDuring(program, [&] { clickCalculer(program, panel); });
}

TEST_F(TrapSearchTest, anotherPanelOpensInTheMiddleOfTheSearchWhileThePanelOpens)
{
    Program program;
    openAnotherPanelDuring(program, [&] { openTraps(program); });
}

TEST_F(TrapSearchTest, thePanelIsRestartedInTheMiddleOfTheSearch)
{
    Program program;
    const Traps& panel = openTraps(program);
    enter(program, panel.TxtFrequence, "3.6");
    const Meanwhile picking{[&] { openTraps(program); }};
    clickCalculer(program, panel);
    EXPECT_TRUE(picking.done);
    EXPECT_TRUE(program.window(panel).isVisible());
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtFrequence).text(), QStringLiteral("7.1"));
    EXPECT_EQ(program.widget<QLineEdit>(panel.TxtNombreTours).text(), QStringLiteral("7.75"));
}

} // namespace
} // namespace ondelis
