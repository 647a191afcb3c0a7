#include "kit/Maths.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Support.h"
#include "kit/Conversions.h"

namespace ondelis {
namespace {

struct Row {
    double from;
    double to;
};

TEST(Fix, truncatesTowardZero)
{
    for (const auto& [from, to] : {Row{2.7, 2}, {-2.7, -2}, {2, 2}, {-0.3, 0}, {0, 0}, {1e20, 1e20}})
        EXPECT_EQ(Fix(from), to) << from;
}

TEST(Int, roundsTowardMinusInfinity)
{
    for (const auto& [from, to] : {Row{2.7, 2}, {-2.7, -3}, {2, 2}, {-2, -2}, {-0.3, -1}, {0, 0}, {1e20, 1e20}})
        EXPECT_EQ(Int(from), to) << from;
}

TEST(CInt, roundsToTheNearestATieToTheEvenOne)
{
    for (const auto& [from, to] : {Row{2.5, 2}, {3.5, 4}, {-2.5, -2}, {-3.5, -4}, {0.5, 0}, {-0.5, 0}, {1.5, 2},
             {2.4999, 2}, {2.5001, 3}, {-2.5001, -3}, {32767.4999, 32767}, {-32768.5, -32768}})
        EXPECT_EQ(CInt(from), Double{to}) << from;
}

TEST(CInt, outOf16BitsIsAnOverflow)
{
    for (const double x : {32767.5, 32768.0, -32768.50001, -32769.0, 65535.0, 1e300, -1e300})
        EXPECT_EQ(faultOf([&] { return CInt(x); }), FaultKind::Overflow) << x;
}

TEST(CLng, roundsToTheNearestATieToTheEvenOne)
{
    for (const auto& [from, to] :
        {Row{2.5, 2}, {3.5, 4}, {-0.5, 0}, {40000.5, 40000}, {2147483647.25, 2147483647}, {-2147483648.5, -2147483648}})
        EXPECT_EQ(CLng(from), Double{to}) << from;
}

TEST(CLng, outOf32BitsIsAnOverflow)
{
    for (const double x : {2147483647.5, 2147483648.0, -2147483648.75, -2147483649.0, 1e300, -1e300})
        EXPECT_EQ(faultOf([&] { return CLng(x); }), FaultKind::Overflow) << x;
}

TEST(Abs, leavesOutTheSign)
{
    for (const auto& [from, to] : {Row{2.5, 2.5}, {-2.5, 2.5}, {0, 0}})
        EXPECT_EQ(Abs(from), to) << from;
}

TEST(Sgn, isMinusOneZeroOrOne)
{
    for (const auto& [from, to] : {Row{2.5, 1}, {-2.5, -1}, {0, 0}, {-0.0, 0}, {1e-320, 1}})
        EXPECT_EQ(Sgn(from), Double{to}) << from;
}

TEST(Sqr, isTheSquareRoot)
{
    for (const auto& [from, to] : {Row{9, 3}, {2, std::numbers::sqrt2}, {0, 0}, {-0.0, 0}})
        EXPECT_EQ(Sqr(from), to) << from;
}

TEST(Sqr, ofANegativeNumberIsAnInvalidArgument)
{
    EXPECT_EQ(faultOf([] { return Sqr(-1); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([] { return Sqr(-1e-320); }), FaultKind::InvalidArgument);
}

TEST(Log, isTheNaturalLogarithm)
{
    for (const auto& [from, to] : {Row{1, 0}, {10, std::numbers::ln10}, {0.5, -std::numbers::ln2}})
        EXPECT_EQ(Log(from), to) << from;
}

TEST(Log, ofZeroAndBelowIsAnInvalidArgument)
{
    for (const double x : {0.0, -0.0, -1.0, -1e-320})
        EXPECT_EQ(faultOf([&] { return Log(x); }), FaultKind::InvalidArgument) << x;
}

TEST(Log10, isAQuotientOfLogarithms)
{
    EXPECT_EQ(Log10(1), 0);
    EXPECT_EQ(Log10(10), 1);
    EXPECT_EQ(Log10(100), 2);
    EXPECT_EQ(Log10(1000), 2.9999999999999996); // the true one is 3
    EXPECT_EQ(Log10(2), Log(2) / Log(10));
}

TEST(Log10, ofZeroAndBelowIsAnInvalidArgument)
{
    EXPECT_EQ(faultOf([] { return Log10(0); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([] { return Log10(-1); }), FaultKind::InvalidArgument);
}

TEST(Pow, raisesToAPower)
{
    EXPECT_EQ(Pow(2, 10), 1024);
    EXPECT_EQ(Pow(10, -3), 0.001);
    EXPECT_EQ(Pow(4, 0.5), 2);
    EXPECT_EQ(Pow(-2, 3), -8);
    EXPECT_EQ(Pow(-2, -1), -0.5);
    EXPECT_EQ(Pow(0, 2), 0);
    EXPECT_EQ(Pow(0, 0), 1);
    EXPECT_EQ(Pow(5, 0), 1);
    EXPECT_EQ(Pow(0.25, 0.5), 0.5);
    EXPECT_EQ(Pow(0, 0.5), 0);
    EXPECT_EQ(Pow(1, -1), 1);
}

TEST(Pow, ofANegativeNumberToAFractionIsAnInvalidArgument)
{
    EXPECT_EQ(faultOf([] { return Pow(-8, 1.0 / 3); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([] { return Pow(-1, -0.5); }), FaultKind::InvalidArgument);
}

TEST(Pow, ofZeroToANegativeNumberIsAnInvalidArgument)
{
    EXPECT_EQ(faultOf([] { return Pow(0, -1); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([] { return Pow(-0.0, -0.5); }), FaultKind::InvalidArgument);
}

TEST(Pow, beyondTheRangeIsAnOverflow)
{
    EXPECT_EQ(faultOf([] { return Pow(10, 309); }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Pow(-10, 309); }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Pow(0.1, -309); }), FaultKind::Overflow);
    EXPECT_EQ(Pow(10, -400), 0);
}

TEST(Trigonometry, isInRadians)
{
    EXPECT_EQ(Atn(1), std::numbers::pi / 4);
    EXPECT_EQ(Sin(std::numbers::pi / 2), 1);
    EXPECT_EQ(Cos(std::numbers::pi), -1);
    EXPECT_EQ(Sin(0), 0);
}

TEST(Pi, isFourTimesTheArcTangentOfOne)
{
    EXPECT_EQ(Pi(), std::numbers::pi);
}

TEST(CuttingToDecimals, truncatesTheProductAsItRounds)
{
    struct Case {
        double number;
        const char* text;
    };
    constexpr Case cases[] = {
        {1.999, "1.99"},
        {1.15, "1.14"},
        {1.4, "1.4"},
        {-0.5, "-0.5"},
        {-1.999, "-1.99"},
        {0.001, "0"},
        {-0.001, "0"},
    };
    for (const auto& [number, text] : cases)
        EXPECT_EQ(CStr(Truncate(Double{number}, 100)), text);
}

TEST(CuttingToDecimals, keepsThreeOrFourWhereAskedTo)
{
    const Double x = 12.34567;
    EXPECT_EQ(CStr(Truncate(x, 1000)), "12.345");
    EXPECT_EQ(CStr(Truncate(x, 10000)), "12.3456");
    EXPECT_EQ(Str(Truncate(x, 100)), " 12.34");
    EXPECT_EQ(Str(Truncate(x, 1000)), " 12.345");
}

} // namespace
} // namespace ondelis
