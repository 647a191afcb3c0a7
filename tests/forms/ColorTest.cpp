#include <gtest/gtest.h>

#include "forms/Color.h"

namespace ondelis {
namespace {

TEST(Color, theColorsOfTheSystemAreTheirOwnKind)
{
    for (const Color color : {windowColor, windowTextColor})
        EXPECT_TRUE(isSystemColor(color)) << color;
    for (const Color color : {resultColor, white, black, red})
        EXPECT_FALSE(isSystemColor(color)) << color;
}

TEST(Color, aPlainColorIsThatOfTheLightPalette)
{
    struct Case {
        Color color;
        Color plain;
    };
    for (const auto [color, plain] : {Case{windowColor, 0xFFFFFF}, Case{windowTextColor, 0}, Case{red, 0x0000FF}})
        EXPECT_EQ(plainColor(color), plain) << color;
}

} // namespace
} // namespace ondelis
