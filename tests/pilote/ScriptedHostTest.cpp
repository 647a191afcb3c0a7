#include "ScriptedHost.h"

#include <gtest/gtest.h>

namespace ondelis::pilote {
namespace {

const MessageBox question{.prompt = "Continuer ?", .buttons = 4};

TEST(ScriptedHostTest, answersQuestionsInTheOrderOfTheAnswers)
{
    ScriptedHost host;
    host.answer(Answer::No);
    host.answer(Answer::Yes);
    host.answer(Answer::No);
    EXPECT_EQ(host.showBox(question), Answer::No);
    EXPECT_EQ(host.showBox(question), Answer::Yes);
    EXPECT_EQ(host.showBox(question), Answer::No);
    EXPECT_EQ(host.showBox(question), Answer::Yes);
}

TEST(ScriptedHostTest, keepsAnAnswerForTheNextQuestion)
{
    ScriptedHost host;
    host.answer(Answer::No);
    EXPECT_EQ(host.showBox({.prompt = "Attention"}), Answer::Ok);
    host.forget();
    EXPECT_EQ(host.showBox(question), Answer::No);
}

TEST(ScriptedHostTest, remembersBoxesAndFaultUntilToldToForget)
{
    ScriptedHost host;
    host.showBox(question);
    host.showFault(Fault{FaultKind::Overflow});
    EXPECT_EQ(host.boxes().back().prompt, "Continuer ?");
    EXPECT_EQ(host.boxes().back().title, "Ondelis");
    EXPECT_EQ(host.fault().value().kind(), FaultKind::Overflow);
    host.forget();
    EXPECT_TRUE(host.boxes().empty());
    EXPECT_FALSE(host.fault().has_value());
}

} // namespace
} // namespace ondelis::pilote
