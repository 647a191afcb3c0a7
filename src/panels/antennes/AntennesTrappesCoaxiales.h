#pragma once

#include <string>
#include <vector>

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// An antenna trap wound from coaxial cable: the number of turns at which its reactances meet at the frequency of
/// resonance. Method of The ARRL Antenna Compendium, volume 2, 1989, page 100.
class AntennesTrappesCoaxiales final : public FeuilleCalcul {
public:
    explicit AntennesTrappesCoaxiales(Desk& desk);

    // clang-format off
    Label         LblCoax               {this, "LblCoax",                {.Caption = "Sélectionner un coaxial", .at = {240, 225, 2280, 255}}};
    ListBox       LstCoax               {this, "LstCoax",                {.Items = Coaxiaux(), .at = {240, 495, 2280, 5100}, .label = &LblCoax}, &AntennesTrappesCoaxiales::LstCoax_Click};

    Label         LblZ                  {this, "LblZ",                   {.Caption = "Impédance caractéristique", .at = {2760, 270, 2820, 255}}};
    TextBox       TxtZ                  {this, "TxtZ",                   resultField({5640, 240, 2400, 315}, &LblZ)};
    Label         LblVF                 {this, "LblVF",                  {.Caption = "Coefficient de vélocité", .at = {2760, 630, 2820, 255}}};
    TextBox       TxtVF                 {this, "TxtVF",                  resultField({5640, 600, 2400, 315}, &LblVF)};
    Label         LblOuEntrer           {this, "LblOuEntrer",            {.Caption = "ou entrer les valeurs de diamètre et de capacité par mètre", .at = {2760, 1080, 3300, 510}}};
    Label         LblDiamCoax           {this, "LblDiamCoax",            {.Caption = "Diametre Coaxial  mm", .at = {2760, 1710, 2820, 255}}};
    TextBox       TxtDiamCoax           {this, "TxtDiamCoax",            {.at = {5640, 1680, 2400, 315}, .label = &LblDiamCoax}, &AntennesTrappesCoaxiales::TxtDiamCoax_Change};
    Label         LblCapacitParMetre    {this, "LblCapacitParMetre",     {.Caption = "pF/m", .at = {2760, 2070, 2820, 255}}};
    TextBox       TxtCapacitParMetre    {this, "TxtCapacitParMetre",     {.at = {5640, 2040, 2400, 315}, .label = &LblCapacitParMetre}, &AntennesTrappesCoaxiales::TxtCapacitParMetre_Change};
    Label         LblDiamMandrin        {this, "LblDiamMandrin",         {.Caption = "Diametre mandrin mm", .at = {2760, 2670, 2820, 255}}};
    TextBox       TxtDiamMandrin        {this, "TxtDiamMandrin",         {.at = {5640, 2640, 2400, 315}, .label = &LblDiamMandrin}, &AntennesTrappesCoaxiales::TxtDiamMandrin_Change};
    Label         LblFrequence          {this, "LblFrequence",           {.Caption = "Frequence de resonance MHz", .at = {2760, 3030, 2820, 255}}};
    TextBox       TxtFrequence          {this, "TxtFrequence",           {.at = {5640, 3000, 2400, 315}, .label = &LblFrequence}, &AntennesTrappesCoaxiales::TxtFrequence_Change};
    CommandButton BtnCalculer           {this, "BtnCalculer",            {.Caption = "Calculer", .at = {5640, 3480, 1320, 375}}, &AntennesTrappesCoaxiales::BtnCalculer_Click};
    PictureBox    Picture2              {this, "Picture2",               {.picture = "trappe-coaxiale", .at = {8340, 240, 5520, 3555}}};

    Label         LblReactanceInductive {this, "LblReactanceInductive",  {.Caption = "Reatance inductive", .at = {2760, 4230, 2820, 255}}};
    TextBox       TxtReactanceInductive {this, "TxtReactanceInductive",  resultField({5640, 4200, 2400, 315}, &LblReactanceInductive)};
    Label         LblReactanceCapacitive{this, "LblReactanceCapacitive", {.Caption = "ReactanceCapacitive", .at = {2760, 4590, 2820, 255}}};
    TextBox       TxtReactanceCapacitive{this, "TxtReactanceCapacitive", resultField({5640, 4560, 2400, 315}, &LblReactanceCapacitive)};
    Label         LblInductance         {this, "LblInductance",          {.Caption = "Inductance µH", .at = {2760, 4950, 2820, 255}}};
    TextBox       TxtInductance         {this, "TxtInductance",          resultField({5640, 4920, 2400, 315}, &LblInductance)};
    Label         LblCapacitance        {this, "LblCapacitance",         {.Caption = "Capacitance pF", .at = {2760, 5310, 2820, 255}}};
    TextBox       TxtCapacitance        {this, "TxtCapacitance",         resultField({5640, 5280, 2400, 315}, &LblCapacitance)};
    Label         LblNombreTours        {this, "LblNombreTours",         {.Caption = "Nombre de tours", .at = {8340, 4230, 3660, 255}}};
    TextBox       TxtNombreTours        {this, "TxtNombreTours",         resultField({12060, 4200, 1860, 315}, &LblNombreTours)};
    Label         LblLongueurBobinage   {this, "LblLongueurBobinage",    {.Caption = "Longueur du bobinage mm", .at = {8340, 4590, 3660, 255}}};
    TextBox       TxtLongueurBobinage   {this, "TxtLongueurBobinage",    resultField({12060, 4560, 1860, 315}, &LblLongueurBobinage)};
    Label         LblLongueurCoaxial    {this, "LblLongueurCoaxial",     {.Caption = "Longueur de coax requise mm", .at = {8340, 4950, 3660, 255}}};
    TextBox       TxtLongueurCoaxial    {this, "TxtLongueurCoaxial",     resultField({12060, 4920, 1860, 315}, &LblLongueurCoaxial)};
    Label         LblLongueurEffective  {this, "LblLongueurEffective",   {.Caption = "Longueur electrique equivalente en mm", .at = {8340, 5310, 3660, 255}}};
    TextBox       TxtLongueurEffective  {this, "TxtLongueurEffective",   resultField({12060, 5280, 1860, 315}, &LblLongueurEffective)};

    PictureBox    Picture3              {this, "Picture3",               {.picture = "trappe-antenne", .at = {240, 5880, 7680, 1590}}};
    Label         LblBrinSuivant        {this, "LblBrinSuivant",         {.Caption = "Le brin rayonnant suivant la trappe doit être raccourci de la longueur électrique équivalente de la trappe", .at = {8340, 6075, 5580, 510}}};
    Label         LblBrinAmont          {this, "LblBrinAmont",           {.Caption = "Le brin rayonnant en amont de la trappe doit être accordé avant la mise en place de cette dernière", .at = {8340, 6825, 5580, 510}}};
    Label         Label19               {this, "Label19",                {.at = {240, 7770, 13680, 255}}};
    // clang-format on

private:
    static std::vector<std::string> Coaxiaux();

    void Form_Load() override;
    void LstCoax_Click();
    void TxtDiamCoax_Change();
    void TxtCapacitParMetre_Change();
    void TxtDiamMandrin_Change();
    void TxtFrequence_Change();
    void BtnCalculer_Click();
    void Calculer();

    Double FreqTrappe; ///< MHz
    Double CapaPied; ///< capacitance of the cable, pF per foot
    Double DiamCoaxPouce; ///< outer diameter of the cable, inches
    Double DiamMandrinPouce; ///< diameter of the former, inches
    Double ImpedanceCoax; ///< ohms
    Double VitesseCoax; ///< velocity factor
};

} // namespace ondelis
