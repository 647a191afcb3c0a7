#include "Support.h"

namespace ondelis {
namespace {

/// Records each Form_Load, and does there what the test asks.
class Fiche final : public FeuilleCalcul {
public:
    explicit Fiche(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Fiche", .Caption = "Fiche", .Width = 6000, .Height = 4000}}
    {
    }

    TextBox TxtC{this, "TxtC", {.Text = "vide", .BackColor = 0xFFFFC0, .MaxLength = 4}, &Fiche::TxtC_Change};
    Label LblC{this, "LblC", {.Caption = "C"}};
    OptionButton OptC{this, "OptC", {}, &Fiche::OptC_Click};
    ListBox LstC{this, "LstC", {.Items = {"nF"}}};
    HScrollBar HscrC{this, "HscrC", {}};

    std::function<void(Fiche&)> atLoad = [](Fiche&) {};
    int loads = 0;
    int changes = 0;
    std::string Capacite; ///< a panel-level variable
    bool visibleAtClick = true;

private:
    void Form_Load() override
    {
        ++loads;
        atLoad(*this);
    }
    void TxtC_Change()
    {
        ++changes;
        Capacite = TxtC.Text;
    }
    void OptC_Click() { visibleAtClick = visible(); }
};

/// Refers to the other panel while it loads.
class Compagne final : public FeuilleCalcul {
public:
    explicit Compagne(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Compagne", .Caption = "", .Width = 3000, .Height = 2000}}
    {
    }

private:
    void Form_Load() override { runtime().get<Fiche>().TxtC.Text = "lié"; }
};

class LoadingTest : public RuntimeTest {
protected:
    Fiche& panel = runtime.get<Fiche>();

    void expectLoadedAndVisible() const
    {
        EXPECT_TRUE(panel.loaded());
        EXPECT_TRUE(panel.visible());
        EXPECT_EQ(panel.loads, 1);
    }
};

TEST_F(LoadingTest, theFirstReferenceMakesThePanelAndLoadsNothing)
{
    EXPECT_FALSE(panel.loaded());
    EXPECT_FALSE(panel.visible());
    EXPECT_EQ(panel.loads, 0);
    EXPECT_TRUE(host.log.empty());
    EXPECT_TRUE(runtime.loadedPanels().empty());
}

TEST_F(LoadingTest, thereIsOneInstanceOfAPanel)
{
    EXPECT_EQ(&runtime.get<Fiche>(), &panel);
}

TEST_F(LoadingTest, showLoadsOnceAndMakesVisible)
{
    panel.Show();
    panel.Show();
    expectLoadedAndVisible();
    EXPECT_EQ(host.log, (EventLog{"loaded Fiche", "changed Fiche", "raised Fiche", "raised Fiche"}));
}

TEST_F(LoadingTest, readingATextLoadsAndShows)
{
    EXPECT_EQ(panel.TxtC.Text, "vide");
    expectLoadedAndVisible();
}

TEST_F(LoadingTest, storingATextLoadsAndShows)
{
    panel.TxtC.Text = "x";
    expectLoadedAndVisible();
    EXPECT_EQ(panel.changes, 1);
}

TEST_F(LoadingTest, readingAPositionLoadsAndShows)
{
    EXPECT_EQ(Double{panel.Left}, 0);
    expectLoadedAndVisible();
}

TEST_F(LoadingTest, storingASizeLoadsAndShows)
{
    panel.Width = 7000;
    expectLoadedAndVisible();
    EXPECT_EQ(Double{panel.Width}, 7000);
}

TEST_F(LoadingTest, storingTheCaptionLoadsAndShows)
{
    panel.Caption = "x";
    expectLoadedAndVisible();
}

/// The members of controls, each read or stored once.
const std::vector<std::function<void(Fiche&)>> references{
    [](Fiche& panel) { panel.LstC.AddItem("x"); },
    [](Fiche& panel) { panel.LstC.Clear(); },
    [](Fiche& panel) { EXPECT_EQ(panel.LstC.ListCount(), 1); },
    [](Fiche& panel) { EXPECT_EQ(panel.LstC.List(0), "nF"); },
    [](Fiche& panel) { EXPECT_EQ(panel.LstC.List(-1), ""); },
    [](Fiche& panel) { EXPECT_EQ(std::string{panel.LstC.Text}, ""); },
    [](Fiche& panel) { EXPECT_FALSE(panel.OptC.Value); },
    [](Fiche& panel) { EXPECT_EQ(panel.HscrC.Max, 32767); },
    [](Fiche& panel) { panel.TxtC.SetFocus(); },
    [](Fiche& panel) { panel.LblC.Visible = false; },
    [](Fiche& panel) { panel.LblC.Caption = "c"; },
};

TEST_F(LoadingTest, everyMemberOfAControlLoads)
{
    for (const auto& refer : references) {
        refer(panel);
        EXPECT_TRUE(panel.visible()) << "reference " << &refer - references.data();
        panel.Unload();
    }
    EXPECT_EQ(panel.loads, static_cast<int>(references.size()));
}

TEST_F(LoadingTest, hideOnAPanelNeverLoadedLoadsItAndLeavesItHidden)
{
    panel.Hide();
    EXPECT_TRUE(panel.loaded());
    EXPECT_FALSE(panel.visible());
    EXPECT_EQ(panel.loads, 1);
}

TEST_F(LoadingTest, aHiddenPanelKeepsItsControlsAndStaysHiddenWhenReferredTo)
{
    panel.TxtC.Text = "x";
    panel.Hide();
    panel.Top = 100;
    EXPECT_EQ(panel.TxtC.Text, "x");
    EXPECT_FALSE(panel.visible());
    panel.Show();
    EXPECT_TRUE(panel.visible());
    EXPECT_EQ(panel.TxtC.Text, "x");
    EXPECT_EQ(panel.loads, 1);
}

TEST_F(LoadingTest, hideInFormLoadLeavesThePanelHiddenAfterAReference)
{
    panel.atLoad = [](Fiche& me) { me.Hide(); };
    panel.Top = 100;
    EXPECT_TRUE(panel.loaded());
    EXPECT_FALSE(panel.visible());
}

TEST_F(LoadingTest, showAfterHideInFormLoadShows)
{
    panel.atLoad = [](Fiche& me) {
        me.Hide();
        me.Show();
    };
    panel.Top = 100;
    EXPECT_TRUE(panel.visible());
}

TEST_F(LoadingTest, showBringsOnScreenAPanelThatHidesInFormLoad)
{
    panel.atLoad = [](Fiche& me) { me.Hide(); };
    panel.Show();
    EXPECT_TRUE(panel.visible());
}

TEST_F(LoadingTest, hideHidesAPanelThatShowsInFormLoad)
{
    panel.atLoad = [](Fiche& me) { me.Show(); };
    panel.Hide();
    EXPECT_FALSE(panel.visible());
}

TEST_F(LoadingTest, aHideOfAnEarlierLoadingIsForgotten)
{
    panel.Hide();
    panel.Unload();
    panel.Top = 100;
    EXPECT_TRUE(panel.visible());
}

TEST_F(LoadingTest, theControlsHaveTheirDesignValuesWhenFormLoadRuns)
{
    std::string text;
    panel.atLoad = [&](Fiche& me) { text = me.TxtC.Text; };
    panel.Show();
    EXPECT_EQ(text, "vide");
}

TEST_F(LoadingTest, thePanelIsNotOnScreenWhileFormLoadRuns)
{
    panel.atLoad = [](Fiche& me) { me.OptC.Value = true; };
    panel.Show();
    EXPECT_FALSE(panel.visibleAtClick);
}

TEST_F(LoadingTest, aReferenceInFormLoadToThePanelItselfLoadsNothingTwice)
{
    panel.atLoad = [](Fiche& me) { me.Width = me.Width + me.Left; };
    panel.Show();
    EXPECT_EQ(panel.loads, 1);
}

TEST_F(LoadingTest, unloadDropsTheControlsAndKeepsTheVariables)
{
    panel.TxtC.Text = "12";
    panel.TxtC.BackColor = 0xC0E0FF;
    panel.Caption = "Autre";
    panel.Left = 300;
    runtime.Unload<Fiche>();
    EXPECT_FALSE(panel.loaded());
    EXPECT_FALSE(panel.visible());
    EXPECT_EQ(panel.Capacite, "12");

    panel.Show();
    EXPECT_EQ(panel.loads, 2);
    EXPECT_EQ(panel.TxtC.Text, "vide");
    EXPECT_EQ(panel.TxtC.BackColor, 0xFFFFC0U);
    EXPECT_EQ(panel.Caption, "Fiche");
    EXPECT_EQ(Double{panel.Left}, 0);
    EXPECT_EQ(panel.Capacite, "12");
}

TEST_F(LoadingTest, unloadOfAPanelThatIsNotLoadedHasNoEffect)
{
    panel.Unload();
    runtime.Unload<Fiche>();
    runtime.Unload<Compagne>();
    EXPECT_EQ(panel.loads, 0);
    EXPECT_TRUE(host.log.empty());
    panel.Show();
    panel.Unload();
    host.log.clear();
    panel.Unload();
    EXPECT_TRUE(host.log.empty());
}

TEST_F(LoadingTest, unloadRaisesNoChange)
{
    panel.TxtC.Text = "12";
    panel.Unload();
    EXPECT_EQ(panel.changes, 1);
}

TEST_F(LoadingTest, unloadTakesTheKeyboardAway)
{
    panel.TxtC.SetFocus();
    EXPECT_EQ(runtime.focused(), &panel.TxtC);
    panel.Unload();
    EXPECT_EQ(runtime.focused(), nullptr);
}

TEST_F(LoadingTest, unloadOfAnotherPanelLeavesTheKeyboardWhereItIs)
{
    runtime.get<Compagne>().Show();
    panel.TxtC.SetFocus();
    runtime.Unload<Compagne>();
    EXPECT_EQ(runtime.focused(), &panel.TxtC);
}

TEST_F(LoadingTest, aStoreIntoAnotherPanelLoadsAndShowsIt)
{
    runtime.get<Compagne>().Show();
    expectLoadedAndVisible();
    EXPECT_EQ(panel.TxtC.Text, "lié");
    EXPECT_EQ(runtime.loadedPanels(), (std::vector<FeuilleCalcul*>{&runtime.get<Compagne>(), &panel}));
}

TEST_F(LoadingTest, theCloseBoxUnloads)
{
    panel.TxtC.Text = "12";
    EXPECT_FALSE(user.close(panel).has_value());
    EXPECT_FALSE(panel.loaded());
    EXPECT_EQ(panel.Capacite, "12");
    EXPECT_TRUE(user.close(panel).has_value());
}

TEST_F(LoadingTest, thereIsNoCloseBoxOnAHiddenPanel)
{
    panel.Hide();
    EXPECT_TRUE(user.close(panel).has_value());
    EXPECT_TRUE(panel.loaded());
}

TEST_F(LoadingTest, setFocusOnAHiddenFieldIsAFault)
{
    panel.TxtC.Visible = false;
    EXPECT_EQ(faultOf([&] { panel.TxtC.SetFocus(); }), FaultKind::InvalidArgument);
    EXPECT_EQ(runtime.focused(), nullptr);
}

TEST_F(LoadingTest, aControlIsFoundByItsName)
{
    EXPECT_EQ(panel.find("TxtC"), &panel.TxtC);
    EXPECT_EQ(panel.find("TxtD"), nullptr);
    EXPECT_FALSE(panel.loaded());
}

} // namespace
} // namespace ondelis
