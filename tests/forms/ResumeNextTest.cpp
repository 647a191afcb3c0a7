#include "forms/ResumeNext.h"
#include "Support.h"
#include "kit/Conversions.h"

namespace ondelis {
namespace {

/// A Form_Load with a fault in a statement of its own, and one in a handler that a statement runs.
class Defauts final : public FeuilleCalcul {
public:
    explicit Defauts(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Defauts", .Caption = "", .Width = 6000, .Height = 4000}}
    {
    }

    TextBox TxtA{this, "TxtA", {}, &Defauts::TxtA_Change};
    TextBox TxtB{this, "TxtB", {}, &Defauts::TxtB_Change};
    ListBox LstA{this, "LstA", {.Items = {"un"}}};

    EventLog log;
    bool endInside = false;

private:
    void Form_Load() override
    {
        resumeNext({
            [this] { log.emplace_back("first"); },
            [this] { LstA.ListIndex = 7; },
            [this] {
                TxtA.Text = "x";
                log.emplace_back("never: the statement has ended");
            },
            [this] { log.emplace_back("last"); },
        });
    }
    void TxtA_Change()
    {
        log.emplace_back("A begins");
        TxtB.Text = TxtA.Text;
        log.emplace_back("never: A stands where it was left");
    }
    void TxtB_Change()
    {
        if (endInside)
            runtime().End();
        log.push_back(CStr(CDbl(TxtB.Text)));
        log.emplace_back("never: nothing is resumed in here");
    }
};

class ResumeNextTest : public RuntimeTest { };

TEST_F(ResumeNextTest, aFaultEndsItsStatementAndTheNextOneRuns)
{
    auto& panel = runtime.get<Defauts>();
    runtime.perform([&] { panel.Show(); });
    EXPECT_EQ(panel.log, (EventLog{"first", "A begins", "last"}));
    EXPECT_EQ(host.fault, std::nullopt);
    EXPECT_FALSE(runtime.ended());
}

TEST_F(ResumeNextTest, storesBeforeTheFaultStand)
{
    auto& panel = runtime.get<Defauts>();
    panel.Show();
    EXPECT_EQ(panel.TxtA.Text, "x");
    EXPECT_EQ(panel.TxtB.Text, "x");
    EXPECT_EQ(panel.LstA.ListIndex, -1);
    EXPECT_TRUE(panel.visible());
}

TEST_F(ResumeNextTest, theSameFaultAfterFormLoadEndsTheProgram)
{
    auto& panel = runtime.get<Defauts>();
    panel.Show();
    user.type(panel.TxtA, "y");
    EXPECT_EQ(host.fault, FaultKind::TypeMismatch);
    EXPECT_EQ(host.endings, std::vector<int>{1});
}

TEST_F(ResumeNextTest, anEndInsideAStatementIsNotPassedOver)
{
    auto& panel = runtime.get<Defauts>();
    panel.endInside = true;
    runtime.perform([&] { panel.Show(); });
    EXPECT_EQ(panel.log, (EventLog{"first", "A begins"}));
    EXPECT_EQ(host.endings, std::vector<int>{0});
}

} // namespace
} // namespace ondelis
