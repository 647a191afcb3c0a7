#include "panels/lignes/EchelleGrenouille.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void EchelleGrenouille::Form_Load()
{
    resumeNext({
        [&] { OptZ.Value = true; },
        [&] { TxtZ.Text = "400"; },
        [&] { TxtDiamAme.Text = CStr(1.2); },
        [&] { TxtDiamBrin.Text = CStr(1.2); },
        [&] { TxtEcartBrin.Text = "16"; },
    });
}

void EchelleGrenouille::OptZ_Click()
{
    TxtZ.BackColor = resultColor;
    TxtZ.Locked = true;
    TxtCote.BackColor = windowColor;
    TxtCote.Locked = false;
    Presenter(true);
    TxtEcartBrin.Text = "16";
    TxtDiamBrin.Text = CStr(1.2);
}

void EchelleGrenouille::OptD_Click()
{
    TxtZ.BackColor = windowColor;
    TxtZ.Locked = false;
    TxtCote.BackColor = resultColor;
    TxtCote.Locked = true;
    Presenter(false);
    TxtZ.Text = "400";
    TxtDiamAme.Text = CStr(1.2);
}

void EchelleGrenouille::TxtDiamAme_Change()
{
    d = Val(TxtDiamAme.Text);
    AfficherEcartement();
}

void EchelleGrenouille::TxtZ_Change()
{
    Z = Val(TxtZ.Text);
    AfficherEcartement();
}

void EchelleGrenouille::TxtEcartBrin_Change()
{
    D = Val(TxtEcartBrin.Text);
    AfficherImpedance();
}

void EchelleGrenouille::TxtDiamBrin_Change()
{
    d = Val(TxtDiamBrin.Text);
    AfficherImpedance();
}

/// Shows the fields of the impedance, or those of the spacing.
void EchelleGrenouille::Presenter(bool impedance)
{
    Label1.Visible = impedance;
    Label2.Visible = impedance;
    Label3.Visible = impedance;
    TxtDiamBrin.Visible = impedance;
    TxtEcartBrin.Visible = impedance;
    TxtImpedance.Visible = impedance;
    LblZ.Visible = !impedance;
    LblAme.Visible = !impedance;
    LblEcart.Visible = !impedance;
    TxtZ.Visible = !impedance;
    TxtDiamAme.Visible = !impedance;
    TxtCote.Visible = !impedance;
}

void EchelleGrenouille::AfficherEcartement()
{
    if (Z > 0 && d > 0)
        TxtCote.Text = CStr(d * Pow(10, Z / 276) / 2);
}

void EchelleGrenouille::AfficherImpedance()
{
    if (D > 0 && d > 0)
        TxtImpedance.Text = CStr(276 * Log10(2 * D / d));
}

} // namespace ondelis
