#include "panels/conversions/SectionDiametre.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void SectionDiametre::Form_Load()
{
    resumeNext({
        [&] { Width = 4350; },
        [&] { Height = 1725; },
        [&] { TxtS.Text = "1"; },
    });
}

void SectionDiametre::TxtS_Change()
{
    const Double s = Val(TxtS.Text);
    const Double q = Sqr(s / Pi()); // radius
    const Double d = q + q;
    TxtD.Text = CStr(Int(d * 100) / 100);
}

} // namespace ondelis
