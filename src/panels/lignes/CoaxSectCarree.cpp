#include "panels/lignes/CoaxSectCarree.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void CoaxSectCarree::Form_Load()
{
    resumeNext({
        [&] { TxtZ.Text = "50"; },
        [&] { TxtDiamAme.Text = CStr(2.5); }, // no option is chosen yet: the side is computed
        [&] { OptZ.Value = true; },
    });
}

void CoaxSectCarree::OptD_Click()
{
    OptZ.Value = false;
    TxtCote.BackColor = resultColor;
    TxtCote.Locked = true;
    TxtZ.BackColor = windowColor;
    TxtZ.Locked = false;
    Label4.Top = haut;
    TxtZ.Top = haut + captionHeight;
    Label2.Top = bas;
    TxtCote.Top = bas + captionHeight;
}

void CoaxSectCarree::OptZ_Click()
{
    OptD.Value = false;
    TxtZ.BackColor = resultColor;
    TxtZ.Locked = true;
    TxtCote.BackColor = windowColor;
    TxtCote.Locked = false;
    Label2.Top = haut;
    TxtCote.Top = haut + captionHeight;
    Label4.Top = bas;
    TxtZ.Top = bas + captionHeight;
}

void CoaxSectCarree::TxtCote_Change()
{
    D = Val(TxtCote.Text);
    Calculer();
}

void CoaxSectCarree::TxtDiamAme_Change()
{
    d = Val(TxtDiamAme.Text);
    Calculer();
}

void CoaxSectCarree::TxtZ_Change()
{
    Z = Val(TxtZ.Text); // counts from the next change of the diameter on
}

void CoaxSectCarree::Calculer()
{
    if (OptZ.Value) {
        if (D > 0 && d > 0) {
            Z = 138 * Log10(1.07 * D / d);
            TxtZ.Text = CStr(Z);
        }
    } else if (Z > 0 && d > 0) {
        D = Pow(10, Z / 138) * d / 1.07;
        TxtCote.Text = CStr(D);
    }
}

} // namespace ondelis
