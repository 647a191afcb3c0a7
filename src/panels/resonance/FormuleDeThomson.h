#pragma once

#include <string>

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The resonance of an LC circuit, solved for the frequency, the inductance or the capacitance.
class FormuleDeThomson final : public FeuilleCalcul {
public:
    explicit FormuleDeThomson(Desk& desk);

    // clang-format off
    OptionButton OptF    {this, "OptF",     {.at = {240, 517, 300, 300}, .label = &LblFrequ}, &FormuleDeThomson::OptF_Click};
    Label        LblFrequ{this, "LblFrequ", {.Caption = "Fréquence en MHz", .at = {600, 240, 2550, 255}}};
    TextBox      TxtFreq {this, "TxtFreq",  {.at = {600, 510, 2550, 315}, .label = &LblFrequ}, &FormuleDeThomson::TxtFreq_Change};
    OptionButton OptL    {this, "OptL",     {.at = {240, 1477, 300, 300}, .label = &Label12}, &FormuleDeThomson::OptL_Click};
    Label        Label12 {this, "Label12",  {.Caption = "Inductance en µH", .at = {600, 1200, 2550, 255}}};
    TextBox      TxtSelf {this, "TxtSelf",  {.at = {600, 1470, 2550, 315}, .label = &Label12}, &FormuleDeThomson::TxtSelf_Change};
    OptionButton OptC    {this, "OptC",     {.at = {240, 2437, 300, 300}, .label = &LblCapa}, &FormuleDeThomson::OptC_Click};
    Label        LblCapa {this, "LblCapa",  {.Caption = "Capacitance en pF", .at = {600, 2160, 2550, 255}}};
    TextBox      TxtCapa {this, "TxtCapa",  {.at = {600, 2430, 2550, 315}, .label = &LblCapa}, &FormuleDeThomson::TxtCapa_Change};

    // The formulas: F = 1 / (2 Pi root(L C)), L = 1 / ((2 Pi F)² C), C = 1 / ((2 Pi F)² L).
    Label LblF       {this, "LblF",        {.Caption = "F = ", .at = {3210, 540, 420, 255}, .align = Align::Right}};
    Label LblFHaut   {this, "LblFHaut",    {.Caption = "1", .at = {3660, 360, 1710, 255}, .align = Align::Center}};
    Line  BarreF     {this, "BarreF",      {.X1 = 3660, .Y1 = 667, .X2 = 5370, .Y2 = 667}};
    Label LblFBas    {this, "LblFBas",     {.Caption = "2 * Pi *", .at = {3645, 735, 840, 255}, .align = Align::Right}};
    Line  RacineF1   {this, "RacineF1",    {.X1 = 4545, .Y1 = 897, .X2 = 4590, .Y2 = 867}};
    Line  RacineF2   {this, "RacineF2",    {.X1 = 4590, .Y1 = 867, .X2 = 4665, .Y2 = 1000, .BorderWidth = 2}};
    Line  RacineF3   {this, "RacineF3",    {.X1 = 4665, .Y1 = 1000, .X2 = 4740, .Y2 = 742}};
    Line  RacineF4   {this, "RacineF4",    {.X1 = 4740, .Y1 = 742, .X2 = 5190, .Y2 = 742}};
    Label LblFRacine {this, "LblFRacine",  {.Caption = "L C", .at = {4755, 757, 420, 255}, .align = Align::Center}};

    Label LblL       {this, "LblL",        {.Caption = "L = ", .at = {3210, 1500, 420, 255}, .align = Align::Right}};
    Label LblLHaut   {this, "LblLHaut",    {.Caption = "1", .at = {3660, 1320, 1710, 255}, .align = Align::Center}};
    Line  BarreL     {this, "BarreL",      {.X1 = 3660, .Y1 = 1627, .X2 = 5370, .Y2 = 1627}};
    Label LblLBas    {this, "LblLBas",     {.Caption = "( 2 * Pi * F )² * C", .at = {3660, 1680, 1710, 255}, .align = Align::Center}};

    Label LblC       {this, "LblC",        {.Caption = "C = ", .at = {3210, 2460, 420, 255}, .align = Align::Right}};
    Label LblCHaut   {this, "LblCHaut",    {.Caption = "1", .at = {3660, 2280, 1710, 255}, .align = Align::Center}};
    Line  BarreC     {this, "BarreC",      {.X1 = 3660, .Y1 = 2587, .X2 = 5370, .Y2 = 2587}};
    Label LblCBas    {this, "LblCBas",     {.Caption = "( 2 * Pi * F )² * L", .at = {3660, 2640, 1710, 255}, .align = Align::Center}};

    PictureBox Picture1{this, "Picture1", {.picture = "thomson-icone", .at = {5490, 240, 690, 690}}};
    // clang-format on

private:
    static constexpr Color cherche = 0xC0E0FF; ///< orange: the field to be solved
    static constexpr Color donne = 0xC0FFC0; ///< green: an input

    void Form_Load() override;
    void OptF_Click();
    void OptL_Click();
    void OptC_Click();
    void TxtFreq_Change();
    void TxtSelf_Change();
    void TxtCapa_Change();
    void Calculer();

    static void Chercher(TextBox& champ);
    static void Donner(TextBox& champ);

    Double Frequence; ///< Hz
    Double Self; ///< H
    Double Capacite; ///< F
    std::string OptionCalcul; ///< "Frequence", "Self" or "Capacite": what is solved for
};

} // namespace ondelis
