#include "Support.h"
#include "kit/Conversions.h"

namespace ondelis {
namespace {

class Barres final : public FeuilleCalcul {
public:
    explicit Barres(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Barres", .Caption = "", .Width = 6000, .Height = 4000}}
    {
    }

    HScrollBar HscrFreq{this, "HscrFreq", {.Min = 10, .Max = 100, .Value = 50}, &Barres::HscrFreq_Change};
    VScrollBar VScrollPot{this, "VScrollPot", {.Min = 100, .Max = 0, .Value = 30}, &Barres::VScrollPot_Change};
    TextBox TxtFreq{this, "TxtFreq", {}, &Barres::TxtFreq_Change};

    EventLog log;

private:
    void HscrFreq_Change()
    {
        log.push_back("freq" + Str(HscrFreq.Value));
        TxtFreq.Text = CStr(HscrFreq.Value);
    }
    void VScrollPot_Change() { log.push_back("pot" + Str(VScrollPot.Value)); }
    void TxtFreq_Change() { HscrFreq.Value = CInt(Val(TxtFreq.Text)); }
};

class ScrollBarTest : public RuntimeTest {
protected:
    ScrollBarTest() { panel.Show(); }
    Barres& panel = runtime.get<Barres>();
};

TEST_F(ScrollBarTest, raisesChangeForANewValueOnly)
{
    panel.HscrFreq.Value = 60;
    panel.HscrFreq.Value = 60;
    EXPECT_EQ(panel.log, EventLog{"freq 60"});
}

TEST_F(ScrollBarTest, takesItsLimits)
{
    panel.HscrFreq.Value = 10;
    panel.HscrFreq.Value = 100;
    EXPECT_EQ(panel.log, (EventLog{"freq 10", "freq 100"}));
}

TEST_F(ScrollBarTest, faultsOnAValueOutsideItsLimits)
{
    EXPECT_EQ(faultOf([&] { panel.HscrFreq.Value = 101; }), FaultKind::InvalidPropertyValue);
    EXPECT_EQ(faultOf([&] { panel.HscrFreq.Value = 9; }), FaultKind::InvalidPropertyValue);
    EXPECT_EQ(panel.HscrFreq.Value, 50);
    EXPECT_TRUE(panel.log.empty());
}

TEST_F(ScrollBarTest, allowsWhatLiesBetweenReversedLimits)
{
    panel.VScrollPot.Value = 100;
    panel.VScrollPot.Value = 0;
    EXPECT_EQ(panel.log, (EventLog{"pot 100", "pot 0"}));
    EXPECT_EQ(faultOf([&] { panel.VScrollPot.Value = 101; }), FaultKind::InvalidPropertyValue);
    EXPECT_EQ(faultOf([&] { panel.VScrollPot.Value = -1; }), FaultKind::InvalidPropertyValue);
}

TEST_F(ScrollBarTest, followsALimitThatLeavesItsValueOutside)
{
    panel.HscrFreq.Max = 40;
    EXPECT_EQ(panel.HscrFreq.Value, 40);
    panel.HscrFreq.Max = 200;
    panel.HscrFreq.Min = 150;
    EXPECT_EQ(panel.log, (EventLog{"freq 40", "freq 150"}));
}

TEST_F(ScrollBarTest, staysWhereALimitLeavesItInside)
{
    panel.HscrFreq.Max = 50;
    panel.HscrFreq.Min = 50;
    EXPECT_EQ(panel.HscrFreq.Value, 50);
    EXPECT_TRUE(panel.log.empty());
}

TEST_F(ScrollBarTest, followsTheNearestOfReversedLimits)
{
    panel.VScrollPot.Min = 20;
    EXPECT_EQ(panel.VScrollPot.Value, 20);
    panel.VScrollPot.Min = 100;
    panel.VScrollPot.Max = 60;
    EXPECT_EQ(panel.log, (EventLog{"pot 20", "pot 60"}));
}

TEST_F(ScrollBarTest, staysWhenALimitPassesTheOtherOneAndTheValueIsBetween)
{
    panel.HscrFreq.Min = 300; // 300 down to 100: the nearest limit to 50 is 100
    EXPECT_EQ(panel.HscrFreq.Value, 100);
    panel.HscrFreq.Max = 20; // 300 down to 20: 100 lies between
    EXPECT_EQ(panel.HscrFreq.Value, 100);
    EXPECT_EQ(panel.log, EventLog{"freq 100"});
}

TEST_F(ScrollBarTest, mirrorsAFieldUntilNothingChanges)
{
    user.replace(panel.TxtFreq, "70.4");
    EXPECT_EQ(panel.HscrFreq.Value, 70);
    EXPECT_EQ(panel.TxtFreq.Text, "70");
    EXPECT_EQ(panel.log, EventLog{"freq 70"});
}

TEST_F(ScrollBarTest, endsTheProgramWhenAFieldDrivesItOutside)
{
    user.replace(panel.TxtFreq, "500");
    EXPECT_EQ(host.fault, FaultKind::InvalidPropertyValue);
}

TEST_F(ScrollBarTest, refusesTheUserAValueOutside)
{
    EXPECT_TRUE(user.move(panel.HscrFreq, 101).has_value());
    EXPECT_TRUE(user.move(panel.HscrFreq, 100000).has_value());
    EXPECT_TRUE(user.move(panel.HscrFreq, -100000).has_value());
    EXPECT_FALSE(user.move(panel.HscrFreq, 100).has_value());
    EXPECT_EQ(panel.log, EventLog{"freq 100"});
    EXPECT_EQ(runtime.focused(), &panel.HscrFreq);
}

TEST_F(ScrollBarTest, hasItsDesignLimitsAgainAfterUnload)
{
    panel.HscrFreq.Max = 20;
    panel.Unload();
    EXPECT_EQ(panel.HscrFreq.Max, 100);
    EXPECT_EQ(panel.HscrFreq.Value, 50);
}

} // namespace
} // namespace ondelis
