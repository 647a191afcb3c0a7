#include "panels/antennes/DoubleQuad.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void DoubleQuad::Form_Load()
{
    resumeNext({[&] { TxtFreq.Text = "1280"; }});
}

void DoubleQuad::TxtFreq_Change()
{
    FreqDq = Val(TxtFreq.Text);
    LambdaDq = 300 / FreqDq * 1000;
    TxtLambda.Text = CStr(LambdaDq);
    QuartLambda = LambdaDq / 4;
    TxtL4.Text = CStr(Truncate(QuartLambda, 100));
    Txt45L4.Text = CStr(Truncate(QuartLambda * 4.5, 100));
    Txt3L4.Text = CStr(Truncate(QuartLambda * 3, 100));
    Txt0136L.Text = CStr(Truncate(LambdaDq * 0.136, 100));
}

} // namespace ondelis
