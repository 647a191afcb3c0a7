#include "ScriptedSurroundings.h"

#include <gtest/gtest.h>

namespace ondelis::pilote {
namespace {

const MessageBox question{.prompt = "Continuer ?", .buttons = 4};

TEST(ScriptedSurroundingsTest, answersQuestionsInTheOrderOfTheAnswers)
{
    ScriptedSurroundings world;
    world.answer(Answer::No);
    world.answer(Answer::Yes);
    world.answer(Answer::No);
    EXPECT_EQ(world.showBox(question), Answer::No);
    EXPECT_EQ(world.showBox(question), Answer::Yes);
    EXPECT_EQ(world.showBox(question), Answer::No);
    EXPECT_EQ(world.showBox(question), Answer::Yes);
}

TEST(ScriptedSurroundingsTest, keepsAnAnswerForTheNextQuestion)
{
    ScriptedSurroundings world;
    world.answer(Answer::No);
    EXPECT_EQ(world.showBox({.prompt = "Attention"}), Answer::Ok);
    world.forget();
    EXPECT_EQ(world.showBox(question), Answer::No);
}

TEST(ScriptedSurroundingsTest, remembersBoxesAndFaultUntilToldToForget)
{
    ScriptedSurroundings world;
    world.showBox(question);
    world.showFault(Fault{FaultKind::Overflow});
    EXPECT_EQ(world.boxes().back().prompt, "Continuer ?");
    EXPECT_EQ(world.boxes().back().title, "Ondelis");
    EXPECT_EQ(world.fault().value().kind(), FaultKind::Overflow);
    world.forget();
    EXPECT_TRUE(world.boxes().empty());
    EXPECT_FALSE(world.fault().has_value());
}

} // namespace
} // namespace ondelis::pilote
