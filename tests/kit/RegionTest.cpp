#include "kit/Region.h"

#include <gtest/gtest.h>

#include "Support.h"
#include "kit/Conversions.h"

namespace ondelis {
namespace {

TEST(Region, isEnglishAtFirst)
{
    EXPECT_EQ(region().decimal, ".");
    EXPECT_EQ(region().thousands, ",");
}

TEST(Region, holdsForAScope)
{
    {
        const ScopedRegion outer{french};
        EXPECT_EQ(CStr(0.5), "0,5");
        {
            const ScopedRegion inner{english};
            EXPECT_EQ(CStr(0.5), "0.5");
        }
        EXPECT_EQ(CStr(0.5), "0,5");
    }
    EXPECT_EQ(CStr(0.5), "0.5");
}

TEST(Region, canBeSetForTheProcess)
{
    const ScopedRegion restored{region()};
    setRegion(german);
    EXPECT_EQ(region().decimal, ",");
    EXPECT_EQ(region().thousands, ".");
}

/// The regional settings of a user as the environment names them, for the length of a test.
struct RegionOfUser : testing::Test {
    static void SetUpTestSuite() { setenv("LOCPATH", TEST_LOCALES, 1); }
    static void TearDownTestSuite() { unsetenv("LOCPATH"); }

    void SetUp() override
    {
        for (const char* name : {"LC_ALL", "LC_CTYPE", "LC_NUMERIC", "LANG"})
            unsetenv(name);
    }
    void TearDown() override { SetUp(); }

    static void expect(const char* decimal, const char* thousands)
    {
        const Region user = Region::ofUser();
        EXPECT_EQ(user.decimal, decimal);
        EXPECT_EQ(user.thousands, thousands);
    }
};

TEST_F(RegionOfUser, isPlainWithoutAnyName)
{
    expect(".", "");
}

TEST_F(RegionOfUser, isPlainWhereTheSystemDoesNotKnowTheName)
{
    setenv("LANG", "xx_XX.UTF-8", 1);
    expect(".", "");
}

TEST_F(RegionOfUser, followsLang)
{
    setenv("LANG", "fr_FR.UTF-8", 1);
    expect(",", "\u202f");
}

TEST_F(RegionOfUser, followsNumericBeforeLang)
{
    setenv("LANG", "fr_FR.UTF-8", 1);
    setenv("LC_NUMERIC", "de_DE.UTF-8", 1);
    expect(",", ".");
}

TEST_F(RegionOfUser, followsNumericWhateverTheOtherCategoriesAre)
{
    setenv("LANG", "xx_XX.UTF-8", 1);
    setenv("LC_NUMERIC", "fr_FR.UTF-8", 1);
    expect(",", "\u202f");
}

TEST_F(RegionOfUser, followsAllBeforeNumeric)
{
    setenv("LC_NUMERIC", "fr_FR.UTF-8", 1);
    setenv("LC_ALL", "en_US.UTF-8", 1);
    expect(".", ",");
}

TEST_F(RegionOfUser, takesAnEmptyNameForNone)
{
    setenv("LC_ALL", "", 1);
    setenv("LC_NUMERIC", "de_DE.UTF-8", 1);
    expect(",", ".");
}

TEST_F(RegionOfUser, isUtf8WhateverTheEncodingOfTheLocale)
{
    setenv("LC_ALL", "fr_FR.ISO-8859-1", 1);
    expect(",", "\u00a0");
    setenv("LC_ALL", "ru_RU.KOI8-R", 1);
    expect(",", "\u00a0");
    setenv("LC_ALL", "de_CH.UTF-8", 1);
    expect(".", "\u2019");
}

TEST_F(RegionOfUser, hasTheEncodingOfItsOwnLocale)
{
    setenv("LC_NUMERIC", "fr_FR.ISO-8859-1", 1);
    setenv("LC_CTYPE", "ru_RU.KOI8-R", 1);
    expect(",", "\u00a0");
    setenv("LC_CTYPE", "fr_FR.UTF-8", 1);
    expect(",", "\u00a0");
    unsetenv("LC_CTYPE");
    expect(",", "\u00a0");
}

TEST_F(RegionOfUser, readsATypedBlankInAnyEncoding)
{
    setenv("LC_ALL", "fr_FR.ISO-8859-1", 1);
    const ScopedRegion scope{Region::ofUser()};
    EXPECT_EQ(CDbl("1 0"), 10);
}

TEST_F(RegionOfUser, hasNoThousandsSeparatorOfAnEncodingThatNobodyKnows)
{
    setenv("LC_ALL", "fr_FR.UNKNOWN", 1);
    expect(",", "");
}

} // namespace
} // namespace ondelis
