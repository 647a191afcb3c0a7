#include <algorithm>

#include "Support.h"

namespace ondelis {
namespace {

/// Where a panel ends up; by default in the middle of the frame, or as designed.
struct Place {
    std::optional<double> Left = {};
    std::optional<double> Top = {};
    std::optional<double> Width = {};
    std::optional<double> Height = {};
};

constexpr const char* companionCaption = "Calcul du nombre de spires d'une self";

/// What an entry opens, under which caption, and where.
struct Opening {
    std::string entry;
    std::string panel;
    std::string caption;
    Place place = {};
    std::optional<Place> companion = {};
};

std::ostream& operator<<(std::ostream& out, const Opening& opening)
{
    return out << opening.entry;
}

const std::vector<Opening> openings{
    {"mnuLPDA", "AntennesLPDA1", "Eléments de base pour le calcul de la LPDA"},
    {"mnuDoubleQuad", "DoubleQuad", "Double Quad"},
    {"mnuGammaMatch", "GammaMatch", "Gamma Match", {.Width = 12240, .Height = 7755}},
    {"mnuHB9CV_HF", "HB9CV_HF", "HB9CV pour bandes HF"},
    {"mnuHB9CV_VUSHF", "HB9CV_VUSHF", "HB9CV VHF-UHF-SHF"},
    {"mnuHighQLoop", "AntennesHighQLoop", "Calcul des High Q Loop"},
    {"mnuTrappesCoaxiales", "AntennesTrappesCoaxiales", "Calcul de trappes en coaxial"},
    {"MenuAdaptationImpedance", "Z1Z2", "Z1 vers Z2"},
    {"MenuCircuitOscillant", "CircuitsOscillants", "Circuits résonants"},
    {"MenuRLCparallele", "RLCParallele", "Resolution graphique RLC parallele", {.Width = 8325}},
    {"MenuRLCserie", "RLCSerie", "Résolution graphique RLC série", {.Width = 9315}},
    {"MenuWireInductance", "WireInductance", "Inductance d'une épingle"},
    {"MenuThomson", "FormuleDeThomson", "Formule de Thomson", {.Left = 1200, .Top = 2000},
        Place{.Left = 7800, .Top = 5000}},
    {"mnuSelfNbSpires", "CalculNombreSpires", companionCaption},
    {"mnuCalculSelfSurTore", "CalculSurTores", "Calcul des inductances sur tores"},
    {"MenuStripLine", "StripLine", "Strip line"},
    {"mnuCalculsSurSelf", "CalculSelf", "Calcul de la valeur d'une self"},
    {"MenuCondensateursCMS", "Cms", "Résistances CMS"},
    {"MenuCondensateurFixe", "CondensateurFixe", "Condensateurs fixes"},
    {"MenuCondensateurVariable", "CondensateurVariable", "Condensateur variable"},
    {"menuEnergieEmmagasinée", "CondensateurEnergie", "Energie emmagasinée dans un condensateur"},
    {"MenuAstable", "Astable", "Montage astable", {.Width = 7245, .Height = 8400}},
    {"MenuMonostable", "Monostable", "Montage en monostable"},
    {"MenuRapportCyclique", "RapportCyclique", "Le 555 : Rapport Cyclique variable à fréquence constante",
        {.Width = 6555, .Height = 8085}},
    {"MenuDécibels", "Decibels", "Les dB en Puissance et en Tesnsion"},
    {"menuFiltreEliminationDeBande", "FiltreEliminationBande", "Filtre à élimination de bande",
        {.Left = 2000, .Top = 2000}, Place{.Left = 8000, .Top = 5000}},
    {"MenuFiltrePasseBasEnPi", "FiltrePasseBasEnPi", "Filtres Passes Bas en Pi, T ou L",
        {.Left = 800, .Top = 2000, .Width = 7500, .Height = 7200}, Place{.Left = 8600, .Top = 3500}},
    {"MenuFiltreEnDoublePi", "FiltreEnDoublePi", "Filtre en douple Pi", {.Left = 3000, .Top = 1500},
        Place{.Left = 8300, .Top = 6000}},
    {"menuFiltrePasseBande", "FiltrePasseBande", "Filtre passe-bande", {.Left = 2000, .Top = 3000},
        Place{.Left = 8200, .Top = 6000}},
    {"menuFiltrePasseBas", "FiltrePasseBas", "Filtre passe-bas", {.Left = 3000, .Top = 2000},
        Place{.Left = 8000, .Top = 7000}},
    {"MenuPasseHaut", "FiltrePasseHaut", "Filtre passe haut", {.Left = 1500, .Top = 2000},
        Place{.Left = 8500, .Top = 5000}},
    {"mnuCoaxiauxSectionCarree", "CoaxSectCarree", "Coaxial section carrée"},
    {"mnuCoaxialeSectionCylindrique", "CoaxSectCyl", "Coaxial section cylindrique"},
    {"mnuEchelleGrenouille", "EchelleGrenouille", "Echelle a grenouille"},
    {"mnuCalcTransfo", "Transformateur", "Calcul de transformateur à 50Hz"},
    {"MenuShunt", "PDShunts", "Calculs des Shunts"},
    {"MenuPontDeRésitances", "PDResitancesParalleles", "1 Calcul de ponts diviseurs"},
    {"MenuCoaxiauxCourants", "RVListeCoaxiaux", "Caractéristiques des coaxiaux usuels"},
    {"MenuSectionDiametre", "SectionDiametre", "De la section vers le diamètre !!!", {.Width = 4350, .Height = 1725}},
    {"MenuUnitésDePression", "RVConvUnitesPression", "Conversions unités de pression"},
    {"MenuLogiciel", "Apropos", "Pourquoi et comment ce logiciel", {.Width = 8310, .Height = 4035}},
};

class PlacingTest : public FrameTest, public testing::WithParamInterface<Opening> {
protected:
    void expectPanel(const std::string& name, const std::string& caption, const Place& place) const
    {
        FeuilleCalcul* const open = panel(name);
        ASSERT_NE(open, nullptr) << name;
        EXPECT_TRUE(open->visible()) << name;
        EXPECT_EQ(open->Caption, caption) << name;
        const auto stands = [&](const char* member, const Property<Single>& got, double wanted) {
            EXPECT_EQ(got.get(), Single{wanted}) << name << '.' << member;
        };
        stands("Width", open->Width, place.Width.value_or(open->design().Width));
        stands("Height", open->Height, place.Height.value_or(open->design().Height));
        stands("Left", open->Left, place.Left.value_or((19470 - Double{open->Width}.value()) / 2));
        stands("Top", open->Top, place.Top.value_or((15000 - Double{open->Height}.value()) / 2));
    }

    /// What the entry opens, and nothing else.
    void expectAllOf(const Opening& opening) const
    {
        expectPanel(opening.panel, opening.caption, opening.place);
        if (opening.companion)
            expectPanel("CalculNombreSpires", companionCaption, *opening.companion);
        EXPECT_EQ(runtime.loadedPanels().size(), opening.companion ? 2U : 1U);
    }
};

TEST_P(PlacingTest, opensItsPanelsAloneAndInTheirPlaces)
{
    frame.start();
    ASSERT_TRUE(click(GetParam().entry));
    expectAllOf(GetParam());
}

TEST_P(PlacingTest, restartsTheSameInTheSamePlaces)
{
    frame.start();
    ASSERT_TRUE(click(GetParam().entry));
    FeuilleCalcul& first = *panel(GetParam().panel);
    const unsigned loads = first.loadCount();
    first.Left = 0;
    first.Top = 0;
    click(GetParam().entry);
    EXPECT_EQ(panel(GetParam().panel), &first);
    EXPECT_EQ(first.loadCount(), loads + 1);
    expectAllOf(GetParam());
}

TEST_P(PlacingTest, goesWhenAnotherEntryIsClicked)
{
    frame.start();
    ASSERT_TRUE(click(GetParam().entry));
    const bool itself = GetParam().panel == "CircuitsOscillants";
    click(itself ? "mnuSelfNbSpires" : "MenuCircuitOscillant");
    EXPECT_EQ(runtime.loadedPanels().size(), 1U);
    EXPECT_EQ(panel(GetParam().panel), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Menu, PlacingTest, testing::ValuesIn(openings), [](const auto& opening) {
    std::string name = opening.param.entry;
    std::erase_if(name, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
    return name;
});

class CompanionTest : public FrameTest { };

TEST_F(CompanionTest, standsBesideTheShortenedDipole)
{
    frame.start();
    for (int time = 0; time < 2; ++time) {
        click("mnuDipoleRaccourci");
        ASSERT_EQ(runtime.loadedPanels().size(), 2U);
        FeuilleCalcul& dipole = *panel("AntennesDipolesRaccourcis");
        EXPECT_EQ(dipole.Caption, "Dipoles raccourcis");
        EXPECT_EQ(dipole.Left.get(), Single{(Double{19470} - dipole.Width) / 5});
        EXPECT_EQ(dipole.Top.get(), Single{(Double{15000} - dipole.Height) / 4});
        const FeuilleCalcul& companion = *panel("CalculNombreSpires");
        EXPECT_TRUE(companion.visible());
        EXPECT_EQ(companion.Caption, companionCaption);
        EXPECT_EQ(companion.Top.get(), Single{dipole.Top + 500});
        EXPECT_EQ(companion.Left.get(), Single{dipole.Width + dipole.Left + 500});
        dipole.Left = 0;
    }
}

TEST_F(CompanionTest, isCentredWhereItIsOpenedAlone)
{
    frame.start();
    click("MenuFiltrePasseBasEnPi");
    click("mnuSelfNbSpires");
    const FeuilleCalcul& alone = *panel("CalculNombreSpires");
    EXPECT_EQ(alone.Left.get(), Single{(Double{19470} - alone.Width) / 2});
    EXPECT_EQ(alone.Top.get(), Single{(Double{15000} - alone.Height) / 2});
}

TEST_F(FrameTest, theMonostableOpensWithTheValuesOfItsEntry)
{
    frame.start();
    click("MenuMonostable");
    const FeuilleCalcul& open = *panel("Monostable");
    EXPECT_EQ(dynamic_cast<HScrollBar&>(*open.find("HscrRes")).Value, 434);
    EXPECT_EQ(dynamic_cast<HScrollBar&>(*open.find("HscrCapa")).Value, 10);
    EXPECT_EQ(dynamic_cast<ListBox&>(*open.find("LstRes")).ListIndex, 1);
    EXPECT_EQ(dynamic_cast<ListBox&>(*open.find("LstCapa")).ListIndex, 0);
}

} // namespace
} // namespace ondelis
