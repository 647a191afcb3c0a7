#include "panels/timer555/Monostable.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void Monostable::Form_Load()
{
    resumeNext({
        [&] { HscrRes.Value = 541; },
        [&] { LstRes.ListIndex = 1; },
        [&] { HscrCapa.Value = 78; },
        [&] { LstCapa.ListIndex = 1; },
    });
}

void Monostable::HscrRes_Change()
{
    LstRes_Click();
}

void Monostable::LstRes_Click()
{
    Resistance = HscrRes.Value * facteurResistance(LstRes.ListIndex);
    LblRes.Caption = "Résistance : " + Str(HscrRes.Value) + " " + LstRes.List(LstRes.ListIndex);
    CalculMonostable();
}

void Monostable::HscrCapa_Change()
{
    LstCapa_Click();
}

void Monostable::LstCapa_Click()
{
    Capacite = HscrCapa.Value * facteurCapacite(LstCapa.ListIndex);
    LblCapa.Caption = "Condensateur : " + Str(HscrCapa.Value) + " " + LstCapa.List(LstCapa.ListIndex);
    CalculMonostable();
}

void Monostable::CalculMonostable()
{
    if (Resistance == 0 || Capacite == 0)
        return;
    const Double Duree = Capacite * 0.693 * Resistance; // s
    if (Duree >= 1)
        LblDuree.Caption = "Durée " + Str(Truncate(Duree, 100)) + " s";
    else if (Duree >= 0.001)
        LblDuree.Caption = "Durée " + Str(Fix(Duree * 1e5) / 100) + " ms";
    else if (Duree >= 1e-6)
        LblDuree.Caption = "Durée " + Str(Fix(Duree * 1e8) / 100) + " µs";
    else if (Duree >= 1e-9)
        LblDuree.Caption = "Durée " + Str(Fix(Duree * 1e11) / 100) + " ns";
    else
        LblDuree.Caption = "Durée " + Str(Fix(Duree * 1e14) / 100) + " ps";
}

} // namespace ondelis
