#include <map>
#include <set>

#include <gtest/gtest.h>

#include "shell/Menu.h"

namespace ondelis::tests {
namespace {

struct Line {
    std::string control;
    std::string caption;
    bool operator==(const Line&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Line& line)
{
    return out << line.control << " \"" << line.caption << '"';
}

/// The first level, in display order.
const std::vector<Line> drops{
    {"MenuFinTravail", "Fin de travail"},
    {"mnuCalculAntennes", "Antennes"},
    {"MenuCircuitsOscillants", "Circuits oscillants et Selfs"},
    {"MenuAccèsAuxApplications", "Condensateurs"},
    {"MenuTimer555", "Le timer 555"},
    {"MenuDecibel", "Décibels"},
    {"MenuFiltres", "Filtres"},
    {"MenuLignes", "Lignes"},
    {"mnuTransfo", "Transformateurs"},
    {"MenuPontDiviseur", "Ponts diviseurs"},
    {"MenuRubiquesEnVrac", "Rubiques en vrac"},
    {"MenuHelp", "?"},
};

/// The second level under each, in display order.
const std::map<std::string, std::vector<Line>> entries{
    {"MenuFinTravail", {{"MenuQuitter", "Quitter"}}},
    {"mnuCalculAntennes",
        {{"mnuLPDA", "Antenne Log Périodique (LPDA)"}, {"mnuDipoleRaccourci", "Dipôle raccourci"},
            {"mnuDoubleQuad", "Double Quad"}, {"mnuGammaMatch", "Gamma match"}, {"mnuHB9CV_HF", "HB9CV HF"},
            {"mnuHB9CV_VUSHF", "HB9CV VUSHF"}, {"mnuHighQLoop", "High Q Loop"},
            {"mnuTrappesCoaxiales", "Trappes en coaxial"}}},
    {"MenuCircuitsOscillants",
        {{"MenuAdaptationImpedance", "Adaptation d'impédance"}, {"MenuCircuitOscillant", "Circuits oscillants"},
            {"MenuRLCparallele", "Circuits RLC Parallèles"}, {"MenuRLCserie", "Circuit RLC Série"},
            {"MenuWireInductance", "Epingle"}, {"MenuThomson", "Formule de Thomson"},
            {"mnuSelfNbSpires", "Nombre de spires d'une self"}, {"mnuCalculSelfSurTore", "Selfs sur tores"},
            {"MenuStripLine", "Strip line"}, {"mnuCalculsSurSelf", "Valeur d'une self"}}},
    {"MenuAccèsAuxApplications",
        {{"MenuCondensateursCMS", "Condensateurs CMS"}, {"MenuCondensateurFixe", "Condensateurs Fixes"},
            {"MenuCondensateurVariable", "Condensateurs Variables"},
            {"menuEnergieEmmagasinée", "Energie emmagasinée"}}},
    {"MenuTimer555",
        {{"MenuAstable", "Astable"}, {"MenuMonostable", "Monostable"},
            {"MenuRapportCyclique", "Rapport cyclique variable"}}},
    {"MenuDecibel", {{"MenuDécibels", "Décibels"}}},
    {"MenuFiltres",
        {{"menuFiltreEliminationDeBande", "Filtre à élimination de bande"},
            {"MenuFiltrePasseBasEnPi", "Filtre en Pi f(Ze, Zs, Q)"}, {"MenuFiltreEnDoublePi", "Filtre en double Pi"},
            {"menuFiltrePasseBande", "Filtre passe-bande"}, {"menuFiltrePasseBas", "Filtre Passe-bas"},
            {"MenuPasseHaut", "Filtre passe haut"}}},
    {"MenuLignes",
        {{"mnuCoaxiauxSectionCarree", "Coaxiaux Section Carrée"},
            {"mnuCoaxialeSectionCylindrique", "Coaxiale Section Cylindrique"},
            {"mnuEchelleGrenouille", "Echelle à grenouille"}}},
    {"mnuTransfo", {{"mnuCalcTransfo", "Calcul Transfo 500VA maxi"}}},
    {"MenuPontDiviseur",
        {{"MenuShunt", "Calculs de Shunts"}, {"MenuPontDeRésitances", "Pont de résistances avec charge"}}},
    {"MenuRubiquesEnVrac",
        {{"MenuCoaxiauxCourants", "Coaxiaux Courants"}, {"MenuSectionDiametre", "Section vers diamètre"},
            {"MenuUnitésDePression", "Unités de Pression"}}},
    {"MenuHelp", {{"MenuLogiciel", "A propos"}}},
};

template <class Item>
Line lineOf(const Item& item)
{
    return {std::string{item.control}, std::string{item.caption}};
}

TEST(MenuTest, TheFirstLevelIsInDisplayOrder)
{
    std::vector<Line> found;
    for (const Menu& menu : menuTree())
        found.push_back(lineOf(menu));
    EXPECT_EQ(found, drops);
}

TEST(MenuTest, EachDropDownHasItsEntriesInDisplayOrder)
{
    for (const Menu& menu : menuTree()) {
        std::vector<Line> found;
        for (const MenuEntry& entry : menu.entries)
            found.push_back(lineOf(entry));
        EXPECT_EQ(found, entries.at(std::string{menu.control}));
    }
}

TEST(MenuTest, EveryEntryIsFoundByItsControl)
{
    for (const auto& [menu, lines] : entries)
        for (const Line& line : lines) {
            const MenuEntry* const entry = findMenuEntry(line.control);
            ASSERT_NE(entry, nullptr) << line;
            EXPECT_EQ(lineOf(*entry), line);
        }
}

TEST(MenuTest, TheFirstLevelHasNoHandler)
{
    for (const Line& drop : drops)
        EXPECT_EQ(findMenuEntry(drop.control), nullptr) << drop;
    EXPECT_EQ(findMenuEntry(""), nullptr);
}

} // namespace
} // namespace ondelis::tests
