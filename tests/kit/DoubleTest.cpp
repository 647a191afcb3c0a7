#include "kit/Double.h"

#include <gtest/gtest.h>

#include <limits>

#include "Support.h"

namespace ondelis {
namespace {

constexpr double largest = std::numeric_limits<double>::max();
constexpr double tiniest = std::numeric_limits<double>::denorm_min();

TEST(Double, startsAtZero)
{
    EXPECT_EQ(Double{}, 0);
}

TEST(Double, computesWithLiteralsOfBothKinds)
{
    const Double x = 2.5;
    EXPECT_EQ(x + 1, 3.5);
    EXPECT_EQ(1 - x, -1.5);
    EXPECT_EQ(x * 0.5, 1.25);
    EXPECT_EQ(5 / x, 2);
    EXPECT_EQ(-x, -2.5);
}

TEST(Double, comparesByValue)
{
    const Double x = 2.5;
    EXPECT_TRUE(x < 3);
    EXPECT_TRUE(x >= 2.5);
    EXPECT_TRUE(x != 0);
    EXPECT_TRUE(Double{-0.0} == 0);
}

TEST(Double, divisionOfWholeNumbersKeepsTheFraction)
{
    EXPECT_EQ(Double{1} / Double{4}, 0.25);
}

TEST(Double, eachOperationRoundsOnce)
{
    const Double tenth = 0.1;
    EXPECT_EQ(tenth + 0.2, 0.30000000000000004);
    EXPECT_EQ(Double{1.15} * 100, 114.99999999999999);
    // Were the product kept unrounded for the sum, the rest would be 2^-54 and not 0.
    const Double third = 1.0 + 0x1p-27;
    EXPECT_EQ(third * third - (1.0 + 0x1p-26), 0);
}

TEST(Double, aNumberDividedByZeroIsADivisionByZero)
{
    EXPECT_EQ(faultOf([] { return Double{1} / Double{0}; }), FaultKind::DivisionByZero);
    EXPECT_EQ(faultOf([] { return Double{-1} / Double{-0.0}; }), FaultKind::DivisionByZero);
    EXPECT_EQ(faultOf([] { return Double{tiniest} / Double{0}; }), FaultKind::DivisionByZero);
}

TEST(Double, zeroDividedByZeroIsAnOverflow)
{
    EXPECT_EQ(faultOf([] { return Double{0} / Double{0}; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Double{-0.0} / Double{0}; }), FaultKind::Overflow);
}

TEST(Double, aResultBeyondTheRangeIsAnOverflow)
{
    EXPECT_EQ(faultOf([] { return Double{largest} + largest; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Double{-largest} - largest; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Double{1e200} * 1e200; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Double{1e200} * -1e200; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Double{1e200} / 1e-200; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Term::checked(std::numeric_limits<double>::quiet_NaN()); }), FaultKind::Overflow);
}

TEST(Double, theLargestNumberIsInRange)
{
    EXPECT_EQ(Double{largest} + 0, largest);
    EXPECT_EQ(Double{largest} * -1, -largest);
}

TEST(Double, aResultTooSmallBecomesZeroOrSubnormalInSilence)
{
    EXPECT_EQ(Double{1e-200} * 1e-200, 0);
    EXPECT_EQ(Double{tiniest} / 2, 0);
    EXPECT_EQ(Double{1e-300} * 1e-20, 1e-320);
}

} // namespace
} // namespace ondelis
