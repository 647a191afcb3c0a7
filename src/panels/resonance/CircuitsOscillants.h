#pragma once

#include <array>
#include <string>

#include "forms/ControlArray.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "kit/Maths.h"

namespace ondelis {

/// Impedance, phase and resonance of seven simple circuits at one frequency.
class CircuitsOscillants final : public FeuilleCalcul {
public:
    explicit CircuitsOscillants(Desk& desk);

    // clang-format off
    ListBox LstCalcul {this, "LstCalcul", {.Items = {"RC Série", "RC Parallèle", "RL Parallèle", "RLC Série",
                                                     "RLC Parallèle", "RL Série C Parallèle", "LC Série"},
                                           .at = {240, 240, 4440, 1740}}, &CircuitsOscillants::LstCalcul_Click};

    Label   LblFreq   {this, "LblFreq",   {.Caption = "Fréquence en ...", .at = {240, 2280, 1920, 255}}};
    TextBox TxtFreq   {this, "TxtFreq",   {.at = {2280, 2250, 1320, 315}, .label = &LblFreq}, &CircuitsOscillants::TxtFreq_Change};
    ListBox LstFreq   {this, "LstFreq",   {.Items = {"GHz", "MHz", "KHz", "Hz"}, .at = {3720, 2220, 960, 1020}, .label = &LblFreq}, &CircuitsOscillants::LstFreq_Click};

    Label   LblRes    {this, "LblRes",    {.Caption = "Résitance en ...", .at = {240, 3420, 1920, 255}}};
    TextBox TxtRes    {this, "TxtRes",    {.at = {2280, 3390, 1320, 315}, .label = &LblRes}, &CircuitsOscillants::TxtRes_Change};
    ListBox LstRes    {this, "LstRes",    {.Items = {"MOhms", "KOhms", "Ohms"}, .at = {3720, 3360, 960, 780}, .label = &LblRes}, &CircuitsOscillants::LstRes_Click};

    Label   LblInd    {this, "LblInd",    {.Caption = "Inductance en ...", .at = {240, 4320, 1920, 255}}};
    TextBox TxtInd    {this, "TxtInd",    {.at = {2280, 4290, 1320, 315}, .label = &LblInd}, &CircuitsOscillants::TxtInd_Change};
    ListBox LstInd    {this, "LstInd",    {.Items = {"mH", "µH", "nH", "pH"}, .at = {3720, 4260, 960, 1020}, .label = &LblInd}, &CircuitsOscillants::LstInd_Click};

    Label   LblCapa   {this, "LblCapa",   {.Caption = "Capacite en ...", .at = {240, 5460, 1920, 255}}};
    TextBox TxtCapa   {this, "TxtCapa",   {.at = {2280, 5430, 1320, 315}, .label = &LblCapa}, &CircuitsOscillants::TxtCapa_Change};
    ListBox LstCapa   {this, "LstCapa",   {.Items = {"µF", "nF", "pF"}, .at = {3720, 5400, 960, 780}, .label = &LblCapa}, &CircuitsOscillants::LstCapa_Click};

    ControlArray<Frame> frmCircuit{this, "frmCircuit", 7, &CircuitsOscillants::frmCircuitDesign};

    Label   LblImp      {this, "LblImp",       {.Caption = "Impédance", .at = {5040, 4320, 1860, 255}}};
    TextBox TxtImp      {this, "TxtImp",       resultField({6960, 4290, 2400, 315}, &LblImp)};
    Label   LblDephase  {this, "LblDephase",   {.Caption = "Déphasage en °", .at = {5040, 4680, 1860, 255}}};
    TextBox TxtDephase  {this, "TxtDephase",   resultField({6960, 4650, 2400, 315}, &LblDephase)};
    Label   LblPuiss    {this, "LblPuiss",     {.Caption = "Puissance en Watts", .at = {5040, 5040, 1860, 255}}};
    TextBox TxtPuiss    {this, "TxtPuiss",     resultField({6960, 5010, 2400, 315}, &LblPuiss)};
    Label   LblResonance{this, "LblResonance", {.Caption = "Résonance", .at = {5040, 5400, 1860, 255}, .Visible = false}};
    TextBox TxtResonance{this, "TxtResonance", {.at = {6960, 5370, 2400, 315}, .BackColor = 0xFFFFC0, .Locked = true, .Visible = false, .label = &LblResonance}};
    // clang-format on

private:
    static constexpr Color ouvert = 0xFFFFFF;
    static constexpr Color ferme = 0xFFFF80;

    static Frame::Design frmCircuitDesign(int index);

    void Form_Load() override;
    void TxtFreq_Change();
    void TxtRes_Change();
    void TxtInd_Change();
    void TxtCapa_Change();
    void LstFreq_Click();
    void LstRes_Click();
    void LstInd_Click();
    void LstCapa_Click();
    void LstCalcul_Click();

    static void Ouvrir(TextBox& champ);
    static void Fermer(TextBox& champ);
    void AfficherCircuit(int index);
    void Calculer();

    // The computing half for each type: each gives the text of the power, empty where a guard fails.
    std::string RCSerie();
    std::string RCParallele();
    std::string RLParallele();
    std::string RLCSerie();
    std::string RLCParallele();
    std::string RLSerieCParallele();
    std::string LCSerie();
    void AfficherResonance(Double hertz);

    std::string TypeCircuit = "RC Série"; ///< the text of the chosen row
    Double Frequence; ///< Hz
    Double Omega; ///< rad/s
    Double Resistance; ///< ohms
    Double Inductance; ///< H
    Double Capacite; ///< F
    Double UniteFreq = Pow(10, 6); ///< factor of the chosen unit, as the three below
    Double UniteRes = 1;
    Double UniteInd = Pow(10, -6);
    Double UniteCapa = Pow(10, -12);
    Double Impedance; ///< ohms; 0 until a first one is computed
    Double Phi; ///< radians, but 90 or -90 in "LC Série"
    Double Tau; ///< 0.69 R C of the last "RC Série", s
};

} // namespace ondelis
