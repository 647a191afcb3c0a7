#include "Scenario.h"

#include <cstdio>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "Headless.h"

namespace ondelis::pilote {
namespace {

class ScenarioTest : public testing::Test {
protected:
    /// Plays a scenario of these lines. What it printed is in `printed`, without the name of the file.
    Tally play(const std::string& lines)
    {
        const std::string file
            = testing::TempDir() + "ondelis-" + testing::UnitTest::GetInstance()->current_test_info()->name() + ".scn";
        std::ofstream{file} << lines;
        std::ostringstream out;
        Headless body;
        const Tally tally = playScenario(file, body, out);
        std::remove(file.c_str());
        printed = out.str();
        for (auto at = printed.find(file); at != std::string::npos; at = printed.find(file))
            printed.erase(at, file.size());
        return tally;
    }

    std::string printed;
};

TEST_F(ScenarioTest, printsNothingWhereAllGoesAsExpected)
{
    const Tally tally = play("# A start\n\nstart\r\nexpect MDIOndelis.Left 4665\nexpect no message");
    EXPECT_EQ(tally.expectations, 2);
    EXPECT_EQ(tally.failures, 0);
    EXPECT_EQ(printed, "");
}

TEST_F(ScenarioTest, printsWhereWhatWasWantedAndWhatWasGot)
{
    const Tally tally = play("start\n\nexpect MDIOndelis.Left 1\nexpect Decibels.TxtA.Text \"x\"\n");
    EXPECT_EQ(tally.expectations, 2);
    EXPECT_EQ(tally.failures, 2);
    EXPECT_EQ(printed,
        ":3: expect MDIOndelis.Left 1: wanted 1, got 4665\n"
        ":4: expect Decibels.TxtA.Text \"x\": wanted \"x\", got null: the panel is not loaded\n");
}

TEST_F(ScenarioTest, failsOnARefusalThatNoExpectationNames)
{
    EXPECT_EQ(play("start\nmenu Rien\nstart").failures, 2);
    EXPECT_EQ(printed,
        ":2: menu Rien: refused: the menu has no such entry\n"
        ":3: start: refused: the program has started\n");
    EXPECT_EQ(play("start\nmenu Rien\nexpect no message\nexpect refused\nstart\nexpect refused").failures, 0);
}

TEST_F(ScenarioTest, failsOnAFaultThatNoExpectationNames)
{
    const std::string faulty = "start\nmenu MenuCircuitOscillant\ntype CircuitsOscillants.TxtFreq 1e999\n";
    EXPECT_EQ(play(faulty).failures, 1);
    EXPECT_EQ(printed, ":3: type CircuitsOscillants.TxtFreq 1e999: fault: overflow\n");
    EXPECT_EQ(play(faulty + "expect no message\nexpect fault overflow").failures, 0);
}

TEST_F(ScenarioTest, failsOnALineThatIsNoCommand)
{
    EXPECT_EQ(play("begin\nstart\nexpect nothing\ntype A.B \"x").failures, 3);
    EXPECT_EQ(printed,
        ":1: begin: no such command: begin\n"
        ":3: expect nothing: a word is missing\n"
        ":4: type A.B \"x: a quote is not closed\n");
}

TEST_F(ScenarioTest, startsAFreshProgramForEachFile)
{
    const Tally first = play("region , .\nscreen 20000 20000\nstart\nmenu MenuCircuitOscillant\n"
                             "type CircuitsOscillants.TxtFreq 7");
    EXPECT_EQ(first.failures, 0) << printed;
    const Tally second = play("start\nexpect MDIOndelis.Left 4665\nexpect CircuitsOscillants unloaded\n"
                              "menu MenuCircuitOscillant\nexpect CircuitsOscillants.TxtFreq.Text \"\"");
    EXPECT_EQ(second.failures, 0) << printed;
}

TEST_F(ScenarioTest, failsOnAFileThatCannotBeRead)
{
    std::ostringstream out;
    Headless body;
    EXPECT_EQ(playScenario(testing::TempDir() + "no such file", body, out).failures, 1);
    EXPECT_EQ(playScenario(testing::TempDir(), body, out).failures, 1);
}

} // namespace
} // namespace ondelis::pilote
