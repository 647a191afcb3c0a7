#include "panels/antennes/AntennesTrappesCoaxiales.h"

#include "forms/Support.h"
#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {
namespace {

/// The search for the turns, one round after the other.
class TrapSearchTest : public RuntimeTest {
protected:
    AntennesTrappesCoaxiales& panel = runtime.get<AntennesTrappesCoaxiales>();

    void open()
    {
        runtime.perform([&] { panel.Show(); });
    }

    /// Acts once, in a round of the next search.
    template <class Action>
    void inRound(int wanted, Action action)
    {
        host.onPending = [wanted, action, round = 0]() mutable {
            if (++round == wanted)
                action();
        };
    }
};

TEST_F(TrapSearchTest, pendingEventsRunOnceInEachRound)
{
    int rounds = 0;
    host.onPending = [&] { ++rounds; };
    open();
    EXPECT_EQ(rounds, 415);

    // The round that gives up begins like any other.
    rounds = 0;
    user.replace(panel.TxtDiamMandrin, "20");
    user.click(panel.BtnCalculer);
    EXPECT_EQ(rounds, 1001);
    EXPECT_EQ(host.boxes.size(), 1U);
}

TEST_F(TrapSearchTest, theReactancesConvergeFromRoundToRound)
{
    open();
    std::vector<double> differences;
    host.onPending = [&] {
        const Double difference = Val(panel.TxtReactanceCapacitive.Text) - Val(panel.TxtReactanceInductive.Text);
        differences.push_back(Abs(difference).value());
    };
    user.replace(panel.TxtFrequence, "3.6");
    user.click(panel.BtnCalculer);
    ASSERT_EQ(differences.size(), 662U);
    for (std::size_t round = 2; round < differences.size(); ++round) // the first one still sees the old trap
        ASSERT_LT(differences[round], differences[round - 1]);
}

TEST_F(TrapSearchTest, aSecondClickRunsASearchInsideTheFirst)
{
    open();
    user.replace(panel.TxtFrequence, "3.6");
    std::string inside;
    inRound(100, [&] {
        user.replace(panel.TxtFrequence, "14.1");
        user.click(panel.BtnCalculer);
        inside = panel.TxtNombreTours.Text;
    });
    user.click(panel.BtnCalculer);
    EXPECT_EQ(inside, "4.54");
    EXPECT_EQ(panel.TxtNombreTours.Text, "13.51"); // the first search goes on at its own frequency
    EXPECT_EQ(panel.TxtFrequence.Text, "14.1");
}

TEST_F(TrapSearchTest, closingThePanelLeavesTheSearch)
{
    open();
    user.replace(panel.TxtFrequence, "3.6");
    inRound(100, [&] { user.close(panel); });
    user.click(panel.BtnCalculer);
    EXPECT_FALSE(panel.loaded());
    EXPECT_FALSE(runtime.ended());
    host.onPending = [] {};
    open();
    EXPECT_EQ(panel.TxtNombreTours.Text, "7.75");
}

TEST_F(TrapSearchTest, closingTheProgramWhileThePanelOpensLeavesTheSearch)
{
    inRound(100, [&] { runtime.close(); });
    open();
    EXPECT_EQ(host.endings, std::vector<int>{0});
    EXPECT_EQ(host.fault, std::nullopt);
    EXPECT_FALSE(panel.visible());
}

} // namespace
} // namespace ondelis
