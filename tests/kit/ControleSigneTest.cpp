#include "kit/ControleSigne.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Support.h"

namespace ondelis {
namespace {

struct ControleSigneTest : testing::Test {
    Double check(Double v)
    {
        return ControleSigne(v, [this](const std::string& prompt) { prompts.push_back(prompt); });
    }

    std::vector<std::string> prompts;
};

TEST_F(ControleSigneTest, givesBackAPositiveNumber)
{
    EXPECT_EQ(check(12.5), 12.5);
    EXPECT_TRUE(prompts.empty());
}

TEST_F(ControleSigneTest, acceptsZeroWithoutAMessage)
{
    EXPECT_EQ(check(0), 0);
    EXPECT_EQ(check(-0.0), 0);
    EXPECT_TRUE(prompts.empty());
}

TEST_F(ControleSigneTest, showsOneMessageForANegativeNumberAndGivesZero)
{
    EXPECT_EQ(check(-0.001), 0);
    EXPECT_EQ(prompts, std::vector<std::string>{"La valeur doit être positive"});
}

} // namespace
} // namespace ondelis
