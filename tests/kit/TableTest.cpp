#include "kit/Table.h"

#include <gtest/gtest.h>

#include <string>

#include "Support.h"

namespace ondelis {
namespace {

TEST(Table, keepsAValueUnderEachIndex)
{
    Table<Double, 2> table;
    table(0) = 1.5;
    table(2) = 2.5;
    EXPECT_EQ(table(0), 1.5);
    EXPECT_EQ(table(1), 0);
    EXPECT_EQ(table(2), 2.5);
    EXPECT_EQ((Table<std::string, 0>{}(0)), "");
}

TEST(Table, startsWithGivenValuesAndZeros)
{
    constexpr Table<Double, 2> table{{3, 4}};
    EXPECT_EQ(table(0), 3);
    EXPECT_EQ(table(1), 4);
    EXPECT_EQ(table(2), 0);
    EXPECT_EQ(faultOf([&] { return table(3); }), FaultKind::SubscriptOutOfRange);
}

TEST(Table, anyOtherIndexIsOutOfRange)
{
    Table<Double, 2> table;
    EXPECT_EQ(faultOf([&] { return table(3); }), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(faultOf([&] { return table(-1); }), FaultKind::SubscriptOutOfRange);
}

} // namespace
} // namespace ondelis
