#include "Support.h"

namespace ondelis::pilote {
namespace {

class ExpectationTest : public DriverTest { };

TEST_F(ExpectationTest, comparesNumbersAsNumbers)
{
    open();
    EXPECT_EQ(say("expect MDIOndelis.Width 19470.0"), Json::parse(R"({"ok":true,"got":19470})"));
    EXPECT_EQ(say("expect MDIOndelis.Width 1947e1"), Json::parse(R"({"ok":true,"got":19470})"));
    EXPECT_EQ(say("expect MDIOndelis.Width \"19470\""), Json::parse(R"({"ok":false,"wanted":"19470","got":19470})"));
    EXPECT_TRUE(ok("expect CircuitsOscillants.TxtFreq.BackColor 16777215"));
}

TEST_F(ExpectationTest, comparesAPositionWithAFractionAsASingle)
{
    EXPECT_TRUE(ok("screen 28800.1 16200"));
    say("start");
    EXPECT_TRUE(ok("expect MDIOndelis.Left 4665.05"));
    EXPECT_TRUE(ok("expect MDIOndelis.Left 4665.0498046875"));
    EXPECT_FALSE(ok("expect MDIOndelis.Left 4665.06"));
    EXPECT_FALSE(ok("expect MDIOndelis.Left 4665"));
}

TEST_F(ExpectationTest, comparesYesAndNoAndArrays)
{
    open();
    EXPECT_TRUE(ok("expect CircuitsOscillants.visible true"));
    EXPECT_TRUE(ok("expect CircuitsOscillants.TxtFreq.Locked false # an input"));
    EXPECT_FALSE(ok("expect CircuitsOscillants.TxtFreq.Locked 0"));
    EXPECT_TRUE(ok(R"(expect CircuitsOscillants.LstFreq.Items ["GHz", "MHz", "KHz", "Hz"] # units)"));
    EXPECT_FALSE(ok(R"(expect CircuitsOscillants.LstFreq.Items ["GHz"])"));
}

TEST_F(ExpectationTest, comparesNamesCaptionsAndOrderOfMenus)
{
    say("start");
    EXPECT_TRUE(ok(R"(expect menu MenuPontDiviseur {"MenuShunt": "Calculs de Shunts",)"
                   R"( "MenuPontDeRésitances": "Pont de résistances avec charge"})"));
    EXPECT_FALSE(ok(R"(expect menu MenuPontDiviseur {"MenuPontDeRésitances": "Pont de résistances avec charge",)"
                    R"( "MenuShunt": "Calculs de Shunts"})"));
    EXPECT_FALSE(ok(R"(expect menu MenuFinTravail {"MenuQuitter": "Fin"})"));
    EXPECT_FALSE(ok(R"(expect menu MenuFinTravail {"MenuFin": "Quitter"})"));
    EXPECT_FALSE(ok(R"(expect menus {"MenuFinTravail": "Fin de travail"})"));
    EXPECT_EQ(say("expect menus {}")["got"].size(), 12U);
}

TEST_F(ExpectationTest, saysWhyThereIsNothingToCompare)
{
    EXPECT_EQ(say("expect MDIOndelis.Left 4665")["why"], "the program does not run");
    EXPECT_EQ(say("expect menus {}")["why"], "the program does not run");
    open();
    EXPECT_EQ(say("expect Decibels.TxtA.Text \"\"")["why"], "the panel is not loaded");
    EXPECT_EQ(say("expect CircuitsOscillants.TxtA.Text \"\"")["why"], "the panel has no such control");
    EXPECT_EQ(say("expect CircuitsOscillants.TxtFreq.Caption \"\"")["why"], "no such member");
    EXPECT_EQ(say("expect CircuitsOscillants.controls null")["why"], "no such member");
    EXPECT_EQ(say("expect menu MenuQuitter {}")["why"], "there is no such menu");
    say("menu MenuQuitter");
    EXPECT_EQ(say("expect CircuitsOscillants.TxtFreq.Text \"\"")["why"], "the program does not run");
}

TEST_F(ExpectationTest, isAnErrorWhereItIsNone)
{
    open();
    for (const char* const line : {"expect", "expect message", "expect no", "expect no idea", "expect fault",
             "expect refused why", "expect CircuitsOscillants", "expect CircuitsOscillants open", "expect A.B",
             "expect A.B x", "expect A.B 1 2", "expect A.B \"x\" 1", "expect A.B [[1]]", "expect A.B {}",
             "expect A.B 1e999", "expect A.B [", "expect message a b", "expect message a b 1 2", "expect menus",
             "expect menus []", "expect menus {\"MenuHelp\": 1}", "expect menu", "expect menu MenuHelp \"A propos\""})
        EXPECT_FALSE(error(line).empty()) << line;
}

TEST_F(ExpectationTest, standsDeepNestingAndLongNumbers)
{
    open();
    const std::string opening(200000, '[');
    const std::string closing(200000, ']');
    EXPECT_FALSE(error("expect A.B " + opening).empty());
    EXPECT_FALSE(error("expect A.B " + opening + closing).empty());
    const std::string digits(300, '9');
    EXPECT_FALSE(ok("expect MDIOndelis.Left " + digits));
}

TEST_F(ExpectationTest, tellsTheStatesOfAPanelApart)
{
    say("start");
    EXPECT_EQ(
        say("expect CircuitsOscillants visible"), Json::parse(R"({"ok":false,"wanted":"visible","got":"unloaded"})"));
    say("menu MenuCircuitOscillant");
    EXPECT_TRUE(ok("expect CircuitsOscillants visible"));
    EXPECT_FALSE(ok("expect CircuitsOscillants hidden"));
    say("close CircuitsOscillants");
    EXPECT_TRUE(ok("expect CircuitsOscillants unloaded"));
}

TEST_F(ExpectationTest, findsEveryPanelUnloadedAfterTheEnd)
{
    open();
    say("close MDIOndelis");
    EXPECT_TRUE(ok("expect CircuitsOscillants unloaded"));
}

TEST_F(ExpectationTest, knowsTheFaultOfTheLastCommand)
{
    open();
    EXPECT_TRUE(ok("expect no fault"));
    const Json reply = say("type CircuitsOscillants.TxtFreq 1e999");
    EXPECT_EQ(reply, Json::parse(R"({"ok":true,"messages":[],"fault":"overflow","ended":true})"));
    EXPECT_TRUE(ok("expect fault \"overflow\""));
    EXPECT_FALSE(ok("expect no fault"));
    EXPECT_FALSE(ok("expect fault \"type mismatch\""));
    EXPECT_FALSE(ok("expect refused"));
}

TEST_F(ExpectationTest, knowsNoFaultOfAnEarlierCommand)
{
    open();
    say("type CircuitsOscillants.TxtFreq 1e999");
    say("menu MenuQuitter");
    EXPECT_TRUE(ok("expect refused"));
    EXPECT_TRUE(ok("expect no fault"));
}

TEST_F(ExpectationTest, takesTheBoxesOfTheLastCommandInTheirOrder)
{
    say("start");
    const Json boxes = say("menu MenuFiltrePasseBasEnPi")["messages"];
    ASSERT_EQ(boxes.size(), 1U);
    say("state");
    EXPECT_FALSE(ok("expect no message"));
    EXPECT_TRUE(ok("expect message " + boxes[0]["prompt"].dump()));
    EXPECT_TRUE(ok("expect no message"));
    EXPECT_EQ(say("expect message \"another\""), Json::parse(R"({"ok":false,"wanted":"another","got":null})"));
}

TEST_F(ExpectationTest, knowsNoBoxOfAnEarlierCommand)
{
    say("start");
    const Json first = say("menu MenuFiltrePasseBasEnPi")["messages"];
    say("menu MenuCircuitOscillant");
    EXPECT_TRUE(ok("expect no message"));
    EXPECT_FALSE(ok("expect message " + first[0]["prompt"].dump()));
    say("menu MenuFiltrePasseBasEnPi");
    EXPECT_TRUE(ok("expect message " + first[0]["prompt"].dump()));
}

TEST_F(ExpectationTest, showsTheBoxThatCameInsteadOfTheExpectedOne)
{
    say("start");
    const Json boxes = say("menu MenuFiltrePasseBasEnPi")["messages"];
    EXPECT_EQ(say("expect message \"another\"")["got"], boxes[0]["prompt"]);
}

TEST_F(ExpectationTest, holdsTheTitleAndTheButtonsOfABoxToo)
{
    say("start");
    const Json boxes = say("menu MenuFiltrePasseBasEnPi")["messages"];
    const std::string prompt = "expect message " + boxes[0]["prompt"].dump();
    EXPECT_EQ(say(prompt + " \"Ondelis\" 4")["got"], Json::array({boxes[0]["prompt"], "Filtre en Pi", 4}));
    say("menu MenuFiltrePasseBasEnPi");
    EXPECT_FALSE(ok(prompt + " \"Filtre en Pi\" 0"));
    say("menu MenuFiltrePasseBasEnPi");
    EXPECT_TRUE(ok(prompt + " \"Filtre en Pi\" 4"));
    EXPECT_TRUE(ok("expect no message"));
    EXPECT_EQ(say(prompt + " \"Filtre en Pi\" 4")["got"], nullptr);
}

} // namespace
} // namespace ondelis::pilote
