#include "panels/resonance/RLCSerie.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void RLCSerie::Form_Load()
{
    resumeNext({
        [&] { TxtR.Text = "40"; },
        [&] { TxtL.Text = "3"; },
        [&] { TxtC.Text = "9"; },
        [&] { TxtFreqDeb.Text = "1"; },
        [&] { TxtFreqFin.Text = "50"; },
        [&] { HScroll1.Value = 306; },
        [&] { Frequence = 30.6; },
        [&] { Calculer(); },
    });
}

void RLCSerie::TxtR_Change()
{
    R = Val(TxtR.Text);
    Calculer();
}

void RLCSerie::TxtL_Change()
{
    L = Val(TxtL.Text) * 0.000001;
    Calculer();
}

void RLCSerie::TxtC_Change()
{
    C = Val(TxtC.Text) * 1E-12;
    Calculer();
}

void RLCSerie::TxtFreqDeb_Change()
{
    HScroll1.Min = CInt(Val(TxtFreqDeb.Text) * 10);
}

void RLCSerie::TxtFreqFin_Change()
{
    HScroll1.Max = CInt(Val(TxtFreqFin.Text) * 10);
}

void RLCSerie::HScroll1_Change()
{
    Frequence = HScroll1.Value / 10;
    TxtFreq.Text = CStr(Frequence);
    Calculer();
}

void RLCSerie::Calculer()
{
    if (Frequence <= 0)
        return;
    const Double W = 2 * Pi() * Frequence * 1000000;
    Double Xl;
    if (L > 0)
        Xl = L * 2 * Pi() * W; // 2 Pi stands in W too: Xl is 2 Pi times the reactance of the formula shown
    TxtXl.Text = CStr(Xl);
    Double Xc;
    if (C > 0)
        Xc = 1 / (W * C);
    TxtXc.Text = C > 0 ? CStr(Xc) : "";
    Label19.Caption = CStr(1 / Sqr(Pow(R, 2) + Pow(Xl - Xc, 2)));

    Tracer(Xl, Xc);

    const Double Z = Sqr(Pow(R, 2) + Pow(Xl - Xc, 2));
    TxtZ.Text = CStr(Truncate(Z, 100));
    Double Phi;
    if (R > 0)
        Phi = Atn((Xl - Xc) / R);
    else if (Xc > Xl)
        Phi = Pi() / 2; // the sign opposite to the limit of the phase above, as below
    else
        Phi = -Pi() / 2;
    TxtPhi.Text = CStr(Truncate(180 * Phi / Pi(), 100));
}

void RLCSerie::Tracer(Double Xl, Double Xc)
{
    const Double D = Width * 0.2;
    Double Echelle; // 0 where two are the largest: the diagram then shrinks onto its origin
    if (R > Xl && R > Xc)
        Echelle = D / R;
    if (Xc > R && Xc > Xl)
        Echelle = D / Xc;
    if (Xl > R && Xl > Xc)
        Echelle = D / Xl;

    LR.X1 = Line3.X1;
    LR.Y1 = Line3.Y1;
    LR.X2 = LR.X1 + R * Echelle;
    LR.Y2 = LR.Y1;
    LXl.X1 = LR.X2;
    LXl.Y1 = LR.Y2;
    LXl.X2 = LXl.X1;
    LXl.Y2 = LXl.Y1 + Xl * Echelle;
    LXc.X1 = LXl.X2;
    LXc.Y1 = LXl.Y2;
    LXc.X2 = LXc.X1;
    LXc.Y2 = LXc.Y1 - Xc * Echelle;
    LResultante.Visible = true;
    LResultante.X1 = LR.X1;
    LResultante.Y1 = LR.Y1;
    LResultante.X2 = LXc.X2;
    LResultante.Y2 = LXc.Y2;
}

} // namespace ondelis
