#include "panels/resonance/Z1Z2.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void Z1Z2::Form_Load()
{
    resumeNext({
        [&] { TxtZ1.Text = "50"; },
        [&] { TxtZ2.Text = "75"; },
        [&] { TxtNbSpZ1.Text = CStr(5.5); },
    });
}

void Z1Z2::TxtZ1_Change()
{
    Z1 = Val(TxtZ1.Text);
    Calculer();
}

void Z1Z2::TxtZ2_Change()
{
    Z2 = Val(TxtZ2.Text);
    Calculer();
}

void Z1Z2::TxtNbSpZ1_Change()
{
    N1 = Val(TxtNbSpZ1.Text);
    Calculer();
}

void Z1Z2::Calculer()
{
    if (Z1 != 0 && Z2 != 0 && N1 != 0)
        TxtNbSpZ2.Text = CStr(Truncate(Sqr(Pow(N1, 2) * Z2 / Z1), 10));
}

} // namespace ondelis
