#include <set>

#include "Support.h"
#include "shell/Centrages.h"

namespace ondelis {
namespace {

class MDIOndelisTest : public FrameTest { };

TEST_F(MDIOndelisTest, startsCentredOnTheScreenWithItsSizeAndCaption)
{
    frame.start();
    EXPECT_EQ(Double{frame.Width}, 19470);
    EXPECT_EQ(Double{frame.Height}, 15000);
    EXPECT_EQ(Double{frame.Left}, 4665);
    EXPECT_EQ(Double{frame.Top}, 600);
    EXPECT_EQ(frame.Caption, "Kervane : Veloris divers V21.5.0 du 20 Janvier 2021");
}

TEST_F(MDIOndelisTest, tellsTheViewItsSizeCaptionAndPlace)
{
    frame.start();
    EXPECT_EQ(host.log, EventLog(5, "frame"));
}

TEST_F(MDIOndelisTest, startsPartlyOffAScreenThatIsTooSmall)
{
    host.screenSize = {.Width = 15360, .Height = 11520};
    frame.start();
    EXPECT_EQ(Double{frame.Left}, -2055);
    EXPECT_EQ(Double{frame.Top}, -1740);
}

TEST_F(MDIOndelisTest, startsWithNoPanelOpen)
{
    frame.start();
    EXPECT_TRUE(runtime.loadedPanels().empty());
    EXPECT_FALSE(runtime.ended());
}

TEST_F(MDIOndelisTest, quitterEndsTheProgramAtOnce)
{
    frame.start();
    EXPECT_TRUE(click("MenuQuitter"));
    EXPECT_EQ(host.endings, std::vector<int>{0});
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(MDIOndelisTest, itsCloseBoxEndsTheProgramAtOnce)
{
    frame.start();
    click("MenuCircuitOscillant");
    frame.close();
    EXPECT_EQ(host.endings, std::vector<int>{0});
    EXPECT_TRUE(host.boxes.empty());
}

TEST_F(MDIOndelisTest, anEntryClosesThePanelThatIsOpen)
{
    frame.start();
    click("MenuCircuitOscillant");
    click("mnuSelfNbSpires");
    EXPECT_EQ(panel("CircuitsOscillants"), nullptr);
    EXPECT_EQ(runtime.loadedPanels().size(), 1U);
}

TEST_F(MDIOndelisTest, anEntryClosesAllPanels)
{
    frame.start();
    for (const MenuEntry* const entry : panelEntries())
        for (const MenuStep& step : entry->steps) // nothing is closed before
            step(frame);
    EXPECT_EQ(runtime.loadedPanels().size(), 42U);
    frame.click({.control = "mnuEssai", .caption = "Essai", .steps = {}});
    EXPECT_TRUE(runtime.loadedPanels().empty());
}

TEST_F(MDIOndelisTest, anEntryClosesAHiddenPanelToo)
{
    frame.start();
    click("mnuSelfNbSpires");
    panel("CalculNombreSpires")->Hide();
    click("MenuCircuitOscillant");
    EXPECT_EQ(runtime.loadedPanels(), std::vector<FeuilleCalcul*>{panel("CircuitsOscillants")});
}

TEST_F(MDIOndelisTest, theEntryOfTheOpenPanelRestartsIt)
{
    frame.start();
    click("MenuCircuitOscillant");
    FeuilleCalcul& open = *panel("CircuitsOscillants");
    auto& field = dynamic_cast<TextBox&>(*open.find("TxtFreq"));
    user.type(field, "14.1");
    open.Left = 0;
    click("MenuCircuitOscillant");
    EXPECT_EQ(panel("CircuitsOscillants"), &open);
    EXPECT_EQ(field.Text, "");
    EXPECT_EQ(Double{open.Left}, (Double{19470} - open.Width) / 2);
}

TEST_F(MDIOndelisTest, aPanelClosedByTheUserOpensAgain)
{
    frame.start();
    click("MenuCircuitOscillant");
    user.close(*panel("CircuitsOscillants"));
    EXPECT_TRUE(runtime.loadedPanels().empty());
    click("MenuCircuitOscillant");
    EXPECT_NE(panel("CircuitsOscillants"), nullptr);
}

TEST_F(MDIOndelisTest, panelsAreCentredInTheFrameAsTheUserLeftIt)
{
    frame.start();
    frame.geometryChanged({.Left = 100, .Top = 200}, {.Width = 12000, .Height = 9000});
    click("MenuCircuitOscillant");
    const FeuilleCalcul& open = *panel("CircuitsOscillants");
    EXPECT_EQ(Double{open.Left}, (Double{12000} - open.Width) / 2);
    EXPECT_EQ(Double{open.Top}, (Double{9000} - open.Height) / 2);
}

TEST_F(MDIOndelisTest, nothingOpensAfterTheEnd)
{
    frame.start();
    frame.close();
    click("MenuCircuitOscillant");
    EXPECT_TRUE(runtime.loadedPanels().empty());
}

TEST_F(MDIOndelisTest, twoListsOfAllPanelsListenToAClickOnTheChosenRow)
{
    frame.start();
    std::set<std::string> listening;
    for (const MenuEntry* const entry : panelEntries()) {
        frame.click(*entry);
        for (const FeuilleCalcul* const open : runtime.loadedPanels())
            for (const Control* const control : open->controls())
                if (const auto* const list = dynamic_cast<const ListBox*>(control);
                    list != nullptr && list->design().clickOnChosenRow)
                    listening.insert(open->design().name + "." + list->name());
    }
    EXPECT_EQ(listening, (std::set<std::string>{"CondensateurFixe.LstDielectrique", "Transformateur.LstTole"}));
}

/// Records the stores into a position.
struct Form {
    Double Width = 1000;
    Double Height = 500;
    std::vector<std::string>* order = nullptr;
    struct Position {
        std::string name;
        std::vector<std::string>* order;
        void operator=(Double twips) { order->push_back(name + " " + std::to_string(twips.value())); } // NOLINT
    };
    Position Left{"Left", order};
    Position Top{"Top", order};
};

TEST(CentragesTest, storeTheTopBeforeTheLeft)
{
    std::vector<std::string> order;
    Form form{.order = &order};
    CentrerEcran({.Width = 4000, .Height = 2500}, form);
    EXPECT_EQ(order, (std::vector<std::string>{"Top 1000.000000", "Left 1500.000000"}));
    order.clear();
    struct {
        Double Width = 2000;
        Double Height = 3001;
    } outside;
    CentrerFeuille(outside, form);
    EXPECT_EQ(order, (std::vector<std::string>{"Top 1250.500000", "Left 500.000000"}));
}

} // namespace
} // namespace ondelis
