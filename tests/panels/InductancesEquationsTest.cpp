#include "panels/antennes/InductancesEquations.h"

#include <gtest/gtest.h>

namespace ondelis {
namespace {

TEST(InductancePolygoneTest, oneTurnOfEachPolygonWithSidesOfAMetre)
{
    EXPECT_DOUBLE_EQ(InductancePolygone(3, 1, 1).value(), 1.467425834068503);
    EXPECT_DOUBLE_EQ(InductancePolygone(4, 1, 1).value(), 3.0541376894459833);
    EXPECT_DOUBLE_EQ(InductancePolygone(6, 1, 1).value(), 2.2944311136307367);
    EXPECT_DOUBLE_EQ(InductancePolygone(8, 1, 1).value(), 1.9339280522320657);
}

TEST(InductancePolygoneTest, moreTurns)
{
    EXPECT_DOUBLE_EQ(InductancePolygone(8, 3, 0.5).value(), 1.6139954491664068);
}

TEST(InductancePolygoneTest, noOtherPolygonHasAnInductance)
{
    EXPECT_EQ(InductancePolygone(5, 1, 1).value(), 0);
    EXPECT_EQ(InductancePolygone(0, 1, 1).value(), 0);
}

} // namespace
} // namespace ondelis
