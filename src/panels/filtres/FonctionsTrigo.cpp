#include "panels/filtres/FonctionsTrigo.h"

#include "kit/Maths.h"

namespace ondelis {

Double ArcTan2(Double y, Double x)
{
    const Double K = 4 * Atn(1);
    Double a = Abs(x) < 1e-07 ? K / 2 : Abs(Atn(y / x));
    if (x < 0)
        a = K - a;
    if (y < 0)
        a = -a;
    return a;
}

Double ArcCos(Double x)
{
    return ArcTan2(Sqr(1 - Pow(x, 2)), x);
}

} // namespace ondelis
