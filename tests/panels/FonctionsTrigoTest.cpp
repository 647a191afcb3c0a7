#include "panels/filtres/FonctionsTrigo.h"

#include <tuple>

#include <gtest/gtest.h>

#include "kit/Fault.h"

namespace ondelis {
namespace {

TEST(ArcTan2Test, hasTheFourQuadrants)
{
    EXPECT_DOUBLE_EQ(ArcTan2(1, 1).value(), 0.7853981633974483);
    EXPECT_DOUBLE_EQ(ArcTan2(2, 3).value(), 0.5880026035475675);
    EXPECT_DOUBLE_EQ(ArcTan2(2, -3).value(), 2.5535900500422257);
    EXPECT_DOUBLE_EQ(ArcTan2(-2, 3).value(), -0.5880026035475675);
    EXPECT_DOUBLE_EQ(ArcTan2(-2, -3).value(), -2.5535900500422257);
}

TEST(ArcTan2Test, hasTheAxes)
{
    EXPECT_EQ(ArcTan2(0, 1).value(), 0);
    EXPECT_DOUBLE_EQ(ArcTan2(0, -1).value(), 3.141592653589793);
    EXPECT_DOUBLE_EQ(ArcTan2(1, 0).value(), 1.5707963267948966);
    EXPECT_DOUBLE_EQ(ArcTan2(-1, 0).value(), -1.5707963267948966);
    EXPECT_EQ(ArcTan2(0, 0.5).value(), 0);
}

TEST(ArcTan2Test, takesAnAbscissaBelowTheThresholdForNone)
{
    EXPECT_DOUBLE_EQ(ArcTan2(1, 0.99e-7).value(), 1.5707963267948966);
    EXPECT_DOUBLE_EQ(ArcTan2(1, -0.99e-7).value(), 1.5707963267948966);
    EXPECT_DOUBLE_EQ(ArcTan2(1, 1e-7).value(), 1.5707962267948967); // the threshold itself counts
}

TEST(ArcCosTest, goesFromZeroToPi)
{
    EXPECT_EQ(ArcCos(1).value(), 0);
    EXPECT_DOUBLE_EQ(ArcCos(0.6).value(), 0.9272952180016123);
    EXPECT_DOUBLE_EQ(ArcCos(0).value(), 1.5707963267948966);
    EXPECT_DOUBLE_EQ(ArcCos(-0.5).value(), 2.0943951023931957);
    EXPECT_DOUBLE_EQ(ArcCos(-1).value(), 3.141592653589793);
    EXPECT_THROW(std::ignore = ArcCos(1.01), Fault);
}

} // namespace
} // namespace ondelis
