#include "kit/ExponentForm.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>

#include "Support.h"

namespace ondelis {
namespace {

struct Row {
    double number;
    const char* text;
};

void expect(std::initializer_list<Row> rows)
{
    for (const auto& [number, text] : rows)
        EXPECT_EQ(exponentForm(number), text) << ::testing::PrintToString(Double{number});
}

TEST(ExponentForm, hasThreeDecimalsAndTwoDigitsOfExponent)
{
    expect({
        {0, "0.000E+00"},
        {-0.0, "0.000E+00"},
        {0.12, "1.200E-01"},
        {1.24, "1.240E+00"},
        {-12345.67, "-1.235E+04"},
        {1e120, "1.000E+120"},
        {1e-120, "1.000E-120"},
        {std::numeric_limits<double>::max(), "1.798E+308"},
        {std::numeric_limits<double>::denorm_min(), "4.941E-324"},
    });
}

TEST(ExponentForm, roundsATieAwayFromZero)
{
    expect({
        {1234.5, "1.235E+03"}, {1235.5, "1.236E+03"}, {-1234.5, "-1.235E+03"}, {-1235.5, "-1.236E+03"},
        {9999.5, "1.000E+04"}, {-9999.5, "-1.000E+04"}, {9998.5, "9.999E+03"},
        {1.0625, "1.063E+00"}, // 1.0625 is a whole number of sixteenths
        {123.25, "1.233E+02"}, {12345, "1.235E+04"}, {1.2345e20, "1.235E+20"},
        {std::ldexp(1, -13), "1.221E-04"}, // 0.0001220703125 is no tie
    });
}

TEST(ExponentForm, roundsWhatLiesBesideATieToTheNearerText)
{
    expect({
        {0.00012345, "1.234E-04"}, // 0.000123449999999999994...
        {0.00012355, "1.235E-04"},
        {1.2345e22, "1.234E+22"}, // 12344999999999999737856
        {124.35, "1.243E+02"}, // 124.349999999999994...
        {124.45, "1.245E+02"}, // 124.450000000000002...
        {std::nextafter(1234.5, 0), "1.234E+03"},
        {std::nextafter(1234.5, 2000), "1.235E+03"},
        {std::nextafter(9999.5, 0), "9.999E+03"},
        {std::nextafter(-1235.5, 0), "-1.235E+03"},
    });
}

TEST(ExponentForm, hasTheDecimalSeparatorOfTheRegion)
{
    const ScopedRegion scope{french};
    expect({
        {0.12, "1,200E-01"},
        {1234.5, "1,235E+03"},
        {-1234.5, "-1,235E+03"},
        {9999.5, "1,000E+04"},
        {0.00012345, "1,234E-04"},
    });
}

} // namespace
} // namespace ondelis
