#include "panels/antennes/HB9CV_HF.h"

#include "kit/ComputeForFault.h"
#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void HB9CV_HF::Form_Load()
{
    resumeNext({
        [&] { Option1.Value = true; },
        [&] { Option2.Value = false; },
        [&] { Lbl030.Visible = false; },
        [&] { Lbl025.Visible = true; },
    });
    // The bar is there already: nothing is raised, and the coefficient stays unknown until the bar moves.
    resumeNext({
        [&] { HScroll1.Value = 400; },
        [&] { TxtFreq.Text = CStr(50.13); },
    });
}

void HB9CV_HF::TxtFreq_Change()
{
    FreqHb = Val(TxtFreq.Text);
    // The angular frequency is shown nowhere, but a frequency for which it is out of range ends the program.
    computeForFault(2 * Pi() * FreqHb);
    LambdaHb = 300 / FreqHb;
    Calculer();
}

void HB9CV_HF::Option1_Click()
{
    Option2.Value = false;
    Lbl030.Visible = false;
    Lbl025.Visible = true;
    TxtBalun.Text = "Balun 1:3";
    Calculer();
}

void HB9CV_HF::Option2_Click()
{
    Option1.Value = false;
    Lbl030.Visible = true;
    Lbl025.Visible = false;
    TxtBalun.Text = "Balun 1:6";
    Calculer();
}

void HB9CV_HF::HScroll1_Change()
{
    CoeffHb = HScroll1.Value;
    TxtCoeff.Text = CStr(CoeffHb);
    Label5.Caption = "Lambda/" + Str(CoeffHb) + " (m)";
    Calculer();
}

void HB9CV_HF::Calculer()
{
    if (TxtFreq.Text == "")
        return;
    // The factors cross the captions 0.25 and 0.30, and 0.32 stands under the caption 0.92: the panel's own figures.
    if (Option1.Value)
        TxtTmatch.Text = CStr(Truncate(LambdaHb * 0.3 / 2, 1000));
    else
        TxtTmatch.Text = CStr(Truncate(LambdaHb * 0.25 / 2, 1000));
    Txt092.Text = CStr(Truncate(LambdaHb * 0.32 / 2, 1000));
    Txt200.Text = CStr(Truncate(LambdaHb / 200, 1000));
    Txt8.Text = CStr(Truncate(LambdaHb / 8, 1000));
    Txt2.Text = CStr(Truncate(LambdaHb / 2, 1000));
    TxtDiam.Text = CStr(Truncate(LambdaHb / CoeffHb, 1000));
}

} // namespace ondelis
