#include "panels/conversions/Decibels.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void Decibels::Form_Load()
{
    resumeNext({
        [&] { TxtPe.Text = CStr(2.5); },
        [&] { TxtPs.Text = "25"; },
        [&] { TxtUe.Text = "5"; },
        [&] { TxtUs.Text = CStr(0.05); },
    });
}

void Decibels::TxtPe_Change()
{
    Pe = Val(TxtPe.Text);
    CalculerdBP();
}

void Decibels::TxtPs_Change()
{
    Ps = Val(TxtPs.Text);
    CalculerdBP();
}

void Decibels::TxtGdBp_Change()
{
    const Double g = Val(TxtGdBp.Text); // dB
    TxtGainP.Text = CStr(Pow(10, g / 10));
}

void Decibels::TxtUe_Change()
{
    Ue = Val(TxtUe.Text);
    CalculerdBU();
}

void Decibels::TxtUs_Change()
{
    Us = Val(TxtUs.Text);
    CalculerdBU();
}

void Decibels::TxtGdBU_Change()
{
    const Double g = Val(TxtGdBU.Text); // dB
    TxtGainU.Text = CStr(Pow(10, g / 20));
}

void Decibels::CalculerdBP()
{
    if (Pe != 0 && Ps != 0)
        TxtGdBp.Text = CStr(10 * Log10(Ps / Pe));
}

void Decibels::CalculerdBU()
{
    if (Ue != 0 && Us != 0)
        TxtGdBU.Text = CStr(20 * Log10(Us / Ue));
}

} // namespace ondelis
