#pragma once

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A form with one fault of each kind.
class CrookedPanel final : public FeuilleCalcul {
public:
    explicit CrookedPanel(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "CrookedPanel",
                .Caption = "Un panneau dont le titre est plus long que ce que sa largeur permet d'écrire",
                .Width = 6000,
                .Height = 7200}}
    {
    }

    Label CutLabel{this, "CutLabel", {.Caption = "Fréquence de résonance", .at = {240, 240, 900, 255}}};
    Label CutLines{
        this, "CutLines", {.Caption = "Une longue remarque sur trois lignes de texte", .at = {240, 600, 1200, 510}}};
    TextBox CutResult{this, "CutResult",
        {.Text = " 123.456789 micro", .at = {1800, 240, 900, 315}, .Locked = true, .label = &CutLabel}};
    TextBox CutDefault{
        this, "CutDefault", {.Text = "0.000318309886183791", .at = {1800, 1680, 900, 315}, .label = &CutLabel}};
    TextBox CutArea{this, "CutArea",
        {.Text = "Une longue remarque sur trois lignes de texte",
            .at = {240, 4320, 1500, 510},
            .multiLine = true,
            .label = &CutLabel}};
    TextBox HighEnough{this, "HighEnough", {.at = {1800, 900, 900, 285}, .label = &CutLabel}};
    TextBox LowField{this, "LowField", {.at = {1800, 600, 900, 195}, .label = &CutLabel}};
    ListBox CutRow{this, "CutRow", {.Items = {"Polyéthylène"}, .at = {2880, 240, 600, 300}, .label = &CutLabel}};
    ListBox ShortList{this, "ShortList", {.Items = {"a", "b", "c"}, .at = {2880, 600, 600, 540}, .label = &CutLabel}};
    ListBox PartList{this, "PartList", {.Items = {"a", "b"}, .at = {2880, 1140, 600, 480}, .label = &CutLabel}};
    ListBox BlankList{this, "BlankList", {.Items = {"a", "b"}, .at = {2880, 1740, 600, 780}, .label = &CutLabel}};
    OptionButton HighOption{this, "HighOption", {.Caption = "Rho", .at = {4200, 1740, 900, 345}}};
    Label LowTitle{this, "LowTitle", {.Caption = "Rho", .at = {4200, 2160, 900, 255}, .font = {.bold = true}}};
    OptionButton CutOption{this, "CutOption", {.Caption = "Rho optimum", .at = {3600, 240, 600, 300}}};
    CommandButton CutButton{this, "CutButton", {.Caption = "Calculer", .at = {3600, 600, 480, 375}}};
    Label NoCaption{this, "NoCaption", {.at = {4200, 1440, 600, 255}}};
    OptionButton NamelessOption{this, "NamelessOption", {.at = {4200, 1080, 600, 300}, .label = &NoCaption}};
    TextBox Beyond{this, "Beyond", {.at = {240, 6720, 900, 315}, .label = &CutLabel}};
    Label Under{this, "Under", {.Caption = "R", .at = {240, 1320, 900, 255}}};
    TextBox Over{this, "Over", {.at = {900, 1320, 900, 315}, .label = &Under}};
    Image Missing{this, "Missing", {.picture = "aucun", .at = {240, 1800, 900, 900}}};
    Image Stretched{this, "Stretched", {.picture = "section-diametre", .at = {1200, 1800, 600, 735}}};
    Label Small{this, "Small", {.Caption = "C", .at = {1200, 2400, 600, 255}, .font = {.size = 8}}};
    Label Covered{this, "Covered", {.Caption = "R", .at = {360, 4380, 600, 255}}}; // by CutArea: on purpose
    Label Hidden{this, "Hidden", {.Caption = "Cachée, mais trop longue", .at = {240, 240, 60, 60}, .Visible = false}};
    Frame CutFrame{this, "CutFrame", {.Caption = "Caractéristiques", .at = {240, 2880, 900, 1200}}};
    Frame Frame1{this, "Frame1", {.Caption = "Cadre", .at = {1800, 2880, 1800, 1200}}};
    TextBox OnTitle{this, "OnTitle", {.at = {120, 120, 900, 315}, .label = &CutLabel, .container = &Frame1}};
    Frame Frame2{this, "Frame2", {.Caption = "Cadre", .at = {3840, 2880, 1800, 1200}}};
    TextBox OnFrame{this, "OnFrame", {.at = {3840, 2760, 900, 315}, .label = &CutLabel}};
    Label OnDrawing{this, "OnDrawing", {.Caption = "L", .at = {360, 1920, 240, 255}}};
};

} // namespace ondelis
