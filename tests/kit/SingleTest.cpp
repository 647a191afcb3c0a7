#include "kit/Single.h"

#include <gtest/gtest.h>

#include <limits>

#include "Support.h"

namespace ondelis {
namespace {

TEST(Single, startsAtZero)
{
    EXPECT_EQ(Double{Single{}}, 0);
}

TEST(Single, roundsWhenItIsStored)
{
    EXPECT_EQ(Double{Single{Double{0.1}}}, 0.10000000149011612);
    EXPECT_EQ(Double{Single{Double{1.0 / 3}}}, 0.3333333432674408);
    EXPECT_EQ(Double{Single{16777217}}, 16777216); // the first whole number that it does not hold: a tie, to even
    EXPECT_EQ(Double{Single{19470}}, 19470);
}

TEST(Single, computesAsADouble)
{
    const Single third = Double{1.0 / 3};
    EXPECT_EQ(Double{third} * 3, 1.0000000298023224);
}

TEST(Single, valuesThatRoundToOneSingleAreEqual)
{
    EXPECT_TRUE(Single{Double{0.1}} == Single{Double{0.1000000001}});
    EXPECT_FALSE(Single{Double{0.1}} == Single{Double{0.10000001}});
}

TEST(Single, beyondItsRangeIsAnOverflow)
{
    constexpr double largest = std::numeric_limits<float>::max();
    constexpr double halfAStepAbove = 3.4028235677973366e38;
    constexpr double justBelowThat = 3.4028235677973362e38;
    EXPECT_EQ(Double{Single{Double{justBelowThat}}}, largest);
    EXPECT_EQ(faultOf([] { return Single{Double{halfAStepAbove}}; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Single{Double{-halfAStepAbove}}; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Single{Double{1e300}}; }), FaultKind::Overflow);
}

TEST(Single, tooSmallBecomesZeroInSilence)
{
    EXPECT_EQ(Double{Single{Double{1e-60}}}, 0);
}

} // namespace
} // namespace ondelis
