#include <array>

#include "Support.h"

namespace ondelis::pilote {
namespace {

class CommandTest : public DriverTest { };

const Json done = Json::parse(R"({"ok":true,"messages":[],"fault":null,"ended":false})");

TEST_F(CommandTest, answersWhatWasDone)
{
    EXPECT_EQ(say("region , ."), done);
    EXPECT_EQ(say("screen 20000 16000.5"), done);
    EXPECT_EQ(say("start"), done);
    EXPECT_EQ(say("menu MenuCircuitOscillant"), done);
    EXPECT_EQ(say("answer no"), done);
    EXPECT_EQ(say("close CircuitsOscillants"), done);
}

TEST_F(CommandTest, answersInTheOrderOfTheMembers)
{
    EXPECT_EQ(say("start").dump(), R"({"ok":true,"messages":[],"fault":null,"ended":false})");
}

TEST_F(CommandTest, doesNothingBeforeTheStart)
{
    for (const char* const line : {"state", "menu MenuQuitter", "close MDIOndelis", "type A.B x", "answer yes"})
        EXPECT_EQ(refusal(line), "the program has not started") << line;
}

TEST_F(CommandTest, takesTheRegionBeforeTheStartOnly)
{
    say("start");
    for (const char* const line : {"region , .", "start"})
        EXPECT_EQ(refusal(line), "the program has started") << line;
}

TEST_F(CommandTest, takesAnotherScreenWhileTheProgramRuns)
{
    say("start");
    EXPECT_TRUE(ok("screen 20000 16000"));
    EXPECT_TRUE(ok("expect MDIOndelis.Left 4665"));
}

TEST_F(CommandTest, doesNothingAfterTheEnd)
{
    open();
    EXPECT_EQ(say("menu MenuQuitter")["ended"], true);
    for (const char* const line : {"state", "start", "menu MenuCircuitOscillant", "close MDIOndelis",
             "click CircuitsOscillants.TxtFreq", "answer no", "region , ."})
        EXPECT_EQ(refusal(line), "the program has ended") << line;
}

TEST_F(CommandTest, endsByTheCloseBoxOfTheFrame)
{
    say("start");
    EXPECT_EQ(say("close MDIOndelis"), Json::parse(R"({"ok":true,"messages":[],"fault":null,"ended":true})"));
}

TEST_F(CommandTest, usesTheRegionForItsOwnProgramOnly)
{
    {
        Headless otherBody;
        Pilote other{otherBody};
        other.answer("region , .");
        EXPECT_EQ(ondelis::region().decimal, ",");
    }
    EXPECT_EQ(ondelis::region().decimal, ".");
    EXPECT_EQ(ondelis::region().thousands, ",");
}

TEST_F(CommandTest, takesNoOtherRegionThanTwoDifferentSeparators)
{
    for (const char* const line : {"region , \"\"", "region , \"\u202f\"", "region . ,"})
        EXPECT_TRUE(ok(line)) << line;
    for (const char* const line : {"region ,", "region , ,", "region \"\" .", "region ,, .", "region , . x"})
        EXPECT_FALSE(error(line).empty()) << line;
}

TEST_F(CommandTest, takesNoOtherScreenThanTwoSizes)
{
    for (const char* const line : {"screen", "screen 10000", "screen 0 10000", "screen -5 10000", "screen x 10000",
             "screen 1e999 10000", "screen 1e39 10000", "screen nan 10000", "screen inf 10000", "screen 5twips 1"})
        EXPECT_FALSE(error(line).empty()) << line;
}

constexpr std::array noCommands{"", "# a comment", "hello", "Start", "start now", "menu", "menu a b", "close",
    "type A.B", "type A.B x y", "type A x", "backspace", "click", "click A", "select A.B", "select A.B x",
    "select A.B 1.5", "scroll A.B", "scroll A.B 1x", "focus", "answer", "answer maybe", "state now", "\"start",
    "type A.B \"\xff\""};

TEST_F(CommandTest, callsALineThatIsNoCommandAnErrorAtAnyTime)
{
    for (const char* const time : {"before", "start", "menu MenuQuitter"}) {
        say(time);
        for (const char* const line : noCommands)
            EXPECT_FALSE(error(line).empty()) << time << ": " << line;
    }
}

TEST_F(CommandTest, leavesTheOutcomeOfTheLastCommandAloneOnALineThatIsNone)
{
    open();
    say("type CircuitsOscillants.TxtFreq 1e999");
    for (const char* const line : noCommands)
        say(line);
    EXPECT_TRUE(ok("expect fault overflow"));
}

TEST_F(CommandTest, refusesWhatIsNotThere)
{
    open();
    EXPECT_EQ(refusal("menu MenuRien"), "the menu has no such entry");
    EXPECT_EQ(refusal("menu MenuFiltres"), "the menu has no such entry");
    EXPECT_EQ(refusal("close Decibels"), "the panel is not on screen");
    EXPECT_EQ(refusal("type Decibels.TxtA x"), "the panel is not on screen");
    EXPECT_EQ(refusal("type CircuitsOscillants.TxtA x"), "the panel has no such control");
    EXPECT_EQ(refusal("type CircuitsOscillants. x"), "the panel has no such control");
}

TEST_F(CommandTest, refusesAnActionThatTheControlDoesNotKnow)
{
    open();
    EXPECT_EQ(refusal("type CircuitsOscillants.LstFreq x"), "the control is of another class");
    EXPECT_EQ(refusal("select CircuitsOscillants.TxtFreq 1"), "the control is of another class");
    EXPECT_EQ(refusal("scroll CircuitsOscillants.TxtFreq 1"), "the control is of another class");
    EXPECT_EQ(refusal("click CircuitsOscillants.TxtFreq"), "the control is neither an option nor a button");
}

TEST_F(CommandTest, refusesRowsHoweverFarOut)
{
    open();
    for (const char* const row : {"4", "-1", "40000", "99999999999999999999", "-99999999999999999999"})
        EXPECT_EQ(refusal(std::string{"select CircuitsOscillants.LstFreq "} + row), "the list has no such row") << row;
    EXPECT_TRUE(ok("select CircuitsOscillants.LstFreq 3"));
}

TEST_F(CommandTest, typesErasesAndReplaces)
{
    open();
    EXPECT_EQ(say("type CircuitsOscillants.TxtFreq \"14.15\""), done);
    EXPECT_EQ(say("backspace CircuitsOscillants.TxtFreq"), done);
    EXPECT_EQ(say("type CircuitsOscillants.TxtFreq \"\""), done);
    EXPECT_TRUE(ok("expect CircuitsOscillants.TxtFreq.Text \"14.1\""));
    EXPECT_EQ(say("replace CircuitsOscillants.TxtFreq \"\""), done);
    EXPECT_TRUE(ok("expect CircuitsOscillants.TxtFreq.Text \"\""));
    EXPECT_EQ(say("focus CircuitsOscillants.LstFreq"), done);
}

TEST_F(CommandTest, showsTheFrameAndNoPanelAtTheStart)
{
    say("start");
    const Json state = say("state");
    EXPECT_EQ(state["frame"], Json::parse(R"({"Left":4665,"Top":600,"Width":19470,"Height":15000,
        "Caption":"Kervane : Veloris divers V21.5.0 du 20 Janvier 2021","Focus":""})"));
    EXPECT_EQ(state["panels"], Json::object());
}

TEST_F(CommandTest, showsTheLoadedPanelWithItsControls)
{
    open();
    const Json panel = say("state")["panels"]["CircuitsOscillants"];
    EXPECT_EQ(panel["visible"], true);
    EXPECT_EQ(panel["Caption"], "Circuits résonants");
    EXPECT_TRUE(panel["Width"].is_number_integer());
    EXPECT_EQ(panel["controls"]["LstFreq"]["Items"], Json({"GHz", "MHz", "KHz", "Hz"}));
    EXPECT_EQ(panel["controls"]["frmCircuit(0)"],
        Json::parse(
            R"({"kind":"Frame","Caption":"Circuit RC Série","Picture":"circuit-rc-serie","Visible":true,"Frame":""})"));
}

TEST_F(CommandTest, standsALongText)
{
    open();
    const std::string digits(2000, '9');
    EXPECT_EQ(say("type CircuitsOscillants.TxtRes " + digits)["fault"], "overflow");
}

} // namespace
} // namespace ondelis::pilote
