#include "kit/Maths.h"

#include <cmath>
#include <limits>

#include "kit/Fault.h"

namespace ondelis {
namespace {

void require(bool sound)
{
    if (!sound) [[unlikely]]
        throw Fault{FaultKind::InvalidArgument};
}

template <class Repr>
Whole<Repr> nearest(Double x)
{
    // nearbyint follows the default rounding mode, to nearest with ties to even, and the range test comes
    // first because a conversion out of range is undefined.
    const double whole = std::nearbyint(x.value());
    if (!(whole >= std::numeric_limits<Repr>::min() && whole <= std::numeric_limits<Repr>::max()))
        throw Fault{FaultKind::Overflow};
    return static_cast<int>(whole);
}

} // namespace

Double Fix(Double x)
{
    return std::trunc(x.value());
}

Double Int(Double x)
{
    return std::floor(x.value());
}

Integer CInt(Double x)
{
    return nearest<std::int16_t>(x);
}

Long CLng(Double x)
{
    return nearest<std::int32_t>(x);
}

Double Abs(Double x)
{
    return std::fabs(x.value());
}

Integer Sgn(Double x)
{
    return x > 0 ? 1 : x < 0 ? -1 : 0;
}

Double Sqr(Double x)
{
    require(x >= 0);
    return std::sqrt(x.value());
}

Double Log(Double x)
{
    require(x > 0);
    return std::log(x.value());
}

Double Log10(Double x)
{
    return Log(x) / Log(10);
}

Double Pow(Double x, Double y)
{
    require(x >= 0 || y == Fix(y));
    require(x != 0 || y >= 0);
    // A pointer that the compiler has to read each time: were it to see the call, it could make products of squares,
    // and of powers of ten calls of exp10, which is wrong in the last digit very often.
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): it is const, and volatile
    static double (*const volatile libraryPow)(double, double) = std::pow;
    return Double::checked(libraryPow(x.value(), y.value()));
}

Double Atn(Double x)
{
    return std::atan(x.value());
}

Double Sin(Double x)
{
    return std::sin(x.value());
}

Double Cos(Double x)
{
    return std::cos(x.value());
}

Double Pi()
{
    return Atn(1) * 4;
}

} // namespace ondelis
