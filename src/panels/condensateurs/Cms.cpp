#include "panels/condensateurs/Cms.h"

#include <string>

#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/Text.h"
#include "panels/condensateurs/E96.h"

namespace ondelis {

void Cms::Form_Load()
{
    resumeNext({
        [&] { LstCms.ListIndex = 3; },
        [&] { Opt3Digits.Value = true; },
    });
}

void Cms::LstCms_Click()
{
    // "1206" is 12 by 06 hundredths of an inch.
    const Double c = CDbl(LstCms.List(LstCms.ListIndex));
    TxtLongueur.Text = CStr(Fix(c / 100) * 25.4 / 100);
    TxtLargeur.Text = CStr((c - Fix(c / 100) * 100) * 25.4 / 100);
}

void Cms::TxtMarquage_Change()
{
    TxtValeur.Text = "";
    TxtExposant.Text = "";
    const std::string marquage = TxtMarquage.Text;
    const std::string k = Right(marquage, 1);
    const bool chiffre = k > "." && k < ":"; // "/" too
    bool accepte = true; // an E96 marking is never refused
    if (Opt3Digits.Value)
        accepte = chiffre || k == "r" || k == "R";
    else if (Opt4Digits.Value)
        accepte = chiffre;
    if (!accepte && !marquage.empty())
        TxtMarquage.Text = "Erreur de saisie";
}

void Cms::BtnCmsCalculer_Click()
{
    TxtMarquage.Text = UCase(TxtMarquage.Text);
    if (Opt3Digits.Value)
        Decoder3Digits();
    else if (Opt4Digits.Value)
        Decoder4Digits();
    else if (OptE96.Value)
        DecoderE96();
}

void Cms::Decoder3Digits()
{
    const std::string m = TxtMarquage.Text;
    const std::string k = Right(m, 1);
    if (Mid(m, 1, 1) == "R") {
        TxtValeur.Text = Right(m, 2);
        TxtExposant.Text = CStr(-2);
    } else if (Mid(m, 2, 1) == "R") {
        TxtValeur.Text = Mid(m, 1, 1) + k;
        TxtExposant.Text = CStr(-1);
    } else if (k >= "0" && k <= "9") {
        TxtValeur.Text = CStr(Val(Mid(m, 1, 2)));
        TxtExposant.Text = k;
    }
}

void Cms::Decoder4Digits()
{
    const std::string m = TxtMarquage.Text;
    TxtValeur.Text = CStr(Val(Mid(m, 1, 3)));
    TxtExposant.Text = CStr(Val(Right(m, 1)));
}

void Cms::DecoderE96()
{
    const std::string m = TxtMarquage.Text;
    const std::string k = Right(m, 1);
    TxtValeur.Text = E96(Val(Mid(m, 1, 2)));
    if (k >= "A" && k <= "F")
        TxtExposant.Text = CStr(k[0] - 'A');
    else if (k == "X" || k == "R")
        TxtExposant.Text = CStr(-1);
    else if (k == "S" || k == "Y")
        TxtExposant.Text = CStr(-2);
}

} // namespace ondelis
