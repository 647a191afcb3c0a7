#include "panels/timer555/RapportCyclique.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"

namespace ondelis {

void RapportCyclique::Form_Load()
{
    // A unit must be chosen before its bar moves.
    resumeNext({
        [&] { LstFreq.ListIndex = 0; },
        [&] { HScrlFreq.Value = 440; },
        [&] { LstCondo.ListIndex = 1; },
        [&] { HScrlCondo.Value = 330; },
        [&] { HScrlRapportCyclique.Value = 50; },
    });
}

void RapportCyclique::LstFreq_Click()
{
    HScrlFreq_Change();
}

void RapportCyclique::HScrlFreq_Change()
{
    Frequence = HScrlFreq.Value * facteurFrequence(LstFreq.ListIndex);
    if (LstFreq.ListIndex >= 0)
        LblFreq.Caption = "Frequence " + Str(Frequence) + " " + LstFreq.List(LstFreq.ListIndex); // always in hertz
    else
        MsgBox("L'unité doit être définie au préalable");
    Calculer();
}

void RapportCyclique::LstCondo_Click()
{
    HScrlCondo_Change();
}

void RapportCyclique::HScrlCondo_Change()
{
    LblCondo.Caption = "Condenstaeur " + Str(HScrlCondo.Value) + " " + LstCondo.List(LstCondo.ListIndex);
    Capacite = HScrlCondo.Value * facteurCapacite(LstCondo.ListIndex);
    Calculer();
}

void RapportCyclique::HScrlRapportCyclique_Change()
{
    LblRapportCyclique.Caption = "Rapport cyclique " + Str(HScrlRapportCyclique.Value) + "%";
    RapportCyc = HScrlRapportCyclique.Value;
    Calculer();
}

void RapportCyclique::Calculer()
{
    if (Frequence == 0 || Capacite == 0 || RapportCyc == 0)
        return;
    const Double Periode = 1 / Frequence; // s
    const Double TempsMin = Periode / 100; // kept for R1
    // The adjustable remainder of the period, in its two parts.
    const Double X1 = ((Periode - TempsMin) * (RapportCyc - 1)) / 100;
    const Double X2 = (Periode - TempsMin) - X1;
    const Double R1 = Fix((100 * TempsMin) / (Capacite * 0.693)) / 100;
    LblR1.Caption = "R1 = " + Str(R1) + " Ohms";
    const Double P1a = Fix((100 * X1) / (Capacite * 0.693)) / 100;
    LblP1a.Caption = "P1a = " + Str(P1a) + " Ohms";
    const Double P1b = Fix((X2 * 100) / (Capacite * 0.6933)) / 100; // with one digit more
    LblP1b.Caption = "P1b = " + Str(P1b) + " Ohms";
    const Double Potar = P1b + P1a;
    LblPotar.Caption = "Potar = " + Str(Potar) + " Ohms";
    const Double LargeurA = (X1 * 2000) / (X2 + X1);
    const Integer LargeurB = CInt((X2 * 2000) / (X2 + X1));
    TracerOnde(LargeurA, LargeurB);
}

/// Draws the wave, with the widths of its low and of its high part in twips.
void RapportCyclique::TracerOnde(Double LargeurA, Integer LargeurB)
{
    // The rising edge.
    Line1.X1 = debut;
    Line1.X2 = debut;
    Line1.Y1 = bas;
    Line1.Y2 = haut;
    // The low part.
    Line2.X1 = Line1.X1;
    Line2.X2 = Line1.X2 + LargeurA;
    Line2.Y1 = Line1.Y1;
    Line2.Y2 = Line2.Y1;
    // The edge between them.
    Line3.X1 = Line2.X2;
    Line3.X2 = Line3.X1;
    Line3.Y1 = Line2.Y2;
    Line3.Y2 = Line1.Y2;
    // The high part.
    Line4.X1 = Line3.X2;
    Line4.X2 = Line4.X1 + LargeurB;
    Line4.Y1 = Line3.Y2;
    Line4.Y2 = Line4.Y1;
    // The falling edge.
    Line5.X1 = Line4.X2;
    Line5.X2 = Line5.X1;
    Line5.Y1 = Line4.Y2;
    Line5.Y2 = Line1.Y1;
}

} // namespace ondelis
