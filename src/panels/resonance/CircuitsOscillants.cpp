#include "panels/resonance/CircuitsOscillants.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/TraitementMultiplicateur.h"

namespace ondelis {
namespace {

const std::string puissanceActive = "Eeff * Ieff * cos(phi)";

/// The factor of a unit; an unknown text leaves that in use.
Double facteur(const std::string& unite, Double actuel)
{
    struct Row {
        const char* unite;
        int exposant;
    };
    static constexpr std::array<Row, 14> table{{
        {"GHz", 9},
        {"MHz", 6},
        {"KHz", 3},
        {"Hz", 0},
        {"MOhms", 6},
        {"KOhms", 3},
        {"Ohms", 0},
        {"mH", -3},
        {"µH", -6},
        {"nH", -9},
        {"pH", -12},
        {"µF", -6},
        {"nF", -9},
        {"pF", -12},
    }};
    for (const Row& row : table)
        if (unite == row.unite)
            return Pow(10, row.exposant);
    return actuel;
}

} // namespace

/// The units of a field, to its right.
ListBox::Design CircuitsOscillants::unites(const TextBox& champ, Label& legende, std::vector<std::string> items)
{
    const Box& at = champ.at();
    const double height = listHeight(static_cast<int>(items.size()));
    return {.Items = std::move(items), .at = {at.Left + at.Width + gap, at.Top - 30, 960, height}, .label = &legende};
}

struct CircuitsOscillants::Circuit {
    std::string_view type; ///< the text of its row in the list
    const char* titre;
    const char* schema;
    EtatChamp R; ///< what choosing it makes of the fields, in this order
    EtatChamp L;
    EtatChamp C;
    int nbCalculs; ///< how often it is computed then
    std::string (CircuitsOscillants::*formules)();
};

constexpr std::array<CircuitsOscillants::Circuit, 7> CircuitsOscillants::circuits{{
    {"RC Série", "Circuit RC Série", "circuit-rc-serie", Ouvert, Vide, Ouvert, 1, &Me::RCSerie},
    {"RC Parallèle", "Circuit RC Parallèle", "circuit-rc-parallele", Ouvert, Vide, Ouvert, 2, &Me::RCParallele},
    {"RL Parallèle", "Circuit RL Parallèle", "circuit-rl-parallele", Ouvert, Ouvert, Vide, 0, &Me::RLParallele},
    {"RLC Série", "Circuit RLC  Série", "circuit-rlc-serie", Ouvert, Ouvert, Ouvert, 0, &Me::RLCSerie},
    {"RLC Parallèle", "Circuit RLC Parallèle", "circuit-rlc-parallele", Ouvert, Ouvert, Ouvert, 0, &Me::RLCParallele},
    {"RL Série C Parallèle", "Circuit RL Série C Parallèle", "circuit-rl-serie-c-parallele", Ouvert, Ouvert, Ouvert, 1,
        &Me::RLSerieCParallele},
    {"LC Série", "Circuit LC Série", "circuit-lc-serie", Ferme, Ouvert, Ouvert, 1, &Me::LCSerie},
}};

const CircuitsOscillants::Circuit& CircuitsOscillants::circuit() const
{
    const auto index = std::ranges::find(circuits, TypeCircuit, &Circuit::type) - circuits.begin();
    return circuits.at(static_cast<std::size_t>(index));
}

Frame::Design CircuitsOscillants::frmCircuitDesign(int index)
{
    const Circuit& circuit = circuits.at(static_cast<std::size_t>(index));
    return {.Caption = circuit.titre, .at = {resultats.left, 180, 4320, 3840}, .picture = circuit.schema};
}

void CircuitsOscillants::Form_Load()
{
    resumeNext({
        [&] { TypeCircuit = LstCalcul.List(0); },
        [&] { Ouvrir(TxtRes); },
        [&] { Ouvrir(TxtInd); },
        [&] { Ouvrir(TxtCapa); },
        [&] { LstFreq.ListIndex = 1; },
        [&] { UniteFreq = Pow(10, 6); },
        [&] { LstInd.ListIndex = 1; },
        [&] { UniteInd = Pow(10, -6); },
        [&] { LstRes.ListIndex = 2; },
        [&] { UniteRes = 1; },
        [&] { LstCapa.ListIndex = 2; },
        [&] { UniteCapa = Pow(10, -12); },
        [&] { Capacite = 0; },
        [&] { LstCalcul.ListIndex = 0; },
    });
}

void CircuitsOscillants::TxtFreq_Change()
{
    Frequence = Val(TxtFreq.Text) * UniteFreq;
    Omega = 2 * Pi() * Frequence;
    Calculer();
}

void CircuitsOscillants::TxtRes_Change()
{
    Resistance = Val(TxtRes.Text) * UniteRes;
    Calculer();
}

void CircuitsOscillants::TxtInd_Change()
{
    Inductance = Val(TxtInd.Text) * UniteInd;
    Calculer();
}

void CircuitsOscillants::TxtCapa_Change()
{
    Capacite = Val(TxtCapa.Text) * UniteCapa;
    Calculer();
}

void CircuitsOscillants::LstFreq_Click()
{
    UniteFreq = facteur(LstFreq.Text, UniteFreq);
    TxtFreq_Change();
}

void CircuitsOscillants::LstRes_Click()
{
    UniteRes = facteur(LstRes.Text, UniteRes);
    TxtRes_Change();
}

void CircuitsOscillants::LstInd_Click()
{
    UniteInd = facteur(LstInd.Text, UniteInd);
    TxtInd_Change();
}

void CircuitsOscillants::LstCapa_Click()
{
    UniteCapa = facteur(LstCapa.Text, UniteCapa);
    TxtCapa_Change();
}

void CircuitsOscillants::LstCalcul_Click()
{
    TypeCircuit = LstCalcul.Text;
    const Circuit& choisi = circuit();
    Preparer(TxtRes, choisi.R);
    Preparer(TxtInd, choisi.L);
    Preparer(TxtCapa, choisi.C);
    AfficherCircuit(choisi);
    for (int i = 0; i < choisi.nbCalculs; ++i)
        Calculer();
}

void CircuitsOscillants::Ouvrir(TextBox& champ)
{
    champ.Locked = false;
    champ.BackColor = white;
}

void CircuitsOscillants::Fermer(TextBox& champ)
{
    champ.Locked = true;
    champ.BackColor = mainResultColor;
}

void CircuitsOscillants::Preparer(TextBox& champ, EtatChamp etat)
{
    if (etat == Ouvert)
        Ouvrir(champ);
    else
        Fermer(champ);
    if (etat == Vide)
        champ.Text = "";
}

void CircuitsOscillants::AfficherCircuit(const Circuit& choisi)
{
    for (int i = 0; i < frmCircuit.count(); ++i)
        frmCircuit(i).Visible = false;
    frmCircuit(static_cast<int>(&choisi - circuits.data())).Visible = true;
}

void CircuitsOscillants::Calculer()
{
    std::string puissance;
    if (Frequence != 0) {
        LblResonance.Visible = false;
        TxtResonance.Visible = false;
        puissance = (this->*circuit().formules)();
    }
    // Even with no frequency or a failed guard: the last values stay visible.
    TxtImp.Text = TraitementMultiplicateur(Impedance);
    if (Phi != 0) {
        TxtDephase.Text = CStr(0); // whatever the phase: the panel shows none
        TxtPuiss.Text = puissance;
    } else {
        TxtDephase.Text = "";
        TxtPuiss.Text = "";
    }
}

std::string CircuitsOscillants::RCSerie()
{
    const Double R = Resistance;
    const Double C = Capacite;
    const Double W = Omega;
    if (R == 0 || C == 0)
        return "";
    Impedance = Sqr(1 / (Pow(W, 2) * Pow(C, 2)) + Pow(R, 2));
    Phi = Atn(-1 / (W * R * C));
    Tau = R * 0.69 * C;
    AfficherResonance(1 / Tau);
    return puissanceActive;
}

std::string CircuitsOscillants::RCParallele()
{
    const Double R = Resistance;
    const Double C = Capacite;
    const Double W = Omega;
    if (R == 0 || C == 0)
        return "";
    Impedance = R / (W * C * Sqr(1 / (Pow(W, 2) * Pow(C, 2)) + Pow(R, 2)));
    Phi = Atn(-(W * R * C));
    return puissanceActive;
}

std::string CircuitsOscillants::RLParallele()
{
    const Double R = Resistance;
    const Double L = Inductance;
    const Double W = Omega;
    if (L == 0 || R == 0)
        return "";
    Impedance = L * R * W / Sqr(Pow(L, 2) * Pow(W, 2) + Pow(R, 2));
    Phi = Atn(R / (W * L));
    return puissanceActive;
}

std::string CircuitsOscillants::RLCSerie()
{
    const Double R = Resistance;
    const Double L = Inductance;
    const Double C = Capacite;
    const Double W = Omega;
    if (L == 0 || C == 0)
        return "";
    Impedance = Sqr(W * L - Pow(1 / (W * C), 2) + Pow(R, 2)); // only the capacitive term is squared
    Phi = R == 0 ? Atn(W * L - 1 / (W * C)) : Atn((W * L - 1 / (W * C)) / R);
    AfficherResonance(Sqr(1 / (L * C)) / (2 * Pi()));
    return puissanceActive;
}

std::string CircuitsOscillants::RLCParallele()
{
    Omega = 2 * Pi() * Frequence; // anew: the handler of its field has stored it too
    const Double R = Resistance;
    const Double L = Inductance;
    const Double C = Capacite;
    const Double W = Omega;
    if (L == 0 || C == 0 || R == 0)
        return "";
    Impedance = L * R * W / (C * Sqr(Pow(W * L - 1 / (W * C), 2) * Pow(R, 2) + Pow(L, 2) / Pow(C, 2)));
    Phi = Atn((W * L - 1 / (W * C)) / L);
    AfficherResonance(1 / (2 * Pi() * Sqr(L * C)));
    return puissanceActive;
}

std::string CircuitsOscillants::RLSerieCParallele()
{
    Omega = 2 * Pi() * Frequence; // anew: the handler of its field has stored it too
    const Double R = Resistance;
    const Double L = Inductance;
    const Double C = Capacite;
    const Double W = Omega;
    if (L == 0 || C == 0 || R == 0)
        return "";
    Impedance = Sqr((Pow(W, 2) * Pow(L, 2) + Pow(R, 2)) / (Pow(W * L - 1 / (W * C), 2) + Pow(R, 2))) / (W * C);
    Phi = Atn((Pow(R, 2) + Pow(W, 2) * L * C * (W * L - 1 / (W * C))) / (W * L));
    return puissanceActive;
}

std::string CircuitsOscillants::LCSerie()
{
    const Double L = Inductance;
    const Double C = Capacite;
    const Double W = Omega;
    if (L == 0 || C == 0)
        return "";
    Impedance = Abs(W * L - 1 / (W * C));
    Phi = 1 / (W * C) < W * L ? 90 : -90;
    AfficherResonance(Sqr(1 / (L * C)) / (2 * Pi()));
    return "";
}

void CircuitsOscillants::AfficherResonance(Double hertz)
{
    TxtResonance.Visible = true;
    LblResonance.Visible = true;
    TxtResonance.Text = CStr(Truncate(hertz, 100));
}

} // namespace ondelis
