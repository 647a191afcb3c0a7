#include "panels/resonance/CalculSelf.h"

#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/TraitementMultiplicateur.h"

namespace ondelis {

void CalculSelf::Form_Load()
{
    resumeNext({
        [&] { Caption = "Calcul de la valeur d'une self"; },
        [&] {
            Label3.Caption
                = "Dans cette formule, les dimensions sont en inches. Les valeurs de D et L sont donc converties "
                  "avant le calcul. Le diametre moyen de la self est aussi calculer à la valeur D+e .";
        },
        [&] { Label7.Caption = "Référence : The ARRL HANDBOOK 1996 §6.22 "; },
        [&] { Width = 10575; },
        [&] { Height = 5970; },
        [&] { TxtD.Text = "100"; },
        [&] { TxtL.Text = "312"; },
        [&] { TxtN.Text = "55"; },
        [&] { BtnCalculer.Value = true; },
    });
}

void CalculSelf::TxtD_Change()
{
    D = Val(TxtD.Text);
}

void CalculSelf::TxtL_Change()
{
    L = Val(TxtL.Text);
}

void CalculSelf::TxtN_Change()
{
    N = Val(TxtN.Text);
}

void CalculSelf::BtnCalculer_Click()
{
    D = Val(TxtD.Text);
    L = Val(TxtL.Text);
    N = Val(TxtN.Text);
    if (D == 0 || L == 0 || N == 0)
        return;
    D = D / 25.4;
    L = L / 25.4;
    const Double microhenrys = (Pow(N, 2) * Pow(D, 2)) / (18 * D + 40 * L);
    TxtS.Text = TraitementMultiplicateur(microhenrys * 0.000001);
}

} // namespace ondelis
