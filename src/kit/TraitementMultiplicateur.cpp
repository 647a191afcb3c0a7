#include "kit/TraitementMultiplicateur.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {
namespace {

struct Multiplier {
    const char* word = nullptr;
    Double p;
};

/// The first row that applies decides.
Multiplier multiplierOf(Double E)
{
    if (E <= -10)
        return {"pico", E + 12};
    if (E >= -10 && E <= -7)
        return {"nano", E + 9};
    if (E >= -7 && E <= -4)
        return {"micro", E + 6};
    if (E >= -3 && E < 0)
        return {"mili", E + 3};
    if (E >= 0 && E < 3)
        return {"", E};
    if (E >= 3 && E < 6)
        return {"Kilo", E - 3};
    if (E >= 6 && E < 9)
        return {"Méga", E - 6};
    if (E >= 9 && E < 12)
        return {"Giga", E - 9};
    return {"Téra", E - 12};
}

} // namespace

std::string TraitementMultiplicateur(Double v)
{
    if (v == 0)
        return {};
    // The factor is a little above 1 / Log(10): that is why 0.001 shows as " 999.999999 micro".
    const Double x = Log(v) * 0.434294481903252;
    const Double A = Abs(x);
    const Double I = Fix(A);
    const Double s = Sgn(x);
    const Double f = (A - I) * s;
    const bool below = x < 0;
    const Double E = below ? (I + 1) * s : Term{I};
    const Double mantissa = below ? Pow(10, f) * 10 : Pow(10, f);
    const auto [word, p] = multiplierOf(E);
    const Double m = Pow(10, p) * mantissa;
    const Double t = Fix(1000000 * m) / 1000000;
    return Str(t) + " " + word;
}

} // namespace ondelis
