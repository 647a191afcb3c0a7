#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/CouleursDessins.h"

namespace ondelis {

/// The loading coils that bring a dipole shorter than a half wave to resonance.
class AntennesDipolesRaccourcis final : public FeuilleCalcul {
public:
    static constexpr Box drawing{240, 240, 5220, 1680};

    explicit AntennesDipolesRaccourcis(Desk& desk);

    // clang-format off
    Image   Dessin    {this, "Dessin",     {.picture = "dipole-raccourci", .at = drawing}};
    Label   LblA      {this, "LblA",       dessin::lettreDeCote("A", drawing, 0.500, 0.125)};
    Label   LblB      {this, "LblB",       dessin::lettreDeCote("B", drawing, 0.626, 0.357)};

    Label   Label1    {this, "Label1",     {.Caption = "Longueur totale du dipole en mètres", .at = {240, 2190, 3300, 255}}};
    TextBox TxtA      {this, "TxtA",       {.at = {3600, 2160, 1860, 315}, .label = &Label1}, &AntennesDipolesRaccourcis::TxtA_Change};
    Label   Label2    {this, "Label2",     {.Caption = "Distance entre le centre du dipole et la self en mètres", .at = {240, 2550, 3300, 510}}};
    TextBox TxtB      {this, "TxtB",       {.at = {3600, 2520, 1860, 315}, .label = &Label2}, &AntennesDipolesRaccourcis::TxtB_Change};
    Label   Label3    {this, "Label3",     {.Caption = "Diamètre du fil d'antenne en mm", .at = {240, 3150, 3300, 255}}};
    TextBox TxtDiam   {this, "TxtDiam",    {.at = {3600, 3120, 1860, 315}, .label = &Label3}, &AntennesDipolesRaccourcis::TxtDiam_Change};
    Label   Label4    {this, "Label4",     {.Caption = "Fréquence de travail en MHz", .at = {240, 3510, 3300, 255}}};
    TextBox TxtF      {this, "TxtF",       {.at = {3600, 3480, 1860, 315}, .label = &Label4}, &AntennesDipolesRaccourcis::TxtF_Change};

    Label   Label5    {this, "Label5",     {.Caption = "Impédance de la self", .at = {240, 4110, 3300, 255}}};
    TextBox TxtXL     {this, "TxtXL",      resultField({3600, 4080, 1860, 315}, &Label5)};
    Label   Label6    {this, "Label6",     {.Caption = "Valeur de la self en H", .at = {240, 4470, 3300, 255}}};
    TextBox TxtValSelf{this, "TxtValSelf", resultField({3600, 4440, 1860, 315}, &Label6)};
    Label   Label7    {this, "Label7",     {.Caption = "Plus la distance B est grande, plus la valeur de self nécessaire forte", .at = {240, 4980, 5220, 510}}};
    // clang-format on

private:
    void Form_Load() override;
    void TxtA_Change();
    void TxtB_Change();
    void TxtDiam_Change();
    void TxtF_Change();
    void Calculer();

    Double LongA; ///< ft
    Double LongB; ///< ft
    Double DiamFil; ///< inches
    Double FreqDip; ///< MHz
};

} // namespace ondelis
