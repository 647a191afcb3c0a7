#include "kit/TraitementMultiplicateur.h"

#include <gtest/gtest.h>

#include "Support.h"

namespace ondelis {
namespace {

struct Row {
    double number;
    const char* text;
};

TEST(TraitementMultiplicateur, givesTheRequiredTexts)
{
    constexpr Row rows[] = {
        {1, " 1 "},
        {1.5, " 1.5 "},
        {1000, " 1 Kilo"},
        {1500, " 1.5 Kilo"},
        {1000000, " 1 Méga"},
        {33000000000000, " 33 Téra"},
        {0.5, " 499.999999 mili"},
        {0.002, " 1.999999 mili"},
        {0.001, " 999.999999 micro"},
        {0.0000047, " 4.699999 micro"},
        {0.000001, " 999.999999 nano"},
        {0.000000001, " 999.999999 pico"},
        {0.000000000001, " .999999 pico"},
        {1E-15, " .000999 pico"},
        {1E-19, " 0 pico"},
    };
    for (const auto& [number, text] : rows)
        EXPECT_EQ(TraitementMultiplicateur(number), text) << number;
}

TEST(TraitementMultiplicateur, takesTheWordOfTheRangeThatHoldsTheExponent)
{
    constexpr Row rows[] = {
        {3e-11, " 29.999999 pico"},
        {3e-10, " 299.999999 pico"},
        {3e-9, " 2.999999 nano"},
        {3e-8, " 29.999999 nano"},
        {3e-7, " 299.999999 nano"},
        {3e-6, " 2.999999 micro"},
        {3e-5, " 29.999999 micro"},
        {3e-4, " 299.999999 micro"},
        {3e-3, " 2.999999 mili"},
        {0.03, " 29.999999 mili"},
        {0.3, " 299.999999 mili"},
        {1.25, " 1.25 "},
        {12.5, " 12.5 "},
        {125.5, " 125.5 "},
        {12345.5, " 12.3455 Kilo"},
        {125500, " 125.5 Kilo"},
        {1.255e7, " 12.55 Méga"},
        {1.5e9, " 1.5 Giga"},
        {2.5e11, " 250 Giga"},
        {1.5e12, " 1.5 Téra"},
        {1.5e15, " 1500 Téra"},
    };
    for (const auto& [number, text] : rows)
        EXPECT_EQ(TraitementMultiplicateur(number), text) << number;
}

TEST(TraitementMultiplicateur, ofZeroIsEmpty)
{
    EXPECT_EQ(TraitementMultiplicateur(0), "");
    EXPECT_EQ(TraitementMultiplicateur(-0.0), "");
}

TEST(TraitementMultiplicateur, ofANegativeNumberIsAnInvalidArgument)
{
    EXPECT_EQ(faultOf([] { return TraitementMultiplicateur(-1); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([] { return TraitementMultiplicateur(-1e-300); }), FaultKind::InvalidArgument);
}

TEST(TraitementMultiplicateur, truncatesAtSixDecimals)
{
    EXPECT_EQ(TraitementMultiplicateur(1.9999999), " 1.999999 ");
    EXPECT_EQ(TraitementMultiplicateur(1.2345678e6), " 1.234567 Méga");
}

TEST(TraitementMultiplicateur, writesAPointInEveryRegion)
{
    const ScopedRegion inside{french};
    EXPECT_EQ(TraitementMultiplicateur(1500), " 1.5 Kilo");
}

} // namespace
} // namespace ondelis
