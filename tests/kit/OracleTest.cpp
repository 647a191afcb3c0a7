// The kit against independent oracles: MPFR, whose functions are correctly rounded, and printf and strtod of the C
// library. The values are the same at each run.

#include <gtest/gtest.h>
#include <mpfr.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>
#include <vector>

#include "Support.h"
#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/TraitementMultiplicateur.h"

namespace ondelis {
namespace {

constexpr int count = 100'000;

/// A number of `Double` precision in MPFR, rounded to nearest.
class Exact {
public:
    explicit Exact(double value)
    {
        mpfr_init2(number_, 53);
        mpfr_set_d(number_, value, MPFR_RNDN);
    }
    ~Exact() { mpfr_clear(number_); }
    Exact(const Exact&) = delete;
    Exact& operator=(const Exact&) = delete;

    [[nodiscard]] mpfr_ptr get() { return number_; }
    [[nodiscard]] double value() const { return mpfr_get_d(number_, MPFR_RNDN); }

private:
    mpfr_t number_{};
};

double exactLog(double x)
{
    Exact result{x};
    mpfr_log(result.get(), result.get(), MPFR_RNDN);
    return result.value();
}

double exactPow(double x, double y)
{
    Exact base{x};
    Exact exponent{y};
    mpfr_pow(base.get(), base.get(), exponent.get(), MPFR_RNDN);
    return base.value();
}

/// printf's general form with 15 digits, "." as the point.
std::string printed(double x)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.15G", x);
    return text.data();
}

std::string printedAsStr(double x)
{
    std::string text = printed(std::fabs(x));
    if (text.starts_with("0."))
        text.erase(0, 1);
    return (x < 0 ? "-" : " ") + text;
}

/// The steps of TraitementMultiplicateur with correctly rounded functions.
std::string exactTraitementMultiplicateur(double v)
{
    const double x = exactLog(v) * 0.434294481903252;
    const double A = std::fabs(x);
    const double I = std::trunc(A);
    const double s = x > 0 ? 1 : x < 0 ? -1 : 0;
    const double f = (A - I) * s;
    const double E = x < 0 ? (I + 1) * s : I;
    const double mantissa = x < 0 ? exactPow(10, f) * 10 : exactPow(10, f);
    struct Row {
        double from; // the row holds from here up to the next one
        const char* word;
        double p;
    };
    const std::array<Row, 9> rows{{{12, "Téra", E - 12}, {9, "Giga", E - 9}, {6, "Méga", E - 6}, {3, "Kilo", E - 3},
        {0, "", E}, {-3, "mili", E + 3}, {-6, "micro", E + 6}, {-9, "nano", E + 9}, {-400, "pico", E + 12}}};
    const Row row = *std::ranges::find_if(rows, [E](const Row& candidate) { return E >= candidate.from; });
    const double m = exactPow(10, row.p) * mantissa;
    const double t = std::trunc(1000000 * m) / 1000000;
    return printedAsStr(t) + " " + row.word;
}

/// Positive numbers as formulas produce them: any digits, spread evenly over the decades from 1E-19 to 1E+18.
std::vector<double> computedNumbers()
{
    std::mt19937_64 random{20260101};
    std::uniform_real_distribution<double> decades{-19, 18};
    std::vector<double> numbers(count);
    for (double& number : numbers)
        number = std::pow(10, decades(random));
    return numbers;
}

/// Positive numbers as people type them: one to four digits and a power of ten.
std::vector<double> typedNumbers()
{
    std::mt19937_64 random{20260102};
    std::uniform_int_distribution<int> digits{1, 9999};
    std::uniform_int_distribution<int> power{-19, 14};
    std::vector<double> numbers(count);
    for (double& number : numbers)
        number = std::strtod((std::to_string(digits(random)) + "e" + std::to_string(power(random))).c_str(), nullptr);
    return numbers;
}

/// Numbers of every size that a `Double` can have.
std::vector<double> numbersOfAnySize()
{
    std::mt19937_64 random{20260103};
    std::vector<double> numbers;
    while (numbers.size() < count)
        if (const auto number = std::bit_cast<double>(random()); std::isfinite(number))
            numbers.push_back(number);
    return numbers;
}

/// Positive numbers cut to some decimals, as results are shown, each with its neighbours.
std::vector<double> cutNumbers()
{
    std::mt19937_64 random{20260104};
    std::uniform_real_distribution<double> decades{-5, 16};
    std::uniform_int_distribution<int> decimals{0, 8};
    std::vector<double> numbers;
    while (numbers.size() < count) {
        const double unit = std::pow(10, decimals(random));
        const double cut = std::trunc(std::pow(10, decades(random)) * unit) / unit;
        numbers.insert(numbers.end(), {cut, std::nextafter(cut, 0), std::nextafter(cut, 1e300)});
    }
    return numbers;
}

int differences(const char* title, const std::vector<double>& numbers)
{
    const auto differing = std::ranges::count_if(
        numbers, [](double v) { return TraitementMultiplicateur(v) != exactTraitementMultiplicateur(v); });
    std::cout << title << ": " << differing << " of " << numbers.size() << " texts differ\n";
    return static_cast<int>(differing);
}

// The C library's log misses the correctly rounded number by a last digit about 8 times in 100 000, its pow 75
// times. That shows only where it turns the sixth decimal: about never among computed numbers, once in 70 to 130
// among typed ones, whose decimals end there. So one typed text or two may differ, by the library and processor
// (none did where this was written), while a step out of order or another constant changes hundreds.

TEST(Oracle, traitementMultiplicateurOfComputedNumbers)
{
    EXPECT_EQ(differences("computed numbers", computedNumbers()), 0);
}

TEST(Oracle, traitementMultiplicateurOfTypedNumbers)
{
    EXPECT_LE(differences("typed numbers", typedNumbers()), 5);
}

TEST(Oracle, powIsThatOfTheLibraryForEveryExponent)
{
    // As in the kit: called so that the compiler cannot replace it.
    double (*const volatile libraryPow)(double, double) = std::pow;
    int unlikeAProduct = 0;
    for (const double x : computedNumbers()) {
        ASSERT_EQ(Pow(x, 2), libraryPow(x, 2)) << x;
        ASSERT_EQ(Pow(x, 0.5), libraryPow(x, 0.5)) << x;
        ASSERT_EQ(Pow(x, -1), libraryPow(x, -1)) << x;
        ASSERT_EQ(Pow(10, x / 1e17), libraryPow(10, x / 1e17)) << x;
        unlikeAProduct += libraryPow(x, 2) != x * x ? 1 : 0;
    }
    EXPECT_GT(unlikeAProduct, 0); // else products would have passed, too
}

TEST(Oracle, cstrAndStrAreLikePrintf)
{
    for (const auto& numbers : {numbersOfAnySize(), computedNumbers(), typedNumbers(), cutNumbers()})
        for (const double x : numbers) {
            ASSERT_EQ(CStr(x), printed(x));
            ASSERT_EQ(Str(x), printedAsStr(x));
            ASSERT_EQ(Str(-x), printedAsStr(-x));
        }
}

TEST(Oracle, valReadsEachNumberBack)
{
    std::array<char, 32> text{};
    for (const double x : numbersOfAnySize()) {
        std::snprintf(text.data(), text.size(), "%.17g", x);
        ASSERT_EQ(Val(text.data()), x);
        ASSERT_EQ(CDbl(text.data()), x);
    }
}

TEST(Oracle, valAndCDblReadTheTextsOfTheKitBack)
{
    const ScopedRegion scope{french};
    for (const auto& numbers : {numbersOfAnySize(), computedNumbers(), cutNumbers()})
        for (const double x : numbers) {
            const double fifteenDigits = std::strtod(printed(x).c_str(), nullptr);
            if (std::isinf(fifteenDigits)) // rounded up beyond the largest number
                continue;
            ASSERT_EQ(Val(Str(x)), fifteenDigits);
            ASSERT_EQ(CDbl(CStr(x)), fifteenDigits);
        }
}

} // namespace
} // namespace ondelis
