#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A small tuned polygonal loop of high Q for a frequency band, and how it performs at both edges of the band.
class AntennesHighQLoop final : public FeuilleCalcul {
public:
    explicit AntennesHighQLoop(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "AntennesHighQLoop", .Caption = "Calcul des High Q Loop", .Width = 14220, .Height = 7740}}
    {
    }

    using Me = AntennesHighQLoop;
    static constexpr Column bande{.left = 240, .captions = 2520};
    static constexpr Column cotes = bande.from(1755);
    static constexpr Column lambda = bande.from(cotes.top + listHeight(4) + 120);
    static constexpr Column puissance = bande.from(lambda.top + listHeight(13) + 120);
    static constexpr Column resultats{.left = 4440, .captions = 2280};
    static constexpr Column fonctionnement{.left = 180, .captions = 1560, .top = 345}; ///< in the frame of an edge

    Label LblFreqMin{this, "LblFreqMin", bande.caption(0, "Fréquence Mini en MHz")};
    TextBox TxtFreqMin{this, "TxtFreqMin", bande.input(LblFreqMin), &Me::TxtFreqMin_Change};
    Label LblFreqMax{this, "LblFreqMax", bande.caption(1, "Fréquence Maxi en MHz")};
    TextBox TxtFreqMax{this, "TxtFreqMax", bande.input(LblFreqMax), &Me::TxtFreqMax_Change};
    Label LblDeltaFMin{this, "LblDeltaFMin", bande.caption(2, "DeltaF Mini en KHz")};
    TextBox TxtDeltaFMin{this, "TxtDeltaFMin", bande.input(LblDeltaFMin), &Me::TxtDeltaFMin_Change};
    Label LblDeltaFMax{this, "LblDeltaFMax", bande.caption(3, "DeltaF Maxi en KHz")};
    TextBox TxtDeltaFMax{this, "TxtDeltaFMax", bande.input(LblDeltaFMax), &Me::TxtDeltaFMax_Change};

    Label LblNbreCotes{this, "LblNbreCotes", cotes.caption(0, "Nombre de cotes")};
    ListBox LstNbreCotes{this, "LstNbreCotes", cotes.list(LblNbreCotes, {"3", "4", "6", "8"}), &Me::LstNbreCotes_Click};
    Label LblLambdaSur{this, "LblLambdaSur", lambda.caption(0, "Lambda sur ...")};
    ListBox LstLambdaSur{this, "LstLambdaSur",
        lambda.list(LblLambdaSur, {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13"}),
        &Me::LstLambdaSur_Click};
    Label LblPuissance{this, "LblPuissance", puissance.caption(0, "Puissance utilisée en Watts")};
    TextBox TxtPuissance{this, "TxtPuissance", puissance.input(LblPuissance), &Me::TxtPuissance_Change};
    CommandButton BtnCalculer{this, "BtnCalculer",
        {.Caption = "Calculer", .at = under(TxtPuissance, bande.inputs, 375, 195)}, &Me::BtnCalculer_Click};

    Label LblFreqMoy{this, "LblFreqMoy", resultats.caption(0, "Fréquence Moy en MHz")};
    TextBox TxtFreqMoy{this, "TxtFreqMoy", resultats.result(LblFreqMoy)};
    Label LblDeltaFMoy{this, "LblDeltaFMoy", resultats.caption(1, "DeltaF Moy en kHz")};
    TextBox TxtDeltaFMoy{this, "TxtDeltaFMoy", resultats.result(LblDeltaFMoy)};
    Label LblLambdaMoy{this, "LblLambdaMoy", resultats.caption(2, "Lambda moy en m")};
    TextBox TxtLambdaMoy{this, "TxtLambdaMoy", resultats.result(LblLambdaMoy)};
    Label LblLongueurCote{this, "LblLongueurCote", resultats.caption(3, "Longueur cote en cm")};
    TextBox TxtLongueurCote{this, "TxtLongueurCote", resultats.result(LblLongueurCote)};
    Label LblRayon{this, "LblRayon", resultats.caption(4, "Rayon de la loop en cm")};
    TextBox TxtRayon{this, "TxtRayon", resultats.result(LblRayon)};
    Label LblSurface{this, "LblSurface", resultats.caption(5, "Surface de la loop en m²")};
    TextBox TxtSurface{this, "TxtSurface", resultats.result(LblSurface)};
    Label LblInductance{this, "LblInductance", resultats.caption(6, "Inductance en µH")};
    TextBox TxtInductance{this, "TxtInductance", resultats.result(LblInductance)};

    PictureBox Picture2{this, "Picture2", {.picture = "high-q-loop", .at = under(LblInductance, 4680, 4065, 270)}};

    Frame FrmFreqMin{
        this, "FrmFreqMin", {.Caption = "Fonctionnement à la fréquence minimum", .at = {9480, 180, 4380, 3360}}};
    Label LblQ_FreqMin{this, "LblQ_FreqMin", fonctionnement.caption(0, "Q", &FrmFreqMin)};
    TextBox TxtQ_FreqMin{this, "TxtQ_FreqMin", fonctionnement.result(LblQ_FreqMin)};
    Label LblXL_FreqMin{this, "LblXL_FreqMin", fonctionnement.caption(1, "XL", &FrmFreqMin)};
    TextBox TxtXL_FreqMin{this, "TxtXL_FreqMin", fonctionnement.result(LblXL_FreqMin)};
    Label LblRR_FreqMin{this, "LblRR_FreqMin", fonctionnement.caption(2, "RR", &FrmFreqMin)};
    TextBox TxtRR_FreqMin{this, "TxtRR_FreqMin", fonctionnement.result(LblRR_FreqMin)};
    Label LblRL_FreqMin{this, "LblRL_FreqMin", fonctionnement.caption(3, "RL", &FrmFreqMin)};
    TextBox TxtRL_FreqMin{this, "TxtRL_FreqMin", fonctionnement.result(LblRL_FreqMin)};
    Label LblVC_FreqMin{this, "LblVC_FreqMin", fonctionnement.caption(4, "Vc", &FrmFreqMin)};
    TextBox TxtVC_FreqMin{this, "TxtVC_FreqMin", fonctionnement.result(LblVC_FreqMin)};
    Label LblIL_FreqMin{this, "LblIL_FreqMin", fonctionnement.caption(5, "IL", &FrmFreqMin)};
    TextBox TxtIL_FreqMin{this, "TxtIL_FreqMin", fonctionnement.result(LblIL_FreqMin)};
    Label LblNeta_FreqMin{this, "LblNeta_FreqMin", fonctionnement.caption(6, "Efficacite", &FrmFreqMin)};
    TextBox TxtNeta_FreqMin{this, "TxtNeta_FreqMin", fonctionnement.result(LblNeta_FreqMin)};
    Label LblCf_FreqMin{this, "LblCf_FreqMin", fonctionnement.caption(7, "Condensateur F", &FrmFreqMin)};
    TextBox TxtCf_FreqMin{this, "TxtCf_FreqMin", fonctionnement.result(LblCf_FreqMin)};

    Frame FrmFreqMax{this, "FrmFreqMax",
        {.Caption = "Fonctionnement à la fréquence maximum", .at = under(FrmFreqMin, 4380, 3360, 180)}};
    Label LblQ_FreqMax{this, "LblQ_FreqMax", fonctionnement.caption(0, "Q", &FrmFreqMax)};
    TextBox TxtQ_FreqMax{this, "TxtQ_FreqMax", fonctionnement.result(LblQ_FreqMax)};
    Label LblXL_FreqMax{this, "LblXL_FreqMax", fonctionnement.caption(1, "XL", &FrmFreqMax)};
    TextBox TxtXL_FreqMax{this, "TxtXL_FreqMax", fonctionnement.result(LblXL_FreqMax)};
    Label LblRR_FreqMax{this, "LblRR_FreqMax", fonctionnement.caption(2, "RR", &FrmFreqMax)};
    TextBox TxtRR_FreqMax{this, "TxtRR_FreqMax", fonctionnement.result(LblRR_FreqMax)};
    Label LblRL_FreqMax{this, "LblRL_FreqMax", fonctionnement.caption(3, "RL", &FrmFreqMax)};
    TextBox TxtRL_FreqMax{this, "TxtRL_FreqMax", fonctionnement.result(LblRL_FreqMax)};
    Label LblVC_FreqMax{this, "LblVC_FreqMax", fonctionnement.caption(4, "Vc", &FrmFreqMax)};
    TextBox TxtVC_FreqMax{this, "TxtVC_FreqMax", fonctionnement.result(LblVC_FreqMax)};
    Label LblIL_FreqMax{this, "LblIL_FreqMax", fonctionnement.caption(5, "IL", &FrmFreqMax)};
    TextBox TxtIL_FreqMax{this, "TxtIL_FreqMax", fonctionnement.result(LblIL_FreqMax)};
    Label LblNeta_FreqMax{this, "LblNeta_FreqMax", fonctionnement.caption(6, "Efficacite", &FrmFreqMax)};
    TextBox TxtNeta_FreqMax{this, "TxtNeta_FreqMax", fonctionnement.result(LblNeta_FreqMax)};
    Label LblCf_FreqMax{this, "LblCf_FreqMax", fonctionnement.caption(7, "Condensateur F", &FrmFreqMax)};
    TextBox TxtCf_FreqMax{this, "TxtCf_FreqMax", fonctionnement.result(LblCf_FreqMax)};

    Double FreqMin; ///< Hz, as the two below: edges and centre of the band
    Double FreqMax;
    Double FreqMoy;
    Double DeltaFMin; ///< bandwidth at each of them, Hz
    Double DeltaFMax;
    Double DeltaFMoy;
    Double NbSpires; ///< turns: always one
    Integer NbCotes; ///< number of sides
    Double Puissance; ///< W
    Double LambdaMoy; ///< wavelength at the centre, m
    Double Cote; ///< length of a side, m
    Double AngleCote; ///< half the angle that a side subtends, radians
    Double Rayon; ///< radius of the circle through the corners, m
    Double Surface; ///< m²
    Double Inductance; ///< H
    Integer LambdaSur; ///< the perimeter is the wavelength over this

private:
    void Form_Load() override;
    void TxtFreqMin_Change();
    void TxtFreqMax_Change();
    void TxtDeltaFMin_Change();
    void TxtDeltaFMax_Change();
    void TxtPuissance_Change();
    void LstNbreCotes_Click();
    void LstLambdaSur_Click();
    void BtnCalculer_Click();
};

} // namespace ondelis
