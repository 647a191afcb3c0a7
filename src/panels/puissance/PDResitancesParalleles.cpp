#include "panels/puissance/PDResitancesParalleles.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void PDResitancesParalleles::Form_Load()
{
    resumeNext({[&] { Init(); }});
}

void PDResitancesParalleles::Init()
{
    TxtAlim.Text = CStr(13.8);
    TxtR1.Text = CStr(100);
    TxtR2.Text = CStr(100);
    TxtRc.Text = CStr(10);
    TxtPot.Text = CStr(1000);
    VScrollPot.Value = 100;
}

void PDResitancesParalleles::TxtAlim_Change()
{
    if (TxtAlim.Text == "") {
        TxtAlim.Text = CStr(0);
        return;
    }
    Alim = CDbl(TxtAlim.Text);
    Calculer();
}

void PDResitancesParalleles::TxtR1_Change()
{
    Lire(TxtR1, ValR1);
}

void PDResitancesParalleles::TxtR2_Change()
{
    Lire(TxtR2, ValR2);
}

void PDResitancesParalleles::TxtRc_Change()
{
    Lire(TxtRc, ValRc);
}

void PDResitancesParalleles::TxtPot_Change()
{
    Lire(TxtPot, ValPot);
}

void PDResitancesParalleles::VScrollPot_Change()
{
    Curseur = VScrollPot.Value;
    Calculer();
}

void PDResitancesParalleles::Lire(const TextBox& champ, Double& valeur)
{
    if (champ.Text == "") {
        valeur = 0; // and the old results stay
        return;
    }
    valeur = CDbl(champ.Text);
    Calculer();
}

void PDResitancesParalleles::Calculer()
{
    if (ValR1 == 0 || ValR2 == 0 || ValRc == 0 || ValPot == 0 || Curseur == 0 || Alim == 0)
        return;
    // The two parts of the potentiometer.
    const Double PotHaut = ((100 - Curseur) * ValPot) / 100;
    const Double PotBas = (Curseur * ValPot) / 100;
    TxtPPot.Text = CStr(Curseur);
    const Double BrancheHaute = ValR1 + PotHaut;
    const Double BrancheBasse = ValR2 + PotBas;
    const Double Rp = (BrancheBasse * ValRc) / (BrancheBasse + ValRc);
    const Double Rt = Rp + BrancheHaute;
    TxtRAlim.Text = CStr(Truncate(Rt, 100));
    TxtPotR2Rc.Text = CStr(Truncate(Rp, 100));
    const Double Ip = Alim / Rt;
    MebIp.Text = CStr(Truncate(Ip, 100));
    const Double Us = Rp * Ip;
    MebUs.Text = CStr(Truncate(Us, 100));
    const Double Ic = Truncate(Us / ValRc, 100);
    MebIc.Text = CStr(Truncate(Ic, 100)); // truncated a second time: 0.29 becomes 0.28
}

} // namespace ondelis
