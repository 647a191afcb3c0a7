#include "panels/puissance/PDShunts.h"

#include "kit/Conversions.h"
#include "kit/TraitementMultiplicateur.h"

namespace ondelis {

void PDShunts::Form_Load()
{
    resumeNext({
        [&] { TxtResInt.Text = CStr(1000); },
        [&] { TxtDevTot.Text = CStr(50); },
        [&] { OptCourant.Value = true; },
        [&] { TxtImax.Text = CStr(10); },
    });
}

void PDShunts::OptCourant_Click()
{
    Presenter(true);
    TxtImax.Text = "";
    TxTShuntI.Text = "";
}

void PDShunts::OptTension_Click()
{
    Presenter(false);
    TxtUmax.Text = "";
    TxtShuntU.Text = "";
}

void PDShunts::TxtDevTot_Change()
{
    Idev = Val(TxtDevTot.Text) * 1e-6;
    Calculer();
}

void PDShunts::TxtResInt_Change()
{
    Rint = Val(TxtResInt.Text);
    Calculer();
}

void PDShunts::TxtUmax_Change()
{
    Umax = Val(TxtUmax.Text);
    CalculerTension();
}

void PDShunts::TxtImax_Change()
{
    Imax = Val(TxtImax.Text);
    CalculerCourant();
}

/// Shows the fields of the ammeter, or those of the voltmeter; the others keep their texts.
void PDShunts::Presenter(bool courant)
{
    LblImax.Visible = courant;
    LblIShunt.Visible = courant;
    TxtImax.Visible = courant;
    TxTShuntI.Visible = courant;
    LblTensionMax.Visible = !courant;
    LblVShunt.Visible = !courant;
    TxtUmax.Visible = !courant;
    TxtShuntU.Visible = !courant;
}

void PDShunts::Calculer()
{
    if (OptTension.Value)
        CalculerTension();
    else
        CalculerCourant();
}

void PDShunts::CalculerTension()
{
    if (Umax == 0 || Idev == 0 || Rint == 0 || !OptTension.Value)
        return;
    const Double U0 = Idev * Rint;
    const Double R = (Umax - U0) / Idev;
    TxtShuntU.Text = TraitementMultiplicateur(R);
}

void PDShunts::CalculerCourant()
{
    if (Imax == 0 || Idev == 0 || Rint == 0 || !OptCourant.Value)
        return;
    const Double U0 = Idev * Rint;
    const Double k = Idev / Imax;
    const Double I = Imax * (1 - k);
    const Double R = U0 / I;
    TxTShuntI.Text = TraitementMultiplicateur(R);
}

} // namespace ondelis
