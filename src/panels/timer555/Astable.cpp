#include "panels/timer555/Astable.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void Astable::Form_Load()
{
    resumeNext({
        [&] { HscrCapa.Value = 10; },
        [&] { LstCapa.ListIndex = 0; },
        [&] { HscrFreq.Value = 50; },
        [&] { LstFreq.ListIndex = 0; },
    });
}

void Astable::HscrFreq_Change()
{
    LstFreq_Click();
}

void Astable::LstFreq_Click()
{
    Frequence = HscrFreq.Value * facteurFrequence(LstFreq.ListIndex);
    LblFreq.Caption = "Fréquence : " + Str(HscrFreq.Value) + " " + LstFreq.List(LstFreq.ListIndex);
    CalculResistances();
}

void Astable::HscrCapa_Change()
{
    LstCapa_Click();
}

void Astable::LstCapa_Click()
{
    Capacite = HscrCapa.Value * facteurCapacite(LstCapa.ListIndex);
    LblCapa.Caption = "Condensateur : " + Str(HscrCapa.Value) + " " + LstCapa.List(LstCapa.ListIndex);
    CalculResistances();
}

void Astable::CalculResistances()
{
    if (Frequence == 0 || Capacite == 0)
        return;
    const Double Periode = 1 / Frequence; // s
    const Double SommeR = Periode / (Capacite * 0.693); // R1 + R2, taken for the whole timing resistance
    const Double R1 = SommeR / 4;
    const Double R2 = (SommeR * 3) / 4;
    LblR1.Caption = "Résistance R1 = " + Str(Truncate(R1, 100)) + " Ohms";
    LblR2.Caption = "Résistance R2 = " + Str(Truncate(R2, 100)) + " Ohms";
}

} // namespace ondelis
