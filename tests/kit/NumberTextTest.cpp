#include <gtest/gtest.h>

#include "Support.h"
#include "kit/Conversions.h"

namespace ondelis {
namespace {

struct Row {
    double number;
    const char* cstr;
    const char* cstrInCommaRegion;
    const char* str;
};

constexpr Row rows[] = {
    // number                CStr                     in a comma region        Str
    {0, "0", "0", " 0"},
    {-0.0, "0", "0", " 0"},
    {3, "3", "3", " 3"},
    {-3, "-3", "-3", "-3"},
    {10, "10", "10", " 10"},
    {-1.5, "-1.5", "-1,5", "-1.5"},
    // below 1 the "0" before the point stays in one, goes in the other
    {0.5, "0.5", "0,5", " .5"},
    {-0.5, "-0.5", "-0,5", "-.5"},
    {0.05, "0.05", "0,05", " .05"},
    {10.05, "10.05", "10,05", " 10.05"},
    // at most 15 significant digits, no trailing zeros, no thousands separator
    {0.1, "0.1", "0,1", " .1"},
    {1.0 / 3, "0.333333333333333", "0,333333333333333", " .333333333333333"},
    {2.0 / 3, "0.666666666666667", "0,666666666666667", " .666666666666667"},
    {100.0 / 3, "33.3333333333333", "33,3333333333333", " 33.3333333333333"},
    {0.1 + 0.2, "0.3", "0,3", " .3"},
    {1234567.5, "1234567.5", "1234567,5", " 1234567.5"},
    {123456789012345, "123456789012345", "123456789012345", " 123456789012345"},
    {12345678901234.56, "12345678901234.6", "12345678901234,6", " 12345678901234.6"},
    // the scientific form begins at 1E+15
    {999999999999999, "999999999999999", "999999999999999", " 999999999999999"},
    {999999999999999.9, "1E+15", "1E+15", " 1E+15"},
    {1E15, "1E+15", "1E+15", " 1E+15"},
    {-1E15, "-1E+15", "-1E+15", "-1E+15"},
    {1.25E15, "1.25E+15", "1,25E+15", " 1.25E+15"},
    {1234567890123456, "1.23456789012346E+15", "1,23456789012346E+15", " 1.23456789012346E+15"},
    // and below 0.0001
    {0.0001, "0.0001", "0,0001", " .0001"},
    {0.000123, "0.000123", "0,000123", " .000123"},
    {0.00009, "9E-05", "9E-05", " 9E-05"},
    {0.000099, "9.9E-05", "9,9E-05", " 9.9E-05"},
    {0.000025, "2.5E-05", "2,5E-05", " 2.5E-05"},
    {-0.000025, "-2.5E-05", "-2,5E-05", "-2.5E-05"},
    {0.000099999999999999999, "0.0001", "0,0001", " .0001"},
    // with a signed exponent of at least two digits
    {1E20, "1E+20", "1E+20", " 1E+20"},
    {1E-9, "1E-09", "1E-09", " 1E-09"},
    {1E100, "1E+100", "1E+100", " 1E+100"},
    {-1.5E-100, "-1.5E-100", "-1,5E-100", "-1.5E-100"},
    {1.7976931348623157E308, "1.79769313486232E+308", "1,79769313486232E+308", " 1.79769313486232E+308"},
    {4.9406564584124654E-324, "4.94065645841247E-324", "4,94065645841247E-324", " 4.94065645841247E-324"},
};

TEST(CStr, writesThePointOfAnEnglishRegion)
{
    const ScopedRegion scope{english};
    for (const Row& row : rows)
        EXPECT_EQ(CStr(row.number), row.cstr);
}

TEST(CStr, writesTheCommaOfTheRegion)
{
    for (const Region& inside : {german, french, olderFrench}) {
        const ScopedRegion scope{inside};
        for (const Row& row : rows)
            EXPECT_EQ(CStr(row.number), row.cstrInCommaRegion);
    }
}

TEST(CStr, writesADecimalSeparatorOfSeveralBytes)
{
    const ScopedRegion scope{{.decimal = "٫", .thousands = "٬"}};
    EXPECT_EQ(CStr(12.5), "12٫5");
    EXPECT_EQ(CDbl("1٬234٫5"), 1234.5);
}

TEST(CStr, ofAWholeNumberGivesItsPlainDigits)
{
    EXPECT_EQ(CStr(Integer{-32768}), "-32768");
    EXPECT_EQ(CStr(Integer{0}), "0");
    EXPECT_EQ(CStr(Long{2147483647}), "2147483647");
}

TEST(Str, writesAPointInEveryRegion)
{
    for (const Region& inside : {english, german, french, olderFrench}) {
        const ScopedRegion scope{inside};
        for (const Row& row : rows)
            EXPECT_EQ(Str(row.number), row.str);
    }
}

TEST(Str, readsBackThroughValInEveryRegion)
{
    for (const Region& inside : {english, german, french}) {
        const ScopedRegion scope{inside};
        EXPECT_EQ(Val(Str(12.75)), 12.75);
        EXPECT_EQ(Val(Str(-0.5)), -0.5);
        EXPECT_EQ(Val(Str(2.5E-05)), 2.5E-05);
    }
}

TEST(CStr, readsBackThroughValOnlyInAPointRegion)
{
    EXPECT_EQ(Val(CStr(12.75)), 12.75);
    const ScopedRegion scope{french};
    EXPECT_EQ(Val(CStr(12.75)), 12);
}

TEST(CStr, readsBackThroughCDblInEveryRegion)
{
    for (const Region& inside : {english, german, french, olderFrench}) {
        const ScopedRegion scope{inside};
        EXPECT_EQ(CDbl(CStr(12.75)), 12.75);
        EXPECT_EQ(CDbl(CStr(1234567.5)), 1234567.5);
        EXPECT_EQ(CDbl(CStr(-2.5E-05)), -2.5E-05);
    }
}

} // namespace
} // namespace ondelis
