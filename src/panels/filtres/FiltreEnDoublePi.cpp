#include "panels/filtres/FiltreEnDoublePi.h"

#include "forms/Runtime.h"
#include "kit/ControleSigne.h"
#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/TraitementMultiplicateur.h"
#include "panels/resonance/CalculNombreSpires.h"

namespace ondelis {

void FiltreEnDoublePi::Form_Load()
{
    resumeNext({
        [&] { FacteurMHz = 1000000; },
        [&] { TxtF0.Text = CStr(7.1); },
        [&] { TxtBP.Text = "1"; },
        [&] { TxtZin.Text = "50"; },
        [&] { TxtZout.Text = "50"; },
    });
}

void FiltreEnDoublePi::TxtF0_Change()
{
    CalculerDoublePi();
}

void FiltreEnDoublePi::TxtBP_Change()
{
    CalculerDoublePi();
}

void FiltreEnDoublePi::TxtZin_Change()
{
    CalculerDoublePi();
}

void FiltreEnDoublePi::TxtZout_Change()
{
    CalculerDoublePi();
}

void FiltreEnDoublePi::CalculerDoublePi()
{
    const Double F0 = Controler(Val(TxtF0.Text) * FacteurMHz);
    if (F0 == 0)
        return;
    const Double BP = Controler(Val(TxtBP.Text) * FacteurMHz);
    if (BP == 0)
        return;
    const Double Zi = Controler(Val(TxtZin.Text));
    if (Zi == 0)
        return;
    const Double Zo = Controler(Val(TxtZout.Text));
    if (Zo == 0)
        return;

    const Double p = Pi() + Pi();
    const Double Fl = F0 - BP / 2;
    const Double Fh = F0 + BP / 2;
    const Double Wl = p * Fl;
    const Double Wh = p * Fh;
    const Double W0 = p * (Sqr(2) * F0); // the second section is tuned above the centre
    const Double Zm = Sqr(Zo * Zi);
    const Double La = Zi / (Wh - Wl);
    const Double Lb = Zm / (Wh - Wl);
    const Double C1 = 1 / (Zi * (Wl + Wh));
    const Double C2 = 1 / (La * Pow(Wh, 2));
    const Double Cb = 1 / (Lb * Pow(Wl, 2));
    const Double Cd = 1 / (W0 * Zm);
    const Double Ld = Zm / W0;
    const Double Le = Zo / W0;
    const Double C4 = 1 / (W0 * Zo);

    TxtC1.Text = TraitementMultiplicateur(C1);
    TxtC2.Text = TraitementMultiplicateur(C2);
    TxtL1.Text = TraitementMultiplicateur(La + Lb);
    TxtC3.Text = TraitementMultiplicateur(Cb + Cd);
    TxtL2.Text = TraitementMultiplicateur(Ld + Le);
    TxtC4.Text = TraitementMultiplicateur(C4);
    RemplirNombreSpires();
}

Double FiltreEnDoublePi::Controler(Double valeur)
{
    return ControleSigne(valeur, [this](const std::string& prompt) { MsgBox(prompt); });
}

void FiltreEnDoublePi::RemplirNombreSpires()
{
    auto& spires = runtime().get<CalculNombreSpires>();
    spires.TxtS.Text = CStr(Val(TxtL1.Text)); // the figure without its multiplier word
    spires.TxtF.Text = "1";
    spires.TxtD.Text = "5";
}

} // namespace ondelis
