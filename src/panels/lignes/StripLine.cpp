#include "panels/lignes/StripLine.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/TraitementMultiplicateur.h"

namespace ondelis {

void StripLine::Form_Load()
{
    resumeNext({
        [&] { PouceMm = 25.4; },
        [&] { TxtW.Text = "4"; },
        [&] { TxtB.Text = "100"; },
        [&] { TxtH.Text = "1"; },
    });
}

void StripLine::TxtW_Change()
{
    W = Val(TxtW.Text) / PouceMm;
    Calculer();
}

void StripLine::TxtB_Change()
{
    B = Val(TxtB.Text) / PouceMm;
    Calculer();
}

void StripLine::TxtH_Change()
{
    H = Val(TxtH.Text) / PouceMm;
    Calculer();
}

void StripLine::Calculer()
{
    if (W == 0 || B == 0 || H == 0)
        return;
    const Double L = 0.00508 * B * (Log(2 * B / (W + H)) + 0.5 + 0.2235 * (W + H) / B);
    TxtL.Text = TraitementMultiplicateur(L); // microhenrys shown as they are, under a caption in henrys
}

} // namespace ondelis
