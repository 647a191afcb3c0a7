#include "panels/resonance/RLCParallele.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void RLCParallele::Form_Load()
{
    resumeNext({
        [&] { Pi = Atn(1) * 4; },
        [&] { TxtFreqDeb.Text = "10"; },
        [&] { TxtFreqFin.Text = "50"; },
        [&] { TxtR.Text = "40"; },
        [&] { TxtL.Text = "3"; },
        [&] { TxtC.Text = "9"; },
        [&] { HScroll1.Value = 306; },
        [&] { Calculer(); },
    });
}

void RLCParallele::TxtR_Change()
{
    R = Val(TxtR.Text);
    Calculer();
}

void RLCParallele::TxtL_Change()
{
    L = Val(TxtL.Text) * 0.000001;
    Calculer();
}

void RLCParallele::TxtC_Change()
{
    C = Val(TxtC.Text) * 1E-12;
    Calculer();
}

void RLCParallele::TxtFreqDeb_Change()
{
    HScroll1.Min = CInt(Val(TxtFreqDeb.Text) * 10);
    Calculer(); // a bar that was moved has done so already
}

void RLCParallele::TxtFreqFin_Change()
{
    HScroll1.Max = CInt(Val(TxtFreqFin.Text) * 10);
    Calculer(); // a bar that was moved has done so already
}

void RLCParallele::HScroll1_Change()
{
    Calculer();
}

void RLCParallele::Calculer()
{
    F = HScroll1.Value / 10 * 1000000;
    TxtFreq.Text = CStr(HScroll1.Value / 10);
    if (!(L > 0 && C > 0 && F > 0))
        return;
    const Double W = F * Pi * 2;
    const Double I1 = 1 / Sqr(Pow(R, 2) + Pow(L, 2) * Pow(W, 2));
    Label13.Caption = CStr(1000 * I1);
    const Double I2 = C * W;
    Label16.Caption = CStr(1000 * I2);

    const Double Zl = Sqr(Pow(R, 2) + Pow(L, 2) * Pow(W, 2));
    const Double Xc = 1 / (C * W);
    const Double D = Width * 50000;
    Tracer(Zl > Xc ? D / Zl : D / Xc, I1, I2);
    const Double dx = Single{LRes.X2 - LRes.X1};
    const Double dy = Single{LRes.Y2 - LRes.Y1};

    // The length of the resultant on the screen, in twips.
    TxtZ.Text = CStr(Truncate(Sqr(Pow(dx, 2) + Pow(dy, 2)), 1000));
    TxtXl.Text = CStr(Truncate(Zl, 100));
    TxtXc.Text = CStr(Truncate(Xc, 100));
    if (dx > 0)
        TxtPhi.Text = CStr(Truncate(Atn(dy / dx) * 180 / Pi, 100));
    else if (I1 > I2)
        TxtPhi.Text = "90";
    else if (I1 == I2)
        TxtPhi.Text = "0";
    else
        TxtPhi.Text = "-90";
}

void RLCParallele::Tracer(Double Echelle, Double I1, Double I2)
{
    LXl.X1 = Line1.X1;
    LXl.Y1 = Line1.Y1;
    LXl.X2 = LXl.X1;
    LXl.Y2 = LXl.Y1 + Echelle * I1;
    LR.X1 = LXl.X2;
    LR.Y1 = LXl.Y2;
    LR.X2 = R > 0 ? LR.X1 + Echelle * I1 : LR.X1;
    LR.Y2 = LR.Y1;
    LXc.X1 = LR.X2;
    LXc.Y1 = LR.Y2;
    LXc.X2 = LXc.X1;
    LXc.Y2 = LXc.Y1 - Echelle * I2;
    LRes.X1 = Line1.X1;
    LRes.Y1 = Line1.Y1;
    LRes.X2 = LXc.X2;
    LRes.Y2 = LXc.Y2;
}

} // namespace ondelis
