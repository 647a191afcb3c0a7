#include "panels/antennes/HB9CV_VUSHF.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "panels/antennes/LongueurHB9CV.h"

namespace ondelis {

HB9CV_VUSHF::HB9CV_VUSHF(Desk& desk)
    : FeuilleCalcul{desk, {.name = "HB9CV_VUSHF", .Caption = "HB9CV VHF-UHF-SHF", .Width = 13230, .Height = 5175}}
{
}

void HB9CV_VUSHF::Form_Load()
{
    resumeNext([&] { TxtFreq.Text = "1280"; });
    resumeNext([&] { TxtCoeff.Text = "400"; });
    resumeNext([&] { Calculer(); });
}

void HB9CV_VUSHF::TxtFreq_Change()
{
    FreqHz = Pow(10, 6) * Val(TxtFreq.Text);
    LambdaVu = 3 * Pow(10, 8) / FreqHz;
    TxtLambda.Text = LongueurHB9CV(LambdaVu);
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
    Txt092.Text = LongueurHB9CV(LambdaVu * 0.92 / 2);
    Txt0125.Text = LongueurHB9CV(LambdaVu / 16);
    TxtL8.Text = LongueurHB9CV(LambdaVu / 8);
    TxtL16_2.Text = LongueurHB9CV(LambdaVu / 16);
    TxtL2.Text = LongueurHB9CV(LambdaVu / 2);
}

} // namespace ondelis
