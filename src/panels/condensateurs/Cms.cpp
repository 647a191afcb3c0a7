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
    const Double code = CDbl(LstCms.List(LstCms.ListIndex));
    TxtLongueur.Text = CStr(Fix(code / 100) * 25.4 / 100);
    TxtLargeur.Text = CStr((code - Fix(code / 100) * 100) * 25.4 / 100);
}

void Cms::TxtMarquage_Change()
{
    TxtValeur.Text = "";
    TxtExposant.Text = "";
    const std::string marquage = TxtMarquage.Text;
    const std::string dernier = Right(marquage, 1);
    const bool chiffre = dernier > "." && dernier < ":"; // "/" counts as one, too
    bool accepte = true; // an E96 marking is never refused
    if (Opt3Digits.Value)
        accepte = chiffre || dernier == "r" || dernier == "R";
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
    const std::string marquage = TxtMarquage.Text;
    const std::string dernier = Right(marquage, 1);
    if (Mid(marquage, 1, 1) == "R") {
        TxtValeur.Text = Right(marquage, 2);
        TxtExposant.Text = CStr(-2);
    } else if (Mid(marquage, 2, 1) == "R") {
        TxtValeur.Text = Mid(marquage, 1, 1) + dernier;
        TxtExposant.Text = CStr(-1);
    } else if (dernier >= "0" && dernier <= "9") {
        TxtValeur.Text = CStr(Val(Mid(marquage, 1, 2)));
        TxtExposant.Text = dernier;
    }
}

void Cms::Decoder4Digits()
{
    const std::string marquage = TxtMarquage.Text;
    TxtValeur.Text = CStr(Val(Mid(marquage, 1, 3)));
    TxtExposant.Text = CStr(Val(Right(marquage, 1)));
}

void Cms::DecoderE96()
{
    const std::string marquage = TxtMarquage.Text;
    const std::string dernier = Right(marquage, 1);
    TxtValeur.Text = E96(Val(Mid(marquage, 1, 2)));
    if (dernier >= "A" && dernier <= "F")
        TxtExposant.Text = CStr(dernier[0] - 'A');
    else if (dernier == "X" || dernier == "R")
        TxtExposant.Text = CStr(-1);
    else if (dernier == "S" || dernier == "Y")
        TxtExposant.Text = CStr(-2);
}

} // namespace ondelis
