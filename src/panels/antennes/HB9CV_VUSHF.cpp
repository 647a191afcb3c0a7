#include "panels/antennes/HB9CV_VUSHF.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void HB9CV_VUSHF::Form_Load()
{
    resumeNext({
        [&] { TxtFreq.Text = "1280"; },
        [&] { TxtCoeff.Text = "400"; },
        [&] { Calculer(); },
    });
}

void HB9CV_VUSHF::TxtFreq_Change()
{
    FreqHz = Pow(10, 6) * Val(TxtFreq.Text);
    LambdaVu = 3 * Pow(10, 8) / FreqHz;
    TxtLambda.Text = CStr(Truncate(LambdaVu, 1000));
    Calculer();
}

void HB9CV_VUSHF::TxtCoeff_Change()
{
    // Outside its range the coefficient waits for the next frequency, which does use it.
    CoeffVu = Val(TxtCoeff.Text);
    if (CoeffVu >= 400 && CoeffVu <= 700)
        Calculer();
}

void HB9CV_VUSHF::Calculer()
{
    if (TxtFreq.Text == "" || TxtCoeff.Text == "")
        return;
    TxtDiam.Text = CStr(Fix(LambdaVu / CoeffVu * Pow(10, 6)) / 1000);
    Txt092.Text = CStr(Truncate(LambdaVu * 0.92 / 2, 1000));
    Txt0125.Text = CStr(Truncate(LambdaVu / 16, 1000));
    TxtL8.Text = CStr(Truncate(LambdaVu / 8, 1000));
    TxtL16_2.Text = CStr(Truncate(LambdaVu / 16, 1000));
    TxtL2.Text = CStr(Truncate(LambdaVu / 2, 1000));
}

} // namespace ondelis
