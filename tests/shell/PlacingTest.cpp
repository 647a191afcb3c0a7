#include <algorithm>

#include "Support.h"

namespace ondelis::tests {
namespace {

/// Where a panel comes to stand; what is not said is in the middle of the frame, or as designed.
struct Place {
    std::optional<double> Left = {};
    std::optional<double> Top = {};
    std::optional<double> Width = {};
    std::optional<double> Height = {};
};

/// What an entry opens and where.
struct Opening {
    std::string entry;
    std::string panel;
    Place place = {};
    std::optional<Place> companion = {};
};

std::ostream& operator<<(std::ostream& out, const Opening& opening)
{
    return out << opening.entry;
}

const std::vector<Opening> openings{
    {"mnuLPDA", "AntennesLPDA1"},
    {"mnuDoubleQuad", "DoubleQuad"},
    {"mnuGammaMatch", "GammaMatch", {.Width = 12240, .Height = 7755}},
    {"mnuHB9CV_HF", "HB9CV_HF"},
    {"mnuHB9CV_VUSHF", "HB9CV_VUSHF"},
    {"mnuHighQLoop", "AntennesHighQLoop"},
    {"mnuTrappesCoaxiales", "AntennesTrappesCoaxiales"},
    {"MenuAdaptationImpedance", "Z1Z2"},
    {"MenuCircuitOscillant", "CircuitsOscillants"},
    {"MenuRLCparallele", "RLCParallele", {.Width = 8325}},
    {"MenuRLCserie", "RLCSerie", {.Width = 9315}},
    {"MenuWireInductance", "WireInductance"},
    {"MenuThomson", "FormuleDeThomson", {.Left = 1200, .Top = 2000}, Place{.Left = 7800, .Top = 5000}},
    {"mnuSelfNbSpires", "CalculNombreSpires"},
    {"mnuCalculSelfSurTore", "CalculSurTores"},
    {"MenuStripLine", "StripLine"},
    {"mnuCalculsSurSelf", "CalculSelf"},
    {"MenuCondensateursCMS", "Cms"},
    {"MenuCondensateurFixe", "CondensateurFixe"},
    {"MenuCondensateurVariable", "CondensateurVariable"},
    {"menuEnergieEmmagasinée", "CondensateurEnergie"},
    {"MenuAstable", "Astable", {.Width = 7245, .Height = 8400}},
    {"MenuMonostable", "Monostable"},
    {"MenuRapportCyclique", "RapportCyclique", {.Width = 6555, .Height = 8085}},
    {"MenuDécibels", "Decibels"},
    {"menuFiltreEliminationDeBande", "FiltreEliminationBande", {.Left = 2000, .Top = 2000},
        Place{.Left = 8000, .Top = 5000}},
    {"MenuFiltrePasseBasEnPi", "FiltrePasseBasEnPi", {.Left = 800, .Top = 2000, .Width = 7500, .Height = 7200},
        Place{.Left = 8600, .Top = 3500}},
    {"MenuFiltreEnDoublePi", "FiltreEnDoublePi", {.Left = 3000, .Top = 1500}, Place{.Left = 8300, .Top = 6000}},
    {"menuFiltrePasseBande", "FiltrePasseBande", {.Left = 2000, .Top = 3000}, Place{.Left = 8200, .Top = 6000}},
    {"menuFiltrePasseBas", "FiltrePasseBas", {.Left = 3000, .Top = 2000}, Place{.Left = 8000, .Top = 7000}},
    {"MenuPasseHaut", "FiltrePasseHaut", {.Left = 1500, .Top = 2000}, Place{.Left = 8500, .Top = 5000}},
    {"mnuCoaxiauxSectionCarree", "CoaxSectCarree"},
    {"mnuCoaxialeSectionCylindrique", "CoaxSectCyl"},
    {"mnuEchelleGrenouille", "EchelleGrenouille"},
    {"mnuCalcTransfo", "Transformateur"},
    {"MenuShunt", "PDShunts"},
    {"MenuPontDeRésitances", "PDResitancesParalleles"},
    {"MenuCoaxiauxCourants", "RVListeCoaxiaux"},
    {"MenuSectionDiametre", "SectionDiametre"},
    {"MenuUnitésDePression", "RVConvUnitesPression"},
    {"MenuLogiciel", "Apropos", {.Width = 8310, .Height = 4035}},
};

class PlacingTest : public FrameTest, public testing::WithParamInterface<Opening> {
protected:
    void expectPlace(const std::string& name, const Place& place) const
    {
        FeuilleCalcul* const open = panel(name);
        ASSERT_NE(open, nullptr) << name;
        EXPECT_TRUE(open->visible()) << name;
        const auto stands = [&](const char* member, const Property<Single>& got, double wanted) {
            EXPECT_EQ(got.get(), Single{wanted}) << name << '.' << member;
        };
        stands("Width", open->Width, place.Width.value_or(open->design().Width));
        stands("Height", open->Height, place.Height.value_or(open->design().Height));
        stands("Left", open->Left, place.Left.value_or((19470 - Double{open->Width}.value()) / 2));
        stands("Top", open->Top, place.Top.value_or((15000 - Double{open->Height}.value()) / 2));
    }
};

TEST_P(PlacingTest, OpensItsPanelsAloneAndInTheirPlaces)
{
    frame.start();
    if (!click(GetParam().entry))
        GTEST_SKIP() << "no such panel yet";
    expectPlace(GetParam().panel, GetParam().place);
    if (GetParam().companion)
        expectPlace("CalculNombreSpires", *GetParam().companion);
    EXPECT_EQ(desk.loadedPanels().size(), GetParam().companion ? 2U : 1U);
}

TEST_P(PlacingTest, RestartsTheSameInTheSamePlaces)
{
    frame.start();
    if (!click(GetParam().entry))
        GTEST_SKIP() << "no such panel yet";
    FeuilleCalcul& first = *panel(GetParam().panel);
    const unsigned loading = first.loading();
    first.Left = 0;
    first.Top = 0;
    click(GetParam().entry);
    EXPECT_EQ(panel(GetParam().panel), &first);
    EXPECT_EQ(first.loading(), loading + 1);
    expectPlace(GetParam().panel, GetParam().place);
}

TEST_P(PlacingTest, GoesWhenAnotherEntryIsClicked)
{
    frame.start();
    if (!click(GetParam().entry))
        GTEST_SKIP() << "no such panel yet";
    const bool itself = GetParam().panel == "CircuitsOscillants";
    click(itself ? "mnuSelfNbSpires" : "MenuCircuitOscillant");
    EXPECT_EQ(desk.loadedPanels().size(), 1U);
    EXPECT_EQ(panel(GetParam().panel), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Menu, PlacingTest, testing::ValuesIn(openings), [](const auto& opening) {
    std::string name = opening.param.entry;
    std::erase_if(name, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
    return name;
});

class CompanionTest : public FrameTest { };

TEST_F(CompanionTest, StandsBesideTheShortenedDipole)
{
    frame.start();
    if (!click("mnuDipoleRaccourci"))
        GTEST_SKIP() << "no such panel yet";
    const FeuilleCalcul& dipole = *panel("AntennesDipolesRaccourcis");
    EXPECT_EQ(dipole.Left.get(), Single{(Double{19470} - dipole.Width) / 5});
    EXPECT_EQ(dipole.Top.get(), Single{(Double{15000} - dipole.Height) / 4});
    const FeuilleCalcul& companion = *panel("CalculNombreSpires");
    EXPECT_TRUE(companion.visible());
    EXPECT_EQ(companion.Top.get(), Single{dipole.Top + 500});
    EXPECT_EQ(companion.Left.get(), Single{dipole.Width + dipole.Left + 500});
}

TEST_F(CompanionTest, IsCentredWhereItIsOpenedAlone)
{
    frame.start();
    click("MenuFiltrePasseBasEnPi");
    click("mnuSelfNbSpires");
    const FeuilleCalcul& alone = *panel("CalculNombreSpires");
    EXPECT_EQ(alone.Left.get(), Single{(Double{19470} - alone.Width) / 2});
    EXPECT_EQ(alone.Top.get(), Single{(Double{15000} - alone.Height) / 2});
}

TEST_F(FrameTest, TheMonostableOpensWithTheValuesOfItsEntry)
{
    frame.start();
    if (!click("MenuMonostable"))
        GTEST_SKIP() << "no such panel yet";
    const FeuilleCalcul& open = *panel("Monostable");
    EXPECT_EQ(dynamic_cast<HScrollBar&>(*open.find("HscrRes")).Value, 434);
    EXPECT_EQ(dynamic_cast<HScrollBar&>(*open.find("HscrCapa")).Value, 10);
    EXPECT_EQ(dynamic_cast<ListBox&>(*open.find("LstRes")).ListIndex, 1);
    EXPECT_EQ(dynamic_cast<ListBox&>(*open.find("LstCapa")).ListIndex, 0);
}

} // namespace
} // namespace ondelis::tests
