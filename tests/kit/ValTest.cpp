#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <initializer_list>
#include <string>

#include "Support.h"
#include "kit/Conversions.h"

namespace ondelis {
namespace {

struct Row {
    const char* text;
    double number;
};

void expect(std::initializer_list<Row> rows)
{
    for (const auto& [text, number] : rows)
        EXPECT_EQ(Val(text), number) << '"' << text << '"';
}

TEST(Val, readsNumbers)
{
    expect({
        {"0", 0},
        {"12", 12},
        {"12.5", 12.5},
        {".5", 0.5},
        {"5.", 5},
        {"007", 7},
        {"-3", -3},
        {"+3", 3},
        {"-.25", -0.25},
        {"0.1", 0.1},
        {"123456789012345678", 123456789012345678.0},
    });
}

TEST(Val, ofATextThatStartsWithNoNumberIsZero)
{
    expect({
        {"", 0},
        {" ", 0},
        {"abc", 0},
        {",", 0},
        {".", 0},
        {"-", 0},
        {"+", 0},
        {"-.", 0},
        {"--3", 0},
        {"+-3", 0},
        {"e5", 0},
        {".e5", 0},
        {"d5", 0},
        {"€5", 0},
        {"inf", 0},
        {"-inf", 0},
        {"nan", 0},
        {"infinity", 0},
    });
}

TEST(Val, stopsWhereTheNumberCannotGoOn)
{
    expect({
        {"12,5", 12},
        {"12.5.7", 12.5},
        {"12abc", 12},
        {"12 kHz", 12},
        {"3-4", 3},
        {"3+4", 3},
        {"1e3.5", 1000},
        {"0x10", 0},
        {"5µ", 5},
        {"1\u202f000", 1},
        {"7\r8", 7},
    });
}

TEST(Val, skipsBlanksTabsAndLineFeedsWhereverTheyStand)
{
    expect({
        {"1 000", 1000},
        {"  12", 12},
        {"12  ", 12},
        {"- 3", -3},
        {"1\t2\n3", 123},
        {"1 . 5", 1.5},
        {"1 e 3", 1000},
        {"1 e - 3", 0.001},
        {" & H F F ", 255},
    });
}

TEST(Val, readsAnExponentMarkedByEOrD)
{
    expect({
        {"1e3", 1000},
        {"1E3", 1000},
        {"1d3", 1000},
        {"1D3", 1000},
        {"1e+3", 1000},
        {"1d+3", 1000},
        {"25e-1", 2.5},
        {"25D-1", 2.5},
        {"-1.5d2", -150},
        {".5d1", 5},
        {"5.d1", 50},
        {"1E03", 1000},
    });
}

TEST(Val, leavesOutAnExponentWithoutDigits)
{
    expect({
        {"12e", 12},
        {"12e+", 12},
        {"12d", 12},
        {"12d-", 12},
        {"12e d", 12},
        {"1e2e3", 100},
        {"1e2d3", 100},
        {"1d2e3", 100},
        {"1d2d3", 100},
    });
}

TEST(Val, readsHexadecimalAndOctalWholeNumbers)
{
    expect({
        {"&HFF", 255},
        {"&hff", 255},
        {"&HFFFF", 65535},
        {"&H10000", 65536},
        {"&HFFFFFFFF", 4294967295.0},
        {"&HFFG", 255},
        {"&H1.8", 1},
        {"&H1D2", 466},
        {"&O17", 15},
        {"&o17", 15},
        {"&O178", 15},
        {"&H", 0},
        {"&O", 0},
        {"&", 0},
        {"&17", 0},
        {"-&HFF", 0},
    });
}

TEST(Val, beyondTheRangeIsAnOverflow)
{
    for (const char* text : {"1e309", "-1e309", "1d309", "1.8e308", "1e99999999999999999999", "1 e 400"})
        EXPECT_EQ(faultOf([&] { return Val(text); }), FaultKind::Overflow) << text;
    EXPECT_EQ(faultOf([] { return Val(std::string(400, '9')); }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Val("&H" + std::string(300, 'F')); }), FaultKind::Overflow);
}

TEST(Val, reachesToTheEndsOfTheRange)
{
    expect({
        {"1.7976931348623157e308", 1.7976931348623157e308},
        {"-1.7976931348623157e308", -1.7976931348623157e308},
        {"4.9406564584124654e-324", 4.9406564584124654e-324},
        {"1e-310", 1e-310},
    });
}

TEST(Val, tooSmallIsZero)
{
    expect({
        {"1e-400", 0},
        {"-1e-400", 0},
        {"1d-400", 0},
        {"2e-324", 0},
        {"1e-99999999999999999999", 0},
        {"0e99999999999999999999", 0},
    });
    EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0);
}

TEST(Val, weighsTheDigitsOfALongNumberAgainstItsExponent)
{
    EXPECT_EQ(Val("1" + std::string(400, '0') + "e-400"), 1);
    EXPECT_EQ(Val("0." + std::string(400, '0') + "1e401"), 1);
    EXPECT_EQ(Val("1" + std::string(400, '0') + "d-400"), 1);
    EXPECT_EQ(Val("1" + std::string(400, '0') + " e-400"), 1);
    EXPECT_EQ(faultOf([] { return Val("1" + std::string(400, '0') + " e-4"); }), FaultKind::Overflow);
}

TEST(Val, readsAPointInEveryRegion)
{
    for (const Region& inside : {english, german, french, olderFrench}) {
        const ScopedRegion scope{inside};
        expect({{"12.5", 12.5}, {"12,5", 12}, {"12,75", 12}, {"1.000", 1}, {"1 000", 1000}});
    }
}

TEST(Val, readsExtremesInAForeignLocaleOfTheProcess)
{
    // A toolkit sets the locale of the whole process; the C library then reads "," as the decimal point.
    setenv("LOCPATH", TEST_LOCALES, 1);
    ASSERT_NE(std::setlocale(LC_ALL, "fr_FR.UTF-8"), nullptr);
    expect({{"12.5", 12.5}, {"1.5e-400", 0}});
    EXPECT_EQ(faultOf([] { return Val("1.5e400"); }), FaultKind::Overflow);
    EXPECT_EQ(Str(0.5), " .5");
    EXPECT_EQ(CStr(0.5), "0.5");
    std::setlocale(LC_ALL, "C");
    unsetenv("LOCPATH");
}

} // namespace
} // namespace ondelis
