#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// The inductance of a winding on a toroidal core, for iron powder and for ferrite side by side.
class CalculSurTores final : public FeuilleCalcul {
public:
    explicit CalculSurTores(Desk& desk);

    // clang-format off
    Label      Label1              {this, "Label1",               {.Caption = "Tores à fer pulvérisé",    .at = {240, ligne(0), 3900, 315}, .font = {.bold = true}}};
    Label      Label3              {this, "Label3",               {.Caption = "AL (µH par 100 tours)",    .at = {240, ligne(1) + 30, 2520, 255}}};
    TextBox    TxtAlFerPulverise   {this, "TxtAlFerPulverise",    {.at = {2820, ligne(1), 1320, 315}, .label = &Label3}, &CalculSurTores::TxtAlFerPulverise_Change};
    Label      Label4              {this, "Label4",               {.Caption = "Diamètre intérieur en mm", .at = {240, ligne(2) + 30, 2520, 255}}};
    TextBox    TxtDiamIntFerPul    {this, "TxtDiamIntFerPul",     {.at = {2820, ligne(2), 1320, 315}, .label = &Label4}, &CalculSurTores::TxtDiamIntFerPul_Change};
    Label      Label5              {this, "Label5",               {.Caption = "Diamètre extérieur en mm", .at = {240, ligne(3) + 30, 2520, 255}}};
    TextBox    TxtDiamExtFerPul    {this, "TxtDiamExtFerPul",     {.at = {2820, ligne(3), 1320, 315}, .label = &Label5}, &CalculSurTores::TxtDiamExtFerPul_Change};
    Label      Label6              {this, "Label6",               {.Caption = "Epaisseur du tore en mm",  .at = {240, ligne(4) + 30, 2520, 255}}};
    TextBox    TxtEpFePul          {this, "TxtEpFePul",           {.at = {2820, ligne(4), 1320, 315}, .label = &Label6}, &CalculSurTores::TxtEpFePul_Change};
    Label      Label7              {this, "Label7",               {.Caption = "Nombre de spires",         .at = {240, ligne(5.75) + 30, 2520, 255}}};
    TextBox    TxtSpiresFerPul     {this, "TxtSpiresFerPul",      {.at = {2820, ligne(5.75), 1320, 315}, .label = &Label7}, &CalculSurTores::TxtSpiresFerPul_Change};
    VScrollBar VScrollSpiresFerPul {this, "VScrollSpiresFerPul",  {.Min = 32767, .Max = 0, .SmallChange = 1, .LargeChange = 10, .at = {4260, ligne(0), 255, hauteurBarre}, .label = &Label7}, &CalculSurTores::VScrollSpiresFerPul_Change};
    Label      Label8              {this, "Label8",               {.Caption = "Valeur d'inductance en H", .at = {240, ligne(7.75) + 30, 2520, 255}}};
    TextBox    TxtInductanceFerPul {this, "TxtInductanceFerPul",  resultField({2820, ligne(7.75), 2040, 315}, &Label8)};

    Line       Line1               {this, "Line1",                {.X1 = 5190, .Y1 = 240, .X2 = 5190, .Y2 = ligne(7.75) + 315, .BorderColor = 0x808080}};

    Label      Label2              {this, "Label2",               {.Caption = "Tores en ferrites",        .at = {5520, ligne(0), 3900, 315}, .font = {.bold = true}}};
    Label      Label9              {this, "Label9",               {.Caption = "AL (mH par 1000 tours)",   .at = {5520, ligne(1) + 30, 2520, 255}}};
    TextBox    TxtAlFerrite        {this, "TxtAlFerrite",         {.at = {8100, ligne(1), 1320, 315}, .label = &Label9}, &CalculSurTores::TxtAlFerrite_Change};
    Label      Label10             {this, "Label10",              {.Caption = "Diamètre intérieur en mm", .at = {5520, ligne(2) + 30, 2520, 255}}};
    TextBox    TxtDiamIntFerrite   {this, "TxtDiamIntFerrite",    {.at = {8100, ligne(2), 1320, 315}, .label = &Label10}, &CalculSurTores::TxtDiamIntFerrite_Change};
    Label      Label11             {this, "Label11",              {.Caption = "Diamètre extérieur en mm", .at = {5520, ligne(3) + 30, 2520, 255}}};
    TextBox    TxtDiamExtFerrite   {this, "TxtDiamExtFerrite",    {.at = {8100, ligne(3), 1320, 315}, .label = &Label11}, &CalculSurTores::TxtDiamExtFerrite_Change};
    Label      Label12             {this, "Label12",              {.Caption = "Epaisseur du tore en mm",  .at = {5520, ligne(4) + 30, 2520, 255}}};
    TextBox    TxtEpFerrite        {this, "TxtEpFerrite",         {.at = {8100, ligne(4), 1320, 315}, .label = &Label12}, &CalculSurTores::TxtEpFerrite_Change};
    Label      Label13             {this, "Label13",              {.Caption = "Nombre de spires",         .at = {5520, ligne(5.75) + 30, 2520, 255}}};
    TextBox    TxtSpiresFerrite    {this, "TxtSpiresFerrite",     {.at = {8100, ligne(5.75), 1320, 315}, .label = &Label13}, &CalculSurTores::TxtSpiresFerrite_Change};
    VScrollBar VScrollSpiresFerrite{this, "VScrollSpiresFerrite", {.Min = 32767, .Max = 0, .SmallChange = 1, .LargeChange = 10, .at = {9540, ligne(0), 255, hauteurBarre}, .label = &Label13}, &CalculSurTores::VScrollSpiresFerrite_Change};
    Label      Label14             {this, "Label14",              {.Caption = "Valeur d'inductance en H", .at = {5520, ligne(7.75) + 30, 2520, 255}}};
    TextBox    TxtInductanceFerrite{this, "TxtInductanceFerrite", resultField({8100, ligne(7.75), 2040, 315}, &Label14)};

    PictureBox Picture1            {this, "Picture1",             {.picture = "tore", .at = {10440, 240, 4140, 3105}}};
    // clang-format on

private:
    /// From the top of the column down to its result: a pixel of the bar is worth many turns.
    static constexpr double hauteurBarre = ligne(7.75) - ligne(0) - 120;

    /// What is known of one column.
    struct Tore {
        Double AL; ///< µH per 100 turns, or mH per 1000
        Double Ep; ///< cm
        Double DiamInt; ///< cm
        Double DiamExt; ///< cm
        Double N; ///< turns
    };

    void Form_Load() override;
    void TxtAlFerPulverise_Change();
    void TxtDiamIntFerPul_Change();
    void TxtDiamExtFerPul_Change();
    void TxtEpFePul_Change();
    void TxtSpiresFerPul_Change();
    void VScrollSpiresFerPul_Change();
    void TxtAlFerrite_Change();
    void TxtDiamIntFerrite_Change();
    void TxtDiamExtFerrite_Change();
    void TxtEpFerrite_Change();
    void TxtSpiresFerrite_Change();
    void VScrollSpiresFerrite_Change();

    void Calculer();
    /// One column: `tours` is the square of the turns that AL is given for, `unite` the unit of the inductance in
    /// henrys, and `c` the constant of the inductance by geometry.
    static void CalculerColonne(const Tore& tore, TextBox& resultat, Double tours, Double unite, Double c);

    Tore FerPulverise;
    Tore Ferrite;
};

} // namespace ondelis
