#pragma once

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A galvanometer turned into an ammeter by a resistor across it, or into a voltmeter by one in series; one at a time.
class PDShunts final : public FeuilleCalcul {
public:
    explicit PDShunts(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "PDShunts", .Caption = "Calculs des Shunts", .Width = 10260, .Height = 5820}}
    {
    }

    using Me = PDShunts;
    static constexpr Column galvanometre{.left = 420, .captions = 2640, .inputs = 1440, .top = 810};
    static constexpr Column deviation{.left = 6120, .captions = 2100, .inputs = 1440, .top = galvanometre.top};
    static constexpr Column amperemetre = galvanometre.from(2160);
    static constexpr Column voltmetre = galvanometre.from(4200);

    Shape Cadre1{this, "Cadre1", {.at = {240, 240, 9660, 1080}}};
    Label Label7{this, "Label7",
        {.Caption = "Caractéristiques du galvanomètre", .at = {420, 330, 4440, 315}, .font = {.bold = true}}};
    Label LblRint{this, "LblRint", galvanometre.caption(0, "Résinstance interne")};
    TextBox TxtResInt{this, "TxtResInt", galvanometre.input(LblRint), &Me::TxtResInt_Change};
    Label LblDevTot{this, "LblDevTot", deviation.caption(0, "I déviation totale µA")};
    TextBox TxtDevTot{this, "TxtDevTot", deviation.input(LblDevTot), &Me::TxtDevTot_Change};

    Shape Cadre2{this, "Cadre2", {.at = {240, 1440, 9660, 1980}}};
    OptionButton OptCourant{this, "OptCourant", option(Cadre2, "Calcul Résitance Parallèle"), &Me::OptCourant_Click};
    Label LblImax{this, "LblImax", amperemetre.caption(0, "Courant max à mesurer (A)")};
    TextBox TxtImax{this, "TxtImax", amperemetre.input(LblImax), &Me::TxtImax_Change};
    Label LblIShunt{this, "LblIShunt", amperemetre.caption(1, "Valeur du shunt")};
    TextBox TxTShuntI{this, "TxTShuntI", shunt(LblIShunt)};
    Label LblAmperemetre{this, "LblAmperemetre", titre(Cadre2, "Ampèremètre")};
    Image SchemaCourant{
        this, "SchemaCourant", {.picture = "shunt-amperemetre", .at = under(LblAmperemetre, 3600, 1440)}};
    Label LblACourant{this, "LblACourant", letter("A", SchemaCourant.at(), 0.500, 0.250)};

    Shape Cadre3{this, "Cadre3", {.at = {240, 3540, 9660, 1560}}};
    OptionButton OptTension{this, "OptTension", option(Cadre3, "Calcul  Résitance Série"), &Me::OptTension_Click};
    Label LblTensionMax{this, "LblTensionMax", voltmetre.caption(0, "Tension max à mesurer (V)")};
    TextBox TxtUmax{this, "TxtUmax", voltmetre.input(LblTensionMax), &Me::TxtUmax_Change};
    Label LblVShunt{this, "LblVShunt", voltmetre.caption(1, "Valeur du shunt")};
    TextBox TxtShuntU{this, "TxtShuntU", shunt(LblVShunt)};
    Label Label4{this, "Label4", titre(Cadre3, "Voltmètre")};
    Image SchemaTension{this, "SchemaTension", {.picture = "shunt-voltmetre", .at = under(Label4, 3600, 1020)}};
    Label LblATension{this, "LblATension", letter("A", SchemaTension.at(), 0.683, 0.618)};

private:
    static OptionButton::Design option(const Shape& cadre, const char* text)
    {
        return {.Caption = text, .at = {420, cadre.at().Top + 105, 2940, 300}};
    }
    static TextBox::Design shunt(Label& legende)
    {
        TextBox::Design design = resultField(legende, 2820);
        design.ForeColor = 0xFF80FF;
        design.font.bold = true;
        return design;
    }
    /// Over the drawing that it names.
    static Label::Design titre(const Shape& cadre, const char* text)
    {
        return {.Caption = text,
            .at = {6120, cadre.at().Top + 90, 3600, 315},
            .align = Align::Center,
            .font = {.bold = true}};
    }

    void Form_Load() override;
    void OptCourant_Click();
    void OptTension_Click();
    void TxtDevTot_Change();
    void TxtResInt_Change();
    void TxtUmax_Change();
    void TxtImax_Change();

    void Presenter(bool courant);
    void Calculer();
    void CalculerTension();
    void CalculerCourant();

    Double Imax; ///< A
    Double Umax; ///< V
    Double Rint; ///< of the galvanometer, ohms
    Double Idev; ///< of its full scale, A
};

} // namespace ondelis
