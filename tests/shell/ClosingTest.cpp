#include "Support.h"

namespace ondelis::tests {
namespace {

class ClosingTest : public FrameTest {
protected:
    /// Does what every entry does, without closing anything before.
    void openAll()
    {
        for (const MenuEntry* entry : panelEntries())
            for (const MenuStep& step : entry->steps)
                step(frame);
    }
};

/// All panels, in the order in which an entry closes them.
const Log panels{"AntennesLPDA1", "AntennesDipolesRaccourcis", "AntennesHighQLoop", "AntennesTrappesCoaxiales",
    "Astable", "Apropos", "CalculSelf", "CalculNombreSpires", "CalculSurTores", "CircuitsOscillants", "Cms",
    "CoaxSectCarree", "CoaxSectCyl", "CondensateurFixe", "CondensateurEnergie", "CondensateurVariable", "Decibels",
    "DoubleQuad", "EchelleGrenouille", "FiltreEliminationBande", "FiltreEnDoublePi", "FiltrePasseHaut",
    "FiltrePasseBas", "FiltrePasseBasEnPi", "FiltrePasseBande", "FormuleDeThomson", "GammaMatch", "HB9CV_HF",
    "HB9CV_VUSHF", "Monostable", "PDResitancesParalleles", "PDShunts", "RapportCyclique", "RVConvUnitesPression",
    "RVListeCoaxiaux", "RLCParallele", "RLCSerie", "SectionDiametre", "StripLine", "Transformateur", "WireInductance",
    "Z1Z2"};

TEST_F(ClosingTest, AnEntryClosesEveryPanelInTheGivenOrder)
{
    frame.start();
    openAll();
    EXPECT_EQ(desk.loadedPanels().size(), panels.size());
    world.log.clear();
    frame.click({.control = "mnuEssai", .caption = "Essai", .steps = {[](MDIOndelis&) {}}});
    Log closed;
    for (const std::string& name : panels)
        closed.push_back("unloaded " + name);
    EXPECT_EQ(world.log, closed);
}

} // namespace
} // namespace ondelis::tests
