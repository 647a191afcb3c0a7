#include "panels/antennes/GammaMatch.h"

#include "kit/ComputeForFault.h"
#include "kit/Conversions.h"
#include "kit/Fault.h"
#include "kit/Maths.h"
#include "kit/Text.h"

namespace ondelis {
namespace {

// The captions of the options: the chosen one is red.
constexpr Color couleurChoisie = red;
constexpr Color couleurNonChoisie = black;

// The frequency's message also serves for the resistances.
const std::string frequenceRefusee = "La valeur de frequence doit être positive et supérieure à zéro";
const std::string reactanceRefusee = "La réactance doit être négative et inférieure à zéro";
const std::string diametreRefuse = "Le diamètre extérieur doit être positif et supérieure à zéro";

/// Inverse hyperbolic cosine. Throws an invalid argument below 1.
Double FNCSH(Double x)
{
    return Log(x + Sqr(Pow(x, 2) - 1));
}

/// Inches from millimetres.
Double Inches(Double x)
{
    return x / 25.4;
}

} // namespace

void GammaMatch::Form_Load()
{
    resumeNext({
        [&] { Image1.Visible = true; },
        [&] { OptMonopole.Value = true; },
        [&] { TxtFreq.Text = "145"; },
        [&] { TxtRA.Text = "25"; },
        [&] { TxtXa.Text = "-25"; },
        [&] { TxtR0.Text = "50"; },
        [&] { TxtDE.Text = "20"; },
        [&] { TxtDR.Text = "5"; },
        [&] { TxtS.Text = "20"; },
    });
}

void GammaMatch::OptMonopole_Click()
{
    OptDipôle.Value = false;
    Image1.Visible = true;
    Image2.Visible = false;
    OptMonopole.ForeColor = couleurChoisie;
    OptDipôle.ForeColor = couleurNonChoisie;
    TxtFreq.Text = "145";
    TxtRA.Text = "25";
    TxtXa.Text = "-25";
    TxtR0.Text = "50";
}

void GammaMatch::OptDipôle_Click()
{
    OptMonopole.Value = false;
    Image1.Visible = false;
    Image2.Visible = true;
    OptMonopole.ForeColor = couleurNonChoisie;
    OptDipôle.ForeColor = couleurChoisie;
    TxtFreq.Text = CStr(14.175); // read back as 14 under a decimal comma
    TxtRA.Text = "300";
    TxtXa.Text = "-300";
    TxtR0.Text = "600";
}

void GammaMatch::TxtFreq_Change()
{
    if (Val(TxtFreq.Text) <= 0) {
        Refuser(TxtFreq, frequenceRefusee);
    } else {
        Freq = Val(TxtFreq.Text);
        Label4.Caption = "Entre-axes conseillé : " + Str(Fix(0.01 * 300000 / Freq));
    }
}

void GammaMatch::TxtRA_Change()
{
    if (Val(TxtRA.Text) <= 0)
        Refuser(TxtRA, frequenceRefusee);
}

void GammaMatch::TxtXa_Change()
{
    if (Val(TxtXa.Text) < 0) {
        OptMonopole.Visible = true;
        OptDipôle.Visible = true;
    } else if (ondelis::Left(TxtXa.Text, 1) != "-") { // a lone "-" is the start of a negative number
        Refuser(TxtXa, reactanceRefusee);
    }
}

void GammaMatch::TxtR0_Change()
{
    if (Val(TxtR0.Text) <= 0) {
        MsgBox(frequenceRefusee);
        throw Fault{FaultKind::ObjectNotSet}; // this field alone is not emptied: the program ends
    }
    R0 = Val(TxtR0.Text);
}

void GammaMatch::TxtDE_Change()
{
    if (Val(TxtDE.Text) <= 0)
        Refuser(TxtDE, diametreRefuse);
    else
        DE = Inches(Val(TxtDE.Text));
}

void GammaMatch::TxtDR_Change()
{
    if (Val(TxtDR.Text) <= 0)
        Refuser(TxtDR, diametreRefuse);
    else
        DR = Inches(Val(TxtDR.Text));
}

void GammaMatch::TxtS_Change()
{
    if (Val(TxtS.Text) <= 0)
        Refuser(TxtS, diametreRefuse);
    else
        S = Inches(Val(TxtS.Text));
}

void GammaMatch::Refuser(TextBox& champ, const std::string& message)
{
    MsgBox(message);
    champ.Text = ""; // refused in its turn, unless the field was empty
}

void GammaMatch::BtnCalculer_Click()
{
    // The whole dipole is twice the monopole that is matched.
    Double RA = Val(TxtRA.Text);
    Double XA = Val(TxtXa.Text);
    if (!OptMonopole.Value) {
        RA = RA / 2;
        XA = XA / 2;
    }
    TxtLongPilote.Text = CStr(Truncate(300000 / Freq * 0.97 / 2, 100));

    const Double a = FNCSH((4 * Pow(S, 2) - Pow(DE, 2) + Pow(DR, 2)) / (4 * S * DR));
    const Double b = FNCSH((4 * Pow(S, 2) + Pow(DE, 2) - Pow(DR, 2)) / (4 * S * DE));
    const Double K = Pow(1 + a / b, 2); // step-up ratio
    const Double Z = 60 * FNCSH((4 * Pow(S, 2) - Pow(DE, 2) - Pow(DR, 2)) / (2 * DE * DR));
    const Double Y = K / Z;
    const Double D = K * RA - R0;
    const Double c = R0 * XA / D;
    const Double e = R0 * (Pow(RA, 2) + Pow(XA, 2)) / D;
    const Double X = c + Sqr(Pow(c, 2) + e);
    // The other form of the same root is not used, but it can end the program where the first one did not.
    computeForFault(K * (R0 * XA + Sqr(Pow(R0 * XA, 2) + R0 * D * (Pow(RA, 2) + Pow(XA, 2)))) / D);
    const Double G = Atn(X * Y) * 180 / Pi(); // degrees

    const Double Xc1 = (Pow(RA, 2) + Pow(XA, 2)) / X * (R0 / RA);
    const Double Xc2 = XA * (R0 / RA);
    const Double Lg = 305 * (G / 360 * (948 / Freq)); // mm
    TxtGamma.Text = CStr(Truncate(Lg, 100));
    const Double C = 1000000 / (Freq * ((Xc2 + Xc1) * (2 * Pi()))); // pF
    TxtCapa.Text = CStr(Truncate(C, 100));
}

} // namespace ondelis
