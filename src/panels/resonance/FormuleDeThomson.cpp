#include "panels/resonance/FormuleDeThomson.h"

#include "forms/Runtime.h"
#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "panels/resonance/CalculNombreSpires.h"

namespace ondelis {

void FormuleDeThomson::Form_Load()
{
    resumeNext({
        [&] { OptF.Value = true; },
        [&] { OptL.Value = false; },
        [&] { OptC.Value = false; },
    });
}

void FormuleDeThomson::OptF_Click()
{
    runtime().get<CalculNombreSpires>().Hide();
    OptionCalcul = "Frequence";
    MarquerInconnue(TxtFreq);
    MarquerDonnee(TxtSelf);
    MarquerDonnee(TxtCapa);
}

void FormuleDeThomson::OptL_Click()
{
    // Placed beside this panel, but not shown: if it was hidden earlier, it stays hidden.
    runtime().get<CalculNombreSpires>().Top = Top + 500;
    runtime().get<CalculNombreSpires>().Left = Width + Left + 500;
    OptionCalcul = "Self";
    MarquerDonnee(TxtFreq);
    TxtFreq.SetFocus();
    MarquerInconnue(TxtSelf);
    MarquerDonnee(TxtCapa);
}

void FormuleDeThomson::OptC_Click()
{
    runtime().get<CalculNombreSpires>().Hide();
    OptionCalcul = "Capacite";
    MarquerDonnee(TxtFreq);
    TxtFreq.SetFocus();
    MarquerDonnee(TxtSelf);
    MarquerInconnue(TxtCapa);
}

void FormuleDeThomson::TxtFreq_Change()
{
    Frequence = Val(TxtFreq.Text) * 1000000;
    Calculer();
}

void FormuleDeThomson::TxtSelf_Change()
{
    Self = Val(TxtSelf.Text) * 0.000001;
    Calculer();
}

void FormuleDeThomson::TxtCapa_Change()
{
    Capacite = Val(TxtCapa.Text) * 1E-12;
    Calculer();
}

void FormuleDeThomson::Calculer()
{
    // The store of a result reads its text back into the variable; the Calculer nested in it then finds the
    // same result again.
    if (OptionCalcul == "Frequence") {
        if (Capacite == 0 || Self == 0)
            return;
        Frequence = 1 / (2 * Pi() * Sqr(Capacite * Self));
        Frequence = Fix(Frequence); // whole hertz
        TxtFreq.Text = CStr(Frequence / 1000000);
    } else if (OptionCalcul == "Self") {
        if (Frequence == 0 || Capacite == 0)
            return;
        const Double Omega = 2 * Pi() * Frequence;
        Self = 1 / (Pow(Omega, 2) * Capacite);
        TxtSelf.Text = CStr(Pow(10, 6) * Self);
    } else if (OptionCalcul == "Capacite") {
        if (Self == 0 || Frequence == 0)
            return;
        const Double Omega = 2 * Pi() * Frequence;
        Capacite = 1 / (Pow(Omega, 2) * Self);
        TxtCapa.Text = CStr(Pow(10, 12) * Capacite);
    }
}

void FormuleDeThomson::MarquerInconnue(TextBox& champ)
{
    champ.BackColor = soughtColor;
    champ.Locked = true;
}

void FormuleDeThomson::MarquerDonnee(TextBox& champ)
{
    champ.BackColor = givenColor;
    champ.Locked = false;
}

} // namespace ondelis
