#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A small tuned polygonal loop of high Q for a band of frequencies, and what it does at both edges of the band.
class AntennesHighQLoop final : public FeuilleCalcul {
public:
    explicit AntennesHighQLoop(Desk& desk)
        : FeuilleCalcul{
            desk, {.name = "AntennesHighQLoop", .Caption = "Calcul des High Q Loop", .Width = 14220, .Height = 7740}}
    {
    }

    using Me = AntennesHighQLoop;
    static constexpr Column colonne{.left = 240, .captions = 2520};
    static constexpr Column colonne_2 = colonne.from(1755);
    static constexpr Column colonne_3 = colonne.from(2895);
    static constexpr Column colonne_4 = colonne.from(6195);
    static constexpr Column colonne2{.left = 4440, .captions = 2280};
    static constexpr Column colonne3{.left = 180, .captions = 1560, .top = 345};

    Label LblFreqMin{this, "LblFreqMin", colonne.caption(0, "Fréquence Mini en MHz")};
    TextBox TxtFreqMin{this, "TxtFreqMin", colonne.input(LblFreqMin), &Me::TxtFreqMin_Change};
    Label LblFreqMax{this, "LblFreqMax", colonne.caption(1, "Fréquence Maxi en MHz")};
    TextBox TxtFreqMax{this, "TxtFreqMax", colonne.input(LblFreqMax), &Me::TxtFreqMax_Change};
    Label LblDeltaFMin{this, "LblDeltaFMin", colonne.caption(2, "DeltaF Mini en KHz")};
    TextBox TxtDeltaFMin{this, "TxtDeltaFMin", colonne.input(LblDeltaFMin), &Me::TxtDeltaFMin_Change};
    Label LblDeltaFMax{this, "LblDeltaFMax", colonne.caption(3, "DeltaF Maxi en KHz")};
    TextBox TxtDeltaFMax{this, "TxtDeltaFMax", colonne.input(LblDeltaFMax), &Me::TxtDeltaFMax_Change};
    Label LblNbreCotes{this, "LblNbreCotes", colonne_2.caption(0, "Nombre de cotes")};
    ListBox LstNbreCotes{
        this, "LstNbreCotes", colonne_2.list(LblNbreCotes, {"3", "4", "6", "8"}), &Me::LstNbreCotes_Click};
    Label LblLambdaSur{this, "LblLambdaSur", colonne_3.caption(0, "Lambda sur ...")};
    ListBox LstLambdaSur{this, "LstLambdaSur",
        colonne_3.list(LblLambdaSur, {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13"}),
        &Me::LstLambdaSur_Click};
    Label LblPuissance{this, "LblPuissance", colonne_4.caption(0, "Puissance utilisée en Watts")};
    TextBox TxtPuissance{this, "TxtPuissance", colonne_4.input(LblPuissance), &Me::TxtPuissance_Change};
    CommandButton BtnCalculer{
        this, "BtnCalculer", {.Caption = "Calculer", .at = {2820, 6705, 1320, 375}}, &Me::BtnCalculer_Click};

    Label LblFreqMoy{this, "LblFreqMoy", colonne2.caption(0, "Fréquence Moy en MHz")};
    TextBox TxtFreqMoy{this, "TxtFreqMoy", colonne2.result(LblFreqMoy)};
    Label LblDeltaFMoy{this, "LblDeltaFMoy", colonne2.caption(1, "DeltaF Moy en kHz")};
    TextBox TxtDeltaFMoy{this, "TxtDeltaFMoy", colonne2.result(LblDeltaFMoy)};
    Label LblLambdaMoy{this, "LblLambdaMoy", colonne2.caption(2, "Lambda moy en m")};
    TextBox TxtLambdaMoy{this, "TxtLambdaMoy", colonne2.result(LblLambdaMoy)};
    Label LblLongueurCote{this, "LblLongueurCote", colonne2.caption(3, "Longueur cote en cm")};
    TextBox TxtLongueurCote{this, "TxtLongueurCote", colonne2.result(LblLongueurCote)};
    Label LblRayon{this, "LblRayon", colonne2.caption(4, "Rayon de la loop en cm")};
    TextBox TxtRayon{this, "TxtRayon", colonne2.result(LblRayon)};
    Label LblSurface{this, "LblSurface", colonne2.caption(5, "Surface de la loop en m²")};
    TextBox TxtSurface{this, "TxtSurface", colonne2.result(LblSurface)};
    Label LblInductance{this, "LblInductance", colonne2.caption(6, "Inductance en µH")};
    TextBox TxtInductance{this, "TxtInductance", colonne2.result(LblInductance)};
    PictureBox Picture2{this, "Picture2", {.picture = "high-q-loop", .at = {4440, 2955, 4680, 4065}}};

    Frame FrmFreqMin{
        this, "FrmFreqMin", {.Caption = "Fonctionnement à la fréquence minimum", .at = {9480, 180, 4380, 3360}}};
    Label LblQ_FreqMin{this, "LblQ_FreqMin", colonne3.caption(0, "Q", &FrmFreqMin)};
    TextBox TxtQ_FreqMin{this, "TxtQ_FreqMin", colonne3.result(LblQ_FreqMin)};
    Label LblXL_FreqMin{this, "LblXL_FreqMin", colonne3.caption(1, "XL", &FrmFreqMin)};
    TextBox TxtXL_FreqMin{this, "TxtXL_FreqMin", colonne3.result(LblXL_FreqMin)};
    Label LblRR_FreqMin{this, "LblRR_FreqMin", colonne3.caption(2, "RR", &FrmFreqMin)};
    TextBox TxtRR_FreqMin{this, "TxtRR_FreqMin", colonne3.result(LblRR_FreqMin)};
    Label LblRL_FreqMin{this, "LblRL_FreqMin", colonne3.caption(3, "RL", &FrmFreqMin)};
    TextBox TxtRL_FreqMin{this, "TxtRL_FreqMin", colonne3.result(LblRL_FreqMin)};
    Label LblVC_FreqMin{this, "LblVC_FreqMin", colonne3.caption(4, "Vc", &FrmFreqMin)};
    TextBox TxtVC_FreqMin{this, "TxtVC_FreqMin", colonne3.result(LblVC_FreqMin)};
    Label LblIL_FreqMin{this, "LblIL_FreqMin", colonne3.caption(5, "IL", &FrmFreqMin)};
    TextBox TxtIL_FreqMin{this, "TxtIL_FreqMin", colonne3.result(LblIL_FreqMin)};
    Label LblNeta_FreqMin{this, "LblNeta_FreqMin", colonne3.caption(6, "Efficacite", &FrmFreqMin)};
    TextBox TxtNeta_FreqMin{this, "TxtNeta_FreqMin", colonne3.result(LblNeta_FreqMin)};
    Label LblCf_FreqMin{this, "LblCf_FreqMin", colonne3.caption(7, "Condensateur F", &FrmFreqMin)};
    TextBox TxtCf_FreqMin{this, "TxtCf_FreqMin", colonne3.result(LblCf_FreqMin)};

    Frame FrmFreqMax{
        this, "FrmFreqMax", {.Caption = "Fonctionnement à la fréquence maximum", .at = {9480, 3720, 4380, 3360}}};
    Label LblQ_FreqMax{this, "LblQ_FreqMax", colonne3.caption(0, "Q", &FrmFreqMax)};
    TextBox TxtQ_FreqMax{this, "TxtQ_FreqMax", colonne3.result(LblQ_FreqMax)};
    Label LblXL_FreqMax{this, "LblXL_FreqMax", colonne3.caption(1, "XL", &FrmFreqMax)};
    TextBox TxtXL_FreqMax{this, "TxtXL_FreqMax", colonne3.result(LblXL_FreqMax)};
    Label LblRR_FreqMax{this, "LblRR_FreqMax", colonne3.caption(2, "RR", &FrmFreqMax)};
    TextBox TxtRR_FreqMax{this, "TxtRR_FreqMax", colonne3.result(LblRR_FreqMax)};
    Label LblRL_FreqMax{this, "LblRL_FreqMax", colonne3.caption(3, "RL", &FrmFreqMax)};
    TextBox TxtRL_FreqMax{this, "TxtRL_FreqMax", colonne3.result(LblRL_FreqMax)};
    Label LblVC_FreqMax{this, "LblVC_FreqMax", colonne3.caption(4, "Vc", &FrmFreqMax)};
    TextBox TxtVC_FreqMax{this, "TxtVC_FreqMax", colonne3.result(LblVC_FreqMax)};
    Label LblIL_FreqMax{this, "LblIL_FreqMax", colonne3.caption(5, "IL", &FrmFreqMax)};
    TextBox TxtIL_FreqMax{this, "TxtIL_FreqMax", colonne3.result(LblIL_FreqMax)};
    Label LblNeta_FreqMax{this, "LblNeta_FreqMax", colonne3.caption(6, "Efficacite", &FrmFreqMax)};
    TextBox TxtNeta_FreqMax{this, "TxtNeta_FreqMax", colonne3.result(LblNeta_FreqMax)};
    Label LblCf_FreqMax{this, "LblCf_FreqMax", colonne3.caption(7, "Condensateur F", &FrmFreqMax)};
    TextBox TxtCf_FreqMax{this, "TxtCf_FreqMax", colonne3.result(LblCf_FreqMax)};

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
    /// A result, on the light yellow of this panel.

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
