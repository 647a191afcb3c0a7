#pragma once

#include <array>
#include <string>
#include <vector>

#include "forms/Column.h"
#include "forms/ControlArray.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "kit/Maths.h"

namespace ondelis {

/// Impedance, phase and resonance of seven simple circuits at one frequency.
class CircuitsOscillants final : public FeuilleCalcul {
public:
    explicit CircuitsOscillants(Runtime& runtime)
        : FeuilleCalcul{
            runtime, {.name = "CircuitsOscillants", .Caption = "Circuits résonants", .Width = 9720, .Height = 6900}}
    {
    }

    using Me = CircuitsOscillants;
    // Each quantity is as high as the list of its units.
    static constexpr double gap = 120; ///< between a list and its neighbours
    static constexpr Column saisieFrequence{.left = 240, .captions = 1980, .top = 2250};
    static constexpr Column saisieResistance = saisieFrequence.from(saisieFrequence.top + listHeight(4) + gap);
    static constexpr Column saisieInductance = saisieFrequence.from(saisieResistance.top + listHeight(3) + gap);
    static constexpr Column saisieCapacite = saisieFrequence.from(saisieInductance.top + listHeight(4) + gap);
    static constexpr Column resultats{.left = 5040, .captions = 1860, .top = 4290};

    ListBox LstCalcul{this, "LstCalcul",
        {.Items = {"RC Série", "RC Parallèle", "RL Parallèle", "RLC Série", "RLC Parallèle", "RL Série C Parallèle",
             "LC Série"},
            .at = {240, 240, 4440, listHeight(7)}},
        &Me::LstCalcul_Click};

    Label LblFreq{this, "LblFreq", saisieFrequence.caption(0, "Fréquence en ...")};
    TextBox TxtFreq{this, "TxtFreq", saisieFrequence.input(LblFreq), &Me::TxtFreq_Change};
    ListBox LstFreq{this, "LstFreq", unites(TxtFreq, LblFreq, {"GHz", "MHz", "KHz", "Hz"}), &Me::LstFreq_Click};

    Label LblRes{this, "LblRes", saisieResistance.caption(0, "Résitance en ...")};
    TextBox TxtRes{this, "TxtRes", saisieResistance.input(LblRes), &Me::TxtRes_Change};
    ListBox LstRes{this, "LstRes", unites(TxtRes, LblRes, {"MOhms", "KOhms", "Ohms"}), &Me::LstRes_Click};

    Label LblInd{this, "LblInd", saisieInductance.caption(0, "Inductance en ...")};
    TextBox TxtInd{this, "TxtInd", saisieInductance.input(LblInd), &Me::TxtInd_Change};
    ListBox LstInd{this, "LstInd", unites(TxtInd, LblInd, {"mH", "µH", "nH", "pH"}), &Me::LstInd_Click};

    Label LblCapa{this, "LblCapa", saisieCapacite.caption(0, "Capacite en ...")};
    TextBox TxtCapa{this, "TxtCapa", saisieCapacite.input(LblCapa), &Me::TxtCapa_Change};
    ListBox LstCapa{this, "LstCapa", unites(TxtCapa, LblCapa, {"µF", "nF", "pF"}), &Me::LstCapa_Click};

    ControlArray<Frame> frmCircuit{this, "frmCircuit", 7, &Me::frmCircuitDesign};

    Label LblImp{this, "LblImp", resultats.caption(0, "Impédance")};
    TextBox TxtImp{this, "TxtImp", resultats.result(LblImp)};
    Label LblDephase{this, "LblDephase", resultats.caption(1, "Déphasage en °")};
    TextBox TxtDephase{this, "TxtDephase", resultats.result(LblDephase)};
    Label LblPuiss{this, "LblPuiss", resultats.caption(2, "Puissance en Watts")};
    TextBox TxtPuiss{this, "TxtPuiss", resultats.result(LblPuiss)};
    Label LblResonance{this, "LblResonance", {.Caption = "Résonance", .at = resultats.at(3), .Visible = false}};
    TextBox TxtResonance{this, "TxtResonance",
        {.at = beside(LblResonance, resultats.results),
            .BackColor = resultColor,
            .Locked = true,
            .Visible = false,
            .label = &LblResonance}};

private:
    static ListBox::Design unites(const TextBox& champ, Label& legende, std::vector<std::string> items);
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

    /// What the choice of a circuit does to a field: it can be typed into, or not, and then may be emptied.
    enum class EtatChamp { Ouvert, Ferme, Vide };
    using enum EtatChamp;
    struct Circuit;
    static const std::array<Circuit, 7> circuits; ///< in the order of the frames
    /// The one of `TypeCircuit`.
    [[nodiscard]] const Circuit& circuit() const;

    static void Ouvrir(TextBox& champ);
    static void Fermer(TextBox& champ);
    static void Preparer(TextBox& champ, EtatChamp etat);
    void AfficherCircuit(const Circuit& choisi);
    void Calculer();

    // The computing half for each type: each returns the text of the power, which is empty for "LC Série" and if a
    // guard fails.
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
