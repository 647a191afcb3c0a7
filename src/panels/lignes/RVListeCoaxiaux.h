#pragma once

#include <array>
#include <string>
#include <vector>

#include "forms/Column.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// A catalogue of common coaxial cables and twin leads, searched by one characteristic. All values are texts, and a
/// search compares texts: the blank in front of a computed number is part of a match.
class RVListeCoaxiaux final : public FeuilleCalcul {
public:
    explicit RVListeCoaxiaux(Runtime& runtime)
        : FeuilleCalcul{runtime,
            {.name = "RVListeCoaxiaux",
                .Caption = "Caractéristiques des coaxiaux usuels",
                .Width = 8520,
                .Height = 6840}}
    {
    }

    using Me = RVListeCoaxiaux;
    static constexpr Column recherches{.left = 240, .captions = 3240};
    static constexpr Column autresRecherches{.left = 3540, .captions = 3540};
    static constexpr Column listeCriteres{.left = 240, .captions = 2160, .top = 1470};
    static constexpr Column listeReferences{.left = 2640, .captions = 2160, .top = 1470};
    static constexpr Column fiche{.left = 5040, .captions = 1500, .results = 1560, .top = 1800};

    OptionButton OptZ{this, "OptZ", recherches.option(0, "Recherche sur l'impédance"), &Me::OptZ_Click};
    OptionButton OptVF{
        this, "OptVF", autresRecherches.option(0, "Recherche sur le coeff de vélocité"), &Me::OptVF_Click};
    OptionButton OptpF{this, "OptpF", recherches.option(1, "Recherche sur la capa linéaire"), &Me::OptpF_Click};
    OptionButton OptDiam{this, "OptDiam", autresRecherches.option(1, "Recherche sur le diamètre"), &Me::OptDiam_Click};
    OptionButton OptIsolant{
        this, "OptIsolant", recherches.option(2, "Recherche sur le diélectrique"), &Me::OptIsolant_Click};
    OptionButton OptVmax{this, "OptVmax", autresRecherches.option(2, "Recherche sur l'isolement"), &Me::OptVmax_Click};
    PictureBox Picture1{this, "Picture1", {.picture = "coaxial-icone", .at = {7200, 240, 960, 960}}};

    Label LblResultat{this, "LblResultat", listeReferences.caption(0, "Références coaxiaux")};
    ListBox LstResultat{this, "LstResultat", {.at = sous(LblResultat), .Visible = false, .label = &LblResultat},
        &Me::LstResultat_Click, &Me::LstResultat_GotFocus};
    Label LblCriteres{this, "LblCriteres", listeCriteres.caption(0, "Label11")};
    ListBox LstCritere{this, "LstCritere", {.at = sous(LblCriteres), .label = &LblCriteres}, &Me::LstCritere_Click};

    Label Label1{this, "Label1", fiche.caption(0, "Référence")};
    TextBox TxtRef{this, "TxtRef", resultat(Label1)};
    Label Label2{this, "Label2", fiche.caption(1, "Impédance")};
    TextBox TxtZ{this, "TxtZ", resultat(Label2)};
    Label Label3{this, "Label3", fiche.caption(2, "Coeff Vélocité")};
    TextBox TxtVF{this, "TxtVF", resultat(Label3)};
    Label Label4{this, "Label4", fiche.caption(3, "pF/m")};
    TextBox TxtpF{this, "TxtpF", resultat(Label4)};
    Label Label5{this, "Label5", fiche.caption(4, "Diamètre")};
    TextBox TxtDiam{this, "TxtDiam", resultat(Label5)};
    Label Label6{this, "Label6", fiche.caption(5, "Diélectrique")};
    TextBox TxtDiel{this, "TxtDiel", resultat(Label6)};
    Label Label7{this, "Label7", fiche.caption(6, "Umax RMS")};
    TextBox TxtRMS{this, "TxtRMS", resultat(Label7)};

    // One note at a time, all at the same place.
    static constexpr Box note{5040, 4500, 3120, 765};
    Label Label8{this, "Label8", {.Caption = "PE : Polyéthylène (-65° à +80°)", .at = note}};
    Label Label9{this, "Label9", {.Caption = "Foam PE : Foamed polyéthylène  (-65° à +80°)", .at = note}};
    Label Label10{this, "Label10", {.Caption = "PTFE : Polytétrafluoroéthylène (Teflon) (-250° à +250°)", .at = note}};

private:
    static Box sous(const Label& legende) { return under(legende, 2040, listHeight(18), 45); }
    static TextBox::Design resultat(Label& legende)
    {
        TextBox::Design design = fiche.openResult(legende);
        design.align = Align::Center;
        return design;
    }

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
    void ProposerCriteres(Integer column, const std::vector<std::string>& criteres, const std::string& titre);

    static constexpr std::size_t rows = 44;
    static constexpr std::size_t columns = 7;

    /// Rows and columns count from 1: reference, impedance in ohms, velocity factor, pF/m, outer diameter in mm,
    /// dielectric, maximum RMS voltage.
    std::array<std::array<std::string, columns + 1>, rows + 1> TableCoaxiaux;
    Integer ColonneCritere; ///< the column that is searched, 2 to 7
};

} // namespace ondelis
