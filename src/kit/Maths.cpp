#include "kit/Maths.h"

#include <cmath>
#include <limits>

#include "kit/Fault.h"

namespace ondelis {
namespace {

template <class Repr>
CheckedInteger<Repr> nearest(Double x)
{
    // nearbyint follows the default rounding mode, to nearest with ties to even, and the range test comes
    // first because a conversion out of range is undefined.
    const double whole = std::nearbyint(x.value());
    if (!(whole >= std::numeric_limits<Repr>::min() && whole <= std::numeric_limits<Repr>::max()))
        throw Fault{FaultKind::Overflow};
    return static_cast<int>(whole);
}

/// The value of a total function: one that has a value for every number.
Term applyTotal(double (*function)(double), Term x)
{
    return x.faulty() ? x : Term{function(x.value())};
}

} // namespace

Term Fix(Term x)
{
    return applyTotal(std::trunc, x);
}

Term Truncate(Term x, Double parts)
{
    return Fix(x * parts) / parts;
}

Term Int(Term x)
{
    return applyTotal(std::floor, x);
}

Integer CInt(Double x)
{
    return nearest<std::int16_t>(x);
}

Long CLng(Double x)
{
    return nearest<std::int32_t>(x);
}

Term Abs(Term x)
{
    return applyTotal(std::fabs, x);
}

Integer Sgn(Double x)
{
    return x > 0 ? 1 : x < 0 ? -1 : 0;
}

Term Sqr(Term x)
{
    if (x.faulty())
        return x;
    return x < 0 ? Term{FaultKind::InvalidArgument} : Term{std::sqrt(x.value())};
}

Term Log(Term x)
{
    if (x.faulty())
        return x;
    return x <= 0 ? Term{FaultKind::InvalidArgument} : Term{std::log(x.value())};
}

Term Log10(Term x)
{
    return Log(x) / Log(10);
}

Term Pow(Term x, Term y)
{
    if (x.faulty() || y.faulty())
        return x.faulty() ? x : y;
    if ((x < 0 && y != Fix(y)) || (x == 0 && y < 0))
        return Term{FaultKind::InvalidArgument};
    // A pointer that the compiler has to read each time: if it saw the call, it could turn squares into products, and
    // powers of ten into calls of exp10, which is very often wrong in the last digit.
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): it is const, and volatile
    static double (*const volatile libraryPow)(double, double) = std::pow;
    return Term::checked(libraryPow(x.value(), y.value()));
}

Term Atn(Term x)
{
    return applyTotal(std::atan, x);
}

Term Sin(Term x)
{
    return applyTotal(std::sin, x);
}

Term Cos(Term x)
{
    return applyTotal(std::cos, x);
}

Term Pi()
{
    return Atn(1) * 4;
}

} // namespace ondelis
