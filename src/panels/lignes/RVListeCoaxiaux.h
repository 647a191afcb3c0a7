#pragma once

#include <array>
#include <string>
#include <vector>

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A catalogue of common coaxial cables and twin leads, searched by one characteristic. All values are texts, and a
/// search compares texts: the blank in front of a computed number is part of a match.
class RVListeCoaxiaux final : public FeuilleCalcul {
public:
    explicit RVListeCoaxiaux(Desk& desk);

    // clang-format off
    OptionButton OptZ      {this, "OptZ",       {.Caption = "Recherche sur l'impédance", .at = {240, 240, 3240, 300}}, &RVListeCoaxiaux::OptZ_Click};
    OptionButton OptVF     {this, "OptVF",      {.Caption = "Recherche sur le coeff de vélocité", .at = {3540, 240, 3540, 300}}, &RVListeCoaxiaux::OptVF_Click};
    OptionButton OptpF     {this, "OptpF",      {.Caption = "Recherche sur la capa linéaire", .at = {240, 600, 3240, 300}}, &RVListeCoaxiaux::OptpF_Click};
    OptionButton OptDiam   {this, "OptDiam",    {.Caption = "Recherche sur le diamètre", .at = {3540, 600, 3540, 300}}, &RVListeCoaxiaux::OptDiam_Click};
    OptionButton OptIsolant{this, "OptIsolant", {.Caption = "Recherche sur le diélectrique", .at = {240, 960, 3240, 300}}, &RVListeCoaxiaux::OptIsolant_Click};
    OptionButton OptVmax   {this, "OptVmax",    {.Caption = "Recherche sur l'isolement", .at = {3540, 960, 3540, 300}}, &RVListeCoaxiaux::OptVmax_Click};
    PictureBox   Picture1  {this, "Picture1",   {.picture = "coaxial-icone", .at = {7200, 240, 960, 960}}};

    Label   LblResultat{this, "LblResultat", {.Caption = "Références coaxiaux", .at = {2640, 1500, 2160, 255}}};
    ListBox LstResultat{this, "LstResultat", {.at = {2640, 1800, 2040, 4380}, .Visible = false, .label = &LblResultat}, &RVListeCoaxiaux::LstResultat_Click, &RVListeCoaxiaux::LstResultat_GotFocus};
    Label   LblCriteres{this, "LblCriteres", {.Caption = "Label11", .at = {240, 1500, 2160, 255}}};
    ListBox LstCritere {this, "LstCritere",  {.at = {240, 1800, 2040, 4380}, .label = &LblCriteres}, &RVListeCoaxiaux::LstCritere_Click};

    Label   Label1 {this, "Label1",  {.Caption = "Référence", .at = {5040, 1830, 1500, 255}}};
    TextBox TxtRef {this, "TxtRef",  champ(0, &Label1)};
    Label   Label2 {this, "Label2",  {.Caption = "Impédance", .at = {5040, 2190, 1500, 255}}};
    TextBox TxtZ   {this, "TxtZ",    champ(1, &Label2)};
    Label   Label3 {this, "Label3",  {.Caption = "Coeff Vélocité", .at = {5040, 2550, 1500, 255}}};
    TextBox TxtVF  {this, "TxtVF",   champ(2, &Label3)};
    Label   Label4 {this, "Label4",  {.Caption = "pF/m", .at = {5040, 2910, 1500, 255}}};
    TextBox TxtpF  {this, "TxtpF",   champ(3, &Label4)};
    Label   Label5 {this, "Label5",  {.Caption = "Diamètre", .at = {5040, 3270, 1500, 255}}};
    TextBox TxtDiam{this, "TxtDiam", champ(4, &Label5)};
    Label   Label6 {this, "Label6",  {.Caption = "Diélectrique", .at = {5040, 3630, 1500, 255}}};
    TextBox TxtDiel{this, "TxtDiel", champ(5, &Label6)};
    Label   Label7 {this, "Label7",  {.Caption = "Umax RMS", .at = {5040, 3990, 1500, 255}}};
    TextBox TxtRMS {this, "TxtRMS",  champ(6, &Label7)};
    // One note at a time, all at one place.
    Label   Label8 {this, "Label8",  {.Caption = "PE : Polyéthylène (-65° à +80°)", .at = {5040, 4500, 3120, 765}}};
    Label   Label9 {this, "Label9",  {.Caption = "Foam PE : Foamed polyéthylène  (-65° à +80°)", .at = {5040, 4500, 3120, 765}}};
    Label   Label10{this, "Label10", {.Caption = "PTFE : Polytétrafluoroéthylène (Teflon) (-250° à +250°)", .at = {5040, 4500, 3120, 765}}};
    // clang-format on

private:
    static TextBox::Design champ(int rang, Label* label);

    void Form_Load() override;
    void OptZ_Click();
    void OptVF_Click();
    void OptpF_Click();
    void OptDiam_Click();
    void OptIsolant_Click();
    void OptVmax_Click();
    void LstCritere_Click();
    void LstResultat_Click();
    void LstResultat_GotFocus();

    void RemplirTable();
    void ProposerCriteres(Integer colonne, const std::vector<std::string>& criteres, const std::string& titre);

    static constexpr std::size_t lignes = 44;
    static constexpr std::size_t colonnes = 7;

    /// Rows and columns count from 1: reference, impedance in ohms, velocity factor, pF/m, outer diameter in mm,
    /// dielectric, maximum RMS voltage.
    std::array<std::array<std::string, colonnes + 1>, lignes + 1> TableCoaxiaux;
    Integer ColonneCritere; ///< the column that is searched, 2 to 7
};

} // namespace ondelis
