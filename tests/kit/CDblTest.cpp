#include <gtest/gtest.h>

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

void expect(const Region& inside, std::initializer_list<Row> rows)
{
    const ScopedRegion scope{inside};
    for (const auto& [text, number] : rows)
        EXPECT_EQ(CDbl(text), number) << '"' << text << '"';
}

void expectMismatch(const Region& inside, std::initializer_list<const char*> texts)
{
    const ScopedRegion scope{inside};
    for (const char* text : texts)
        EXPECT_EQ(faultOf([&] { return CDbl(text); }), FaultKind::TypeMismatch) << '"' << text << '"';
}

TEST(CDbl, readsNumbersOfAPointRegion)
{
    expect(english,
        {
            {"0", 0},
            {"12", 12},
            {"12.5", 12.5},
            {".5", 0.5},
            {"5.", 5},
            {"-3", -3},
            {"+3", 3},
            {"-.5", -0.5},
            {"1,234", 1234},
            {"1,234.5", 1234.5},
            {"1,234,567.25", 1234567.25},
            {"-1,234", -1234},
        });
}

TEST(CDbl, readsNumbersOfACommaRegion)
{
    expect(german,
        {
            {"12", 12},
            {"12,5", 12.5},
            {",5", 0.5},
            {"5,", 5},
            {"-3,25", -3.25},
        });
}

TEST(CDbl, readsNumbersOfACommaRegionWithBlanks)
{
    for (const Region& inside : {french, olderFrench})
        expect(inside,
            {
                {"12", 12},
                {"12,5", 12.5},
                {"-,5", -0.5},
                {"1\u202f234,5", 1234.5},
                {"1\u00a0234,5", 1234.5},
                {"1 234,5", 1234.5},
                {"1\u202f234\u202f567", 1234567},
                {"1e3", 1000},
                {"1,5e3", 1500},
            });
}

TEST(CDbl, readsNumbersOfARegionWithApostrophes)
{
    expect(swiss,
        {
            {"12.5", 12.5},
            {"1\u2019234.5", 1234.5},
            {"1'234.5", 1234.5},
            {"-1'234\u2019567", -1234567},
        });
    expectMismatch(swiss, {"'5", "\u20195", "1.5'5", "1''2", "1 234", "1,234", "1\u2018234"});
    const Region typed{.decimal = ".", .thousands = "'"};
    expect(typed, {{"1'234.5", 1234.5}});
    expectMismatch(typed, {"1\u2019234"});
    for (const Region& inside : {english, german, french})
        expectMismatch(inside, {"1'234", "1\u2019234"});
}

TEST(CDbl, readsAThousandsSeparatorAsItIsTyped)
{
    expect(english, {{"1,", 1}, {"1,2", 12}, {"1,23", 123}, {"1,234", 1234}, {"1,2345", 12345}});
    expect(french, {{"1 ", 1}, {"1 2", 12}, {"1 23", 123}, {"1 234", 1234}});
    expect(swiss, {{"1'", 1}, {"1'2", 12}, {"1'23", 123}, {"1'234", 1234}});
}

TEST(CDbl, readsAnExponentMarkedByEOrD)
{
    expect(
        english, {{"1e3", 1000}, {"1E3", 1000}, {"1d3", 1000}, {"1D3", 1000}, {"25e-1", 2.5}, {"1,000.5d+2", 100050}});
}

TEST(CDbl, leavesOutBlanksAroundTheNumber)
{
    expect(english, {{" 12.5", 12.5}, {"12.5 ", 12.5}, {"\t12.5\n", 12.5}});
    expect(german, {{" 12,5 ", 12.5}});
}

TEST(CDbl, ofATextThatIsNoNumberIsATypeMismatch)
{
    for (const Region& inside : {english, german, french, olderFrench})
        expectMismatch(inside,
            {"", " ", "abc", "12abc", "12 kHz", "-", "+", ".", ",", "-.", "--3", "- 3", "3-", "1e", "1e+", "e5",
                "1e2e3", "1d2d3", "1..5", "1,,5,,e", "inf", "nan", "-inf", "0x10", "&HFF", "1;5", "€", "1e1,000",
                "1e1.5"});
}

TEST(CDbl, ofAPointInACommaRegionIsATypeMismatch)
{
    for (const Region& inside : {german, french, olderFrench})
        expectMismatch(
            inside, {"12.5", ".5", "5.", "1.5e3", "1.234", "-1.234", "1.234,5", "1.234.567,25", "1,5.5", "1,5.555"});
}

TEST(CDbl, ofASecondDecimalSeparatorIsATypeMismatch)
{
    expectMismatch(english, {"1.5.5", "1.5,5", "1.,5"});
    expectMismatch(german, {"1,5,5"});
}

TEST(CDbl, ofAThousandsSeparatorWithoutADigitAheadIsATypeMismatch)
{
    expectMismatch(english, {",5", "-,5", ",234"});
    expectMismatch(french, {"\u202f5"});
}

TEST(CDbl, ofInnerBlanksInAPointRegionIsATypeMismatch)
{
    expectMismatch(english, {"1 000", "1\u00a0000", "1 . 5", "1 e3"});
}

TEST(CDbl, knowsNoThousandsSeparatorWhereTheRegionHasNone)
{
    const Region plain{.decimal = ".", .thousands = ""};
    expect(plain, {{"1234.5", 1234.5}});
    expectMismatch(plain, {"1,234", "1 234"});
}

TEST(CDbl, beyondTheRangeIsAnOverflow)
{
    for (const char* text : {"1e309", "-1e309", "1d309", "1.8e308", "1e99999999999999999999"})
        EXPECT_EQ(faultOf([&] { return CDbl(text); }), FaultKind::Overflow) << text;
    const ScopedRegion scope{french};
    EXPECT_EQ(faultOf([] { return CDbl("1,8e308"); }), FaultKind::Overflow);
}

TEST(CDbl, tooSmallIsZero)
{
    expect(english, {{"1e-400", 0}, {"-1e-400", 0}});
}

TEST(CIntOfText, readsByTheRegionAndRoundsTiesToEven)
{
    EXPECT_EQ(CInt("2.5"), 2);
    EXPECT_EQ(CInt("3.5"), 4);
    EXPECT_EQ(CInt("1,000"), 1000);
    const ScopedRegion scope{french};
    EXPECT_EQ(CInt("2,5"), 2);
    EXPECT_EQ(CInt("-3,5"), -4);
}

TEST(CIntOfText, hasTheFaultsOfBothConversions)
{
    EXPECT_EQ(faultOf([] { return CInt(""); }), FaultKind::TypeMismatch);
    EXPECT_EQ(faultOf([] { return CInt("abc"); }), FaultKind::TypeMismatch);
    EXPECT_EQ(faultOf([] { return CInt("32768"); }), FaultKind::Overflow);
}

} // namespace
} // namespace ondelis
