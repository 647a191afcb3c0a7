#include "panels/antennes/InductancesEquations.h"

#include <array>

#include "kit/Maths.h"

namespace ondelis {

Double InductancePolygone(Integer N, Double n, Double a)
{
    struct Polygone {
        int cotes;
        double c2;
        double c1;
        double c3;
        double c4;
    };
    static constexpr std::array<Polygone, 4> table{{
        {3, 1.1547, 0.006, 0.65533, 0.1348},
        {4, 1.4142, 0.008, 0.37942, 0.3333},
        {6, 2, 0.012, 0.65533, 0.1348},
        {8, 2.613, 0.0162, 0.75143, 0.07153},
    }};
    for (const auto& [cotes, c2, c1, c3, c4] : table) {
        if (N != cotes)
            continue;
        const Double P = N * a;
        const Double t = a * c2 * n / (n + 1);
        // The last two terms lie outside the factor n² c1 a.
        return Pow(n, 2) * c1 * a * Log(P * t) + c3 + P * ((n + 1) * c4) / (n * a);
    }
    return 0;
}

} // namespace ondelis
