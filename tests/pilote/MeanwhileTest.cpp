#include "Support.h"

namespace ondelis::pilote {
namespace {

/// What a person does while a box waits, or a handler lets events through, and to the windows.
class MeanwhileTest : public DriverTest { };

TEST_F(MeanwhileTest, nothingIsReachedBehindABox)
{
    say("start");
    say("menu mnuGammaMatch");
    say("meanwhile close GammaMatch");
    const Json reply = say("replace GammaMatch.TxtFreq 0");
    EXPECT_EQ(reply["ok"], true);
    EXPECT_EQ(reply["messages"].size(), 2U);
    EXPECT_EQ(reply["meanwhile"], "a box waits for its answer");
    EXPECT_TRUE(ok("expect refused"));
    EXPECT_TRUE(ok("expect GammaMatch visible"));
}

TEST_F(MeanwhileTest, whileEventsRunAPanelCanBeClosed)
{
    say("start");
    say("menu mnuTrappesCoaxiales");
    say("meanwhile close AntennesTrappesCoaxiales");
    EXPECT_FALSE(say("click AntennesTrappesCoaxiales.BtnCalculer").contains("meanwhile"));
    EXPECT_TRUE(ok("expect AntennesTrappesCoaxiales unloaded"));
}

TEST_F(MeanwhileTest, severalGesturesFollowOneAnother)
{
    say("start");
    say("menu mnuTrappesCoaxiales");
    say("meanwhile replace AntennesTrappesCoaxiales.TxtFrequence 1");
    say("meanwhile type AntennesTrappesCoaxiales.TxtFrequence 4");
    say("click AntennesTrappesCoaxiales.BtnCalculer");
    EXPECT_TRUE(ok("expect AntennesTrappesCoaxiales.TxtFrequence.Text \"14\""));
}

TEST_F(MeanwhileTest, whatFindsNoOccasionIsRefusedOnce)
{
    open();
    say("meanwhile close CircuitsOscillants");
    EXPECT_EQ(say("focus CircuitsOscillants.TxtFreq")["meanwhile"], "nothing waited meanwhile");
    EXPECT_FALSE(say("focus CircuitsOscillants.TxtInd").contains("meanwhile"));
}

TEST_F(MeanwhileTest, onlyWhatAPersonDoesIsMeantForMeanwhile)
{
    open();
    EXPECT_EQ(error("meanwhile answer no"), "no such gesture: answer");
    EXPECT_EQ(error("meanwhile"), "a word is missing");
}

TEST_F(MeanwhileTest, aWindowThatIsPutAwayTakesNothing)
{
    open();
    EXPECT_EQ(refusal("restore MDIOndelis"), "the window is not minimised");
    EXPECT_EQ(refusal("minimise CircuitsOscillants"), "only the main window can be minimised");
    EXPECT_TRUE(ok("minimise MDIOndelis"));
    for (const char* const line : {"menu MenuThomson", "close CircuitsOscillants", "type CircuitsOscillants.TxtFreq 1",
             "move CircuitsOscillants 15 15", "minimise MDIOndelis"})
        EXPECT_EQ(refusal(line), "the window is minimised") << line;
    EXPECT_TRUE(ok("restore MDIOndelis"));
    EXPECT_TRUE(ok("close CircuitsOscillants"));
}

TEST_F(MeanwhileTest, windowsStandWhereTheyAreMoved)
{
    open();
    EXPECT_TRUE(ok("move CircuitsOscillants 150 300"));
    EXPECT_TRUE(ok("expect CircuitsOscillants.Left 150"));
    EXPECT_TRUE(ok("expect CircuitsOscillants.Top 300"));
    EXPECT_TRUE(ok("move MDIOndelis -30 45"));
    EXPECT_TRUE(ok("expect MDIOndelis.Left -30"));
    EXPECT_EQ(refusal("move Decibels 0 0"), "the panel is not on screen");
    for (const char* const line :
        {"move MDIOndelis", "move MDIOndelis 1", "move MDIOndelis x 1", "move MDIOndelis 1 nan"})
        EXPECT_FALSE(error(line).empty()) << line;
}

TEST_F(MeanwhileTest, aKeyThatIsHeldComesAgainAndAgain)
{
    open();
    EXPECT_TRUE(ok("hold CircuitsOscillants.TxtFreq \"7\" 5"));
    EXPECT_TRUE(ok("expect CircuitsOscillants.TxtFreq.Text \"77777\""));
    EXPECT_TRUE(ok("hold CircuitsOscillants.TxtFreq backspace 3"));
    EXPECT_TRUE(ok("expect CircuitsOscillants.TxtFreq.Text \"77\""));
    EXPECT_EQ(refusal("hold CircuitsOscillants.TxtFreq forward 3"), "the key does nothing there");
    for (const char* const line : {"hold CircuitsOscillants.TxtFreq 7 5", "hold CircuitsOscillants.TxtFreq \"77\" 5",
             "hold CircuitsOscillants.TxtFreq \"7\" 0", "hold CircuitsOscillants.TxtFreq \"7\" 1001"})
        EXPECT_FALSE(error(line).empty()) << line;
}

TEST_F(MeanwhileTest, anArrowKeyStopsAtTheEndOfItsBar)
{
    say("start");
    say("menu MenuRLCserie");
    say("hold RLCSerie.HScroll1 back 400");
    EXPECT_TRUE(ok("expect RLCSerie.HScroll1.Value 10"));
    say("hold RLCSerie.HScroll1 forward 4");
    EXPECT_TRUE(ok("expect RLCSerie.HScroll1.Value 14"));
    EXPECT_EQ(refusal("hold RLCSerie.HScroll1 backspace 1"), "the key does nothing there");
}

} // namespace
} // namespace ondelis::pilote
