#include "kit/CheckedInteger.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "Support.h"

namespace ondelis {
namespace {

TEST(CheckedInteger, startsAtZero)
{
    EXPECT_EQ(Integer{}.value(), 0);
    EXPECT_EQ(Long{}.value(), 0);
}

TEST(CheckedInteger, integerHas16Bits)
{
    EXPECT_EQ(Integer{-32768}.value(), -32768);
    EXPECT_EQ(Integer{32767}.value(), 32767);
    EXPECT_EQ(faultOf([] { return Integer{32768}; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Integer{-32769}; }), FaultKind::Overflow);
}

TEST(CheckedInteger, longHas32Bits)
{
    constexpr int smallest = std::numeric_limits<std::int32_t>::min();
    constexpr int largest = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(Long{smallest}.value(), smallest);
    EXPECT_EQ(Long{largest}.value(), largest);
    EXPECT_EQ(faultOf([] { return Long{largest} + 1; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Long{smallest} - 1; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Long{65536} * 65536; }), FaultKind::Overflow);
}

TEST(CheckedInteger, arithmeticThatLeavesTheRangeIsAnOverflow)
{
    EXPECT_EQ(Integer{32766} + 1, 32767);
    EXPECT_EQ(faultOf([] { return Integer{32767} + 1; }), FaultKind::Overflow);
    EXPECT_EQ(Integer{-32767} - 1, -32768);
    EXPECT_EQ(faultOf([] { return Integer{-32768} - 1; }), FaultKind::Overflow);
    EXPECT_EQ(Integer{181} * 181, 32761);
    EXPECT_EQ(faultOf([] { return Integer{182} * 182; }), FaultKind::Overflow);
}

TEST(CheckedInteger, divisionGivesADouble)
{
    EXPECT_EQ(Integer{1} / Integer{4}, Double{0.25});
    EXPECT_EQ(faultOf([] { return Integer{1} / Integer{0}; }), FaultKind::DivisionByZero);
    EXPECT_EQ(faultOf([] { return Integer{0} / Integer{0}; }), FaultKind::Overflow);
}

TEST(CheckedInteger, withADoubleItComputesAsADouble)
{
    static_assert(std::is_same_v<decltype(Integer{1} * Double{2}), Term>);
    EXPECT_EQ(Integer{32767} * Double{2}, Double{65534});
    EXPECT_EQ(Double{1} / Integer{8}, Double{0.125});
}

TEST(CheckedInteger, comparesByValue)
{
    EXPECT_TRUE(Integer{3} < 4);
    EXPECT_TRUE(Integer{3} == 3);
    EXPECT_TRUE(Integer{3} < Double{3.5});
}

} // namespace
} // namespace ondelis
