#include "panels/lignes/CoaxSectCyl.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void CoaxSectCyl::Form_Load()
{
    resumeNext({
        [&] { LstEpsilon.ListIndex = 0; },
        [&] { TxtDiamCorps.Text = CStr(5.6); },
        [&] { TxtDiamAme.Text = "2"; },
    });
}

void CoaxSectCyl::LstEpsilon_Click()
{
    if (LstEpsilon.ListIndex == 0)
        E = 1;
    else if (LstEpsilon.ListIndex == 1)
        E = 2;
    else
        E = 2.6;
    AfficherImpedance();
}

void CoaxSectCyl::TxtDiamCorps_Change()
{
    D = Val(TxtDiamCorps.Text);
    AfficherImpedance();
}

void CoaxSectCyl::TxtDiamAme_Change()
{
    d = Val(TxtDiamAme.Text);
    AfficherImpedance();
}

void CoaxSectCyl::AfficherImpedance()
{
    if (D > 0 && d > 0 && E > 0)
        TxtZ.Text = CStr(138 * Log10(D / d) / E); // E divides as it is, without a square root
}

} // namespace ondelis
