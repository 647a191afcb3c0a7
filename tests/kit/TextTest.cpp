#include "kit/Text.h"

#include <gtest/gtest.h>

#include "Support.h"

namespace ondelis {
namespace {

// "é" and "µ" have two bytes, "Ω" two, "€" and the narrow no-break blank three, the last one four.
constexpr const char* accented = "éµΩ€\u202f𝄞z";

TEST(Text, lengthCountsCharacters)
{
    EXPECT_EQ(Len(""), 0);
    EXPECT_EQ(Len("abc"), 3);
    EXPECT_EQ(Len("é"), 1);
    EXPECT_EQ(Len(accented), 7);
}

TEST(Text, aCharacterStartsAtItsFirstByteOnly)
{
    const auto starts = [](std::string_view text) {
        std::string found;
        for (const char byte : text)
            found += startsCharacter(byte) ? 'x' : '.';
        return found;
    };
    EXPECT_EQ(starts(std::string_view{"\0az~\x7F", 5}), "xxxxx");
    EXPECT_EQ(starts("é€𝄞"), "x.x..x...");
    EXPECT_EQ(starts("\u0080\u00BF"), "x.x."); // end in the lowest and the highest byte that continues a character
}

TEST(Text, leftGivesTheFirstCharacters)
{
    EXPECT_EQ(Left("Méga", 0), "");
    EXPECT_EQ(Left("Méga", 2), "Mé");
    EXPECT_EQ(Left("Méga", 4), "Méga");
    EXPECT_EQ(Left("Méga", 9), "Méga");
    EXPECT_EQ(Left(accented, 6), "éµΩ€\u202f𝄞");
    EXPECT_EQ(Left("", 1), "");
}

TEST(Text, rightGivesTheLastCharacters)
{
    EXPECT_EQ(Right("Méga", 0), "");
    EXPECT_EQ(Right("Méga", 3), "éga");
    EXPECT_EQ(Right("Méga", 9), "Méga");
    EXPECT_EQ(Right(accented, 2), "𝄞z");
    EXPECT_EQ(Right("", 1), "");
}

TEST(Text, midGivesCharactersFromAPlaceCountedFromOne)
{
    EXPECT_EQ(Mid("Méga", 1, 1), "M");
    EXPECT_EQ(Mid("Méga", 2, 2), "ég");
    EXPECT_EQ(Mid("Méga", 3, 9), "ga");
    EXPECT_EQ(Mid("Méga", 5, 1), "");
    EXPECT_EQ(Mid("Méga", 9, 1), "");
    EXPECT_EQ(Mid("Méga", 2, 0), "");
    EXPECT_EQ(Mid(accented, 4, 2), "€\u202f");
}

TEST(Text, capitals)
{
    EXPECT_EQ(UCase(""), "");
    EXPECT_EQ(UCase("r47 / 4R7 az`{@[AZ"), "R47 / 4R7 AZ`{@[AZ");
    EXPECT_EQ(UCase("éàçùœÿšž÷×ß"), "ÉÀÇÙŒŸŠŽ÷×ß");
    EXPECT_EQ(UCase("þý ÉÞ"), "ÞÝ ÉÞ");
    EXPECT_EQ(UCase(accented), "ÉµΩ€\u202f𝄞Z");
}

TEST(Text, aNegativeCountOrAStartBelowOneIsAnInvalidArgument)
{
    EXPECT_EQ(faultOf([] { return Left("abc", -1); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([] { return Left("", -1); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([] { return Right("abc", -1); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([] { return Mid("abc", 0, 1); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([] { return Mid("abc", 1, -1); }), FaultKind::InvalidArgument);
}

} // namespace
} // namespace ondelis
