#include "panels/resonance/CalculNombreSpires.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void CalculNombreSpires::Form_Load()
{
    resumeNext({
        [&] { Height = 6675; },
        [&] { Width = 10260; },
        [&] { Caption = "Calcul du nombre de spires d'une self"; },
        [&] { Label7.Caption = "Référence : The ARRL HANDBOOK 1996 $6.22"; },
        [&] {
            Label8.Caption
                = "Dans cette formule, les dimensions sont en inches. Les valeurs de D et L sont donc converties "
                  "avant le calcul. Le diametre moyen de la self est aussi calculer à la valeur D+e .";
        },
        [&] { OptmmH.Value = true; },
        [&] { TxtS.Text = "10"; },
        [&] { TxtF.Text = CStr(1.75); },
        [&] { HscrlE.Value = 3; },
        [&] { TxtD.Text = "100"; },
    });
}

void CalculNombreSpires::OptmH_Click()
{
    UniteSelf = 1000;
    TxtS_Change(); // the one unit in which a value that was taken before can overflow
}

void CalculNombreSpires::OptmmH_Click()
{
    UniteSelf = 1;
    TxtS_Change();
}

void CalculNombreSpires::OpnH_Click()
{
    UniteSelf = 0.001;
    TxtS_Change();
}

void CalculNombreSpires::OptpH_Click()
{
    UniteSelf = 0.000001;
    TxtS_Change();
}

void CalculNombreSpires::TxtS_Change()
{
    if (Val(TxtS.Text) > 0)
        S = Val(TxtS.Text) * UniteSelf; // Calculer reads S again, without the unit; but the product can overflow
    Calculer();
}

void CalculNombreSpires::TxtD_Change()
{
    D = Val(TxtD.Text); // Calculer reads it again; but a fault here leaves the turns on show
    Calculer();
}

void CalculNombreSpires::TxtF_Change()
{
    F = Val(TxtF.Text);
    Calculer();
}

void CalculNombreSpires::HscrlE_Change()
{
    TxtE.Text = CStr(HscrlE.Value / 10);
    Calculer();
}

void CalculNombreSpires::Calculer()
{
    constexpr int maxIterations = 10000;
    Double N = 1;
    TxtN.Text = "1";
    S = Val(TxtS.Text); // in µH, whatever the option
    D = Val(TxtD.Text);
    F = Val(TxtF.Text);
    Double E = HscrlE.Value / 10;
    TxtE.Text = CStr(E);
    if (S == 0 || D == 0 || F == 0 || E == 0)
        return;

    // In inches from here. P is first the pitch, then the length of the winding.
    F = F / 25.4;
    E = E / 25.4;
    D = E + D / 25.4;
    Double P = E + F;
    // The formula is that of the ARRL Handbook. It is computed at every test, even after the last iteration.
    const auto inductance = [&] { return Pow(N, 2) * Pow(D, 2) / (40 * P + 18 * D); };
    for (int iteration = 0; inductance() < S && iteration < maxIterations; ++iteration) {
        N = Sqr((40 * P + 18 * D) * S) / D;
        P = (E + F) * N;
    }
    TxtN.Text = CStr(Int(10 * N) / 10);
    TxtL.Text = Str(Int(10 * (25.4 * P)) / 10);
}

} // namespace ondelis
