#include "panels/condensateurs/CondensateurEnergie.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/TraitementMultiplicateur.h"

namespace ondelis {

void CondensateurEnergie::Form_Load()
{
    resumeNext({
        [&] { TxtJoules.Text = CStr(100); },
        [&] { TxtCapa.Text = CStr(470); },
        [&] { TxtCourant.Text = CStr(0.2); },
        [&] { TxtDecharge.Text = CStr(0.1); },
    });
}

void CondensateurEnergie::TxtJoules_Change()
{
    Joules = Val(TxtJoules.Text);
    Calculer();
}

void CondensateurEnergie::TxtCapa_Change()
{
    Capa = Val(TxtCapa.Text) / 1e6;
    Calculer();
}

void CondensateurEnergie::TxtCourant_Change()
{
    Courant = Val(TxtCourant.Text);
    Calculer();
}

void CondensateurEnergie::TxtDecharge_Change()
{
    const Double d = Val(TxtDecharge.Text) / 1000; // s
    if (d != 0)
        TxTCD.Text = TraitementMultiplicateur(Charge / d);
}

void CondensateurEnergie::Calculer()
{
    if (Capa == 0 || Courant == 0 || Joules == 0)
        return;
    Tension = Truncate(Sqr((Joules * 2) / Capa), 100);
    TxtTension.Text = TraitementMultiplicateur(Tension);
    Charge = Truncate(Tension * Capa, 100);
    TxtCoulombs.Text = TraitementMultiplicateur(Charge);
    Temps = Truncate(Charge / Courant, 100);
    TxtTemps.Text = TraitementMultiplicateur(Temps);
}

} // namespace ondelis
