#include "panels/antennes/CalculsFminFmax.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/TraitementMultiplicateur.h"
#include "panels/antennes/AntennesHighQLoop.h"

namespace ondelis {

Double Fonctionnement::Q() const
{
    return F_ / D_;
}

Double Fonctionnement::XL() const
{
    return 2 * Pi() * F_ * loop_.Inductance;
}

Double Fonctionnement::RR() const
{
    const Double lambda = 3 * Pow(10, 8) / F_;
    return 3.12 * Pow(10, 4) * Pow(loop_.NbSpires * loop_.Surface / Pow(lambda, 2), 2);
}

Double Fonctionnement::RL() const
{
    return D_ * XL() / (2 * F_) - RR();
}

Double Fonctionnement::Vc() const
{
    return Sqr(loop_.Puissance * XL() * Q());
}

Double Fonctionnement::IL() const
{
    return Sqr(loop_.Puissance * Q() / XL());
}

Double Fonctionnement::Efficacite() const
{
    return Fix(RR() / (RL() + RR()) * 10000) / 100;
}

Double Fonctionnement::Cf() const
{
    return 1 / (Pow(2 * Pi() * F_, 2) * loop_.Inductance);
}

void CalculsFminFmax(AntennesHighQLoop& loop)
{
    const Fonctionnement mini{loop, loop.FreqMin, loop.DeltaFMin};
    loop.TxtQ_FreqMin.Text = CStr(Fix(mini.Q()));
    loop.TxtXL_FreqMin.Text = TraitementMultiplicateur(mini.XL());
    loop.TxtRR_FreqMin.Text = TraitementMultiplicateur(mini.RR());
    loop.TxtRL_FreqMin.Text = TraitementMultiplicateur(mini.RL());
    loop.TxtVC_FreqMin.Text = CStr(Fix(mini.Vc()));
    loop.TxtIL_FreqMin.Text = TraitementMultiplicateur(mini.IL());
    loop.TxtNeta_FreqMin.Text = TraitementMultiplicateur(mini.Efficacite()); // a multiplier word, in this column alone
    loop.TxtCf_FreqMin.Text = TraitementMultiplicateur(mini.Cf());

    const Fonctionnement maxi{loop, loop.FreqMax, loop.DeltaFMax};
    loop.TxtQ_FreqMax.Text = CStr(Fix(maxi.Q()));
    loop.TxtXL_FreqMax.Text = TraitementMultiplicateur(maxi.XL());
    loop.TxtRR_FreqMax.Text = TraitementMultiplicateur(maxi.RR());
    loop.TxtRL_FreqMax.Text = TraitementMultiplicateur(maxi.RL());
    loop.TxtVC_FreqMax.Text = CStr(Fix(maxi.Vc()));
    loop.TxtIL_FreqMax.Text = TraitementMultiplicateur(maxi.IL());
    loop.TxtNeta_FreqMax.Text = CStr(maxi.Efficacite());
    loop.TxtCf_FreqMax.Text = TraitementMultiplicateur(maxi.Cf());
}

} // namespace ondelis
