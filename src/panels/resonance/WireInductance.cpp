#include "panels/resonance/WireInductance.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/TraitementMultiplicateur.h"

namespace ondelis {

void WireInductance::Form_Load()
{
    resumeNext({
        [&] { PouceMm = 25.4; },
        [&] { TxtDiam.Text = CStr(4.0005); },
        [&] { TxtHaut.Text = CStr(39.99992); },
        [&] { TxtLong.Text = CStr(99.9998); },
    });
}

void WireInductance::TxtDiam_Change()
{
    r = Val(TxtDiam.Text) / (2 * PouceMm);
    Calculer();
}

void WireInductance::TxtHaut_Change()
{
    a = Val(TxtHaut.Text) / PouceMm;
    Calculer();
}

void WireInductance::TxtLong_Change()
{
    b = Val(TxtLong.Text) / PouceMm;
    Calculer();
}

void WireInductance::Calculer()
{
    if (r == 0 || a == 0 || b == 0)
        return;
    const Double S1 = Sqr(Pow(b, 2) + Pow(r, 2));
    const Double S2 = Sqr(Pow(b, 2) + 4 * Pow(a, 2));
    const Double T = ((2 * a) / r) * (b + S1) / (b + S2);
    const Double L = (0.0117 * b) * Log10(T) + 0.00508 * ((((S2 - S1) + b / 4) - 2 * a) + r);
    TxtInductance.Text = TraitementMultiplicateur(L); // microhenrys shown as they are, under a caption in henrys
}

} // namespace ondelis
