#include "Support.h"

namespace ondelis {
namespace {

/// Two options and a button on the panel, two options in a frame.
class Choix final : public FeuilleCalcul {
public:
    explicit Choix(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Choix", .Caption = "", .Width = 6000, .Height = 4000}}
    {
    }

    OptionButton OptF{this, "OptF", {.Caption = "F", .Value = true}, &Choix::OptF_Click};
    OptionButton OptL{this, "OptL", {.Caption = "L"}, &Choix::OptL_Click};
    Frame Cadre{this, "Cadre", {.Caption = "Unité"}};
    OptionButton OptMm{this, "OptMm", {.Value = true, .container = &Cadre}, &Choix::OptMm_Click};
    OptionButton OptPo{this, "OptPo", {.container = &Cadre}, &Choix::OptPo_Click};
    CommandButton BtnCalculer{this, "BtnCalculer", {.Caption = "Calculer"}, &Choix::BtnCalculer_Click};

    EventLog log;

private:
    void OptF_Click() { log.emplace_back("F"); }
    void OptL_Click() { log.emplace_back(OptF.Value ? "L beside F" : "L alone"); }
    void OptMm_Click() { log.emplace_back("mm"); }
    void OptPo_Click() { log.emplace_back("po"); }
    void BtnCalculer_Click() { log.emplace_back(BtnCalculer.Value ? "pressed" : "calcul"); }
};

class ButtonTest : public RuntimeTest {
protected:
    ButtonTest() { panel.Show(); }
    Choix& panel = runtime.get<Choix>();
};

TEST_F(ButtonTest, anOptionRaisesClickWhenItBecomesTheChosenOne)
{
    panel.OptL.Value = true;
    panel.OptL.Value = true;
    EXPECT_EQ(panel.log, EventLog{"L alone"});
}

TEST_F(ButtonTest, theOptionThatLosesTheChoiceRaisesNothing)
{
    panel.OptL.Value = true;
    panel.log.clear();
    panel.OptF.Value = true;
    EXPECT_EQ(panel.log, EventLog{"F"});
    EXPECT_FALSE(panel.OptL.Value);
}

TEST_F(ButtonTest, anOptionSetToFalseRaisesNothingAndLeavesNoChoice)
{
    panel.OptF.Value = false;
    EXPECT_TRUE(panel.log.empty());
    EXPECT_FALSE(panel.OptF.Value);
    EXPECT_FALSE(panel.OptL.Value);
    panel.OptF.Value = true;
    EXPECT_EQ(panel.log, EventLog{"F"});
}

TEST_F(ButtonTest, theOptionsOfAFrameExcludeOneAnotherAlone)
{
    panel.OptPo.Value = true;
    EXPECT_FALSE(panel.OptMm.Value);
    EXPECT_TRUE(panel.OptF.Value);
    panel.OptL.Value = true;
    EXPECT_TRUE(panel.OptPo.Value);
    EXPECT_EQ(panel.log, (EventLog{"po", "L alone"}));
}

TEST_F(ButtonTest, theUserChoosesAnOptionOnce)
{
    user.click(panel.OptL);
    user.click(panel.OptL);
    EXPECT_EQ(panel.log, EventLog{"L alone"});
    EXPECT_EQ(runtime.focused(), &panel.OptL);
}

TEST_F(ButtonTest, anOptionHasItsDesignValueAgainAfterUnload)
{
    panel.OptL.Value = true;
    panel.Unload();
    EXPECT_TRUE(panel.OptF.Value);
    EXPECT_FALSE(panel.OptL.Value);
}

TEST_F(ButtonTest, storingTrueIntoAButtonIsAClickEachTime)
{
    panel.BtnCalculer.Value = true;
    panel.BtnCalculer.Value = true;
    EXPECT_EQ(panel.log, (EventLog{"calcul", "calcul"}));
    EXPECT_FALSE(panel.BtnCalculer.Value);
}

TEST_F(ButtonTest, storingFalseIntoAButtonDoesNothing)
{
    panel.BtnCalculer.Value = false;
    EXPECT_TRUE(panel.log.empty());
}

TEST_F(ButtonTest, aHiddenButtonIsClickedByCodeButNotByTheUser)
{
    panel.BtnCalculer.Visible = false;
    panel.BtnCalculer.Value = true;
    EXPECT_EQ(panel.log, EventLog{"calcul"});
    EXPECT_TRUE(user.click(panel.BtnCalculer).has_value());
    EXPECT_EQ(panel.log, EventLog{"calcul"});
}

TEST_F(ButtonTest, whatStandsInAHiddenFrameIsHidden)
{
    panel.Cadre.Visible = false;
    EXPECT_TRUE(panel.OptPo.Visible);
    EXPECT_FALSE(panel.OptPo.onScreen());
    EXPECT_TRUE(user.click(panel.OptPo).has_value());
    panel.Cadre.Visible = true;
    EXPECT_FALSE(user.click(panel.OptPo).has_value());
    EXPECT_EQ(panel.log, EventLog{"po"});
}

} // namespace
} // namespace ondelis
