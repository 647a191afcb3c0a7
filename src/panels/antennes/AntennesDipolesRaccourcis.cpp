#include "panels/antennes/AntennesDipolesRaccourcis.h"

#include "forms/Runtime.h"
#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/TraitementMultiplicateur.h"
#include "panels/resonance/CalculNombreSpires.h"

namespace ondelis {

void AntennesDipolesRaccourcis::Form_Load()
{
    resumeNext({
        [&] { TxtA.Text = "15"; },
        [&] { TxtB.Text = "5"; },
        [&] { TxtDiam.Text = "3"; },
        [&] { TxtF.Text = CStr(3.5); },
    });

    auto& spires = runtime().get<CalculNombreSpires>();
    resumeNext({
        [&] { spires.OptmmH.Value = true; },
        [&] { spires.TxtS.Text = CStr(85.205); },
        [&] { spires.TxtF.Text = "3"; },
        [&] { spires.TxtD.Text = "100"; },
        [&] { spires.TxtE.Text = CStr(0.3); },
    });
}

void AntennesDipolesRaccourcis::TxtA_Change()
{
    LongA = Val(TxtA.Text) / 0.3048;
    Calculer();
}

void AntennesDipolesRaccourcis::TxtB_Change()
{
    LongB = Val(TxtB.Text) / 0.3048;
    Calculer();
}

void AntennesDipolesRaccourcis::TxtDiam_Change()
{
    DiamFil = Val(TxtDiam.Text) / 25.4;
    Calculer();
}

void AntennesDipolesRaccourcis::TxtF_Change()
{
    FreqDip = Val(TxtF.Text);
    Calculer();
}

void AntennesDipolesRaccourcis::Calculer()
{
    const bool selfHorsDipole
        = 2 * LongB >= LongA; // computed first: its overflow is a fault whatever the other tests say
    if (LongA == 0 || LongB == 0 || DiamFil == 0 || FreqDip == 0 || selfHorsDipole) {
        TxtXL.Text = "";
        TxtValSelf.Text = "";
        return;
    }
    const Double u = 234 / FreqDip - LongB;
    const Double T1 = (Log(24 * u / DiamFil) - 1) * (Pow(1 - FreqDip * LongB / 234, 2) - 1) / u;
    const Double v = LongA / 2 - LongB;
    const Double w = (FreqDip * LongA / 2 - FreqDip * LongB) / 234;
    const Double T2 = (Log(24 * v / DiamFil) - 1) * (Pow(w, 2) - 1) / v;
    const Double K = 1000000 / (34 * Pi() * FreqDip);
    const Double X = Truncate(K * (T1 - T2), 100);
    TxtXL.Text = TraitementMultiplicateur(X);
    const Double L = X * (1 / (2 * Pi() * FreqDip * 1000000));
    TxtValSelf.Text = TraitementMultiplicateur(L);
}

} // namespace ondelis
