#include "Support.h"

namespace ondelis {
namespace {

/// A field that fills a second one, which fills a third one.
class Chaine final : public FeuilleCalcul {
public:
    explicit Chaine(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Chaine", .Caption = "Chaîne", .Width = 6000, .Height = 4000}}
    {
    }

    Label LblA{this, "LblA", {.Caption = "A", .at = {240, 240, 1200, 240}}};
    TextBox TxtA{this, "TxtA", {.at = {2400, 240, 1200, 285}}, &Chaine::TxtA_Change};
    TextBox TxtB{this, "TxtB", {.Text = "b"}, &Chaine::TxtB_Change};
    TextBox TxtC{this, "TxtC", {.Locked = true}, &Chaine::TxtC_Change};
    TextBox TxtSeul{this, "TxtSeul", {}};
    Line Trait{this, "Trait", {.X1 = 100}};

    EventLog log;

private:
    void TxtA_Change()
    {
        log.push_back("A begins with " + std::string{TxtA.Text});
        TxtB.Text = "de " + std::string{TxtA.Text};
        log.emplace_back("A ends");
    }
    void TxtB_Change()
    {
        log.emplace_back("B begins");
        TxtC.Text = TxtB.Text;
        log.emplace_back("B ends");
    }
    void TxtC_Change() { log.push_back("C with " + std::string{TxtC.Text}); }
};

class StoreTest : public RuntimeTest {
protected:
    Chaine& panel = runtime.get<Chaine>();
};

TEST_F(StoreTest, runsTheWholeNestedChainBeforeTheNextStatement)
{
    panel.TxtA.Text = "x";
    EXPECT_EQ(panel.log, (EventLog{"A begins with x", "B begins", "C with de x", "B ends", "A ends"}));
}

TEST_F(StoreTest, ofTheSameTextTwiceRaisesOnce)
{
    panel.TxtC.Text = "x";
    panel.TxtC.Text = "x";
    EXPECT_EQ(panel.log, EventLog{"C with x"});
}

TEST_F(StoreTest, writesACaptionUntilThePanelIsLoadedAnew)
{
    panel.Show();
    EXPECT_FALSE(panel.LblA.written());
    panel.LblA.Visible = false;
    EXPECT_FALSE(panel.LblA.written());
    panel.LblA.Caption = "A"; // that of the design
    EXPECT_TRUE(panel.LblA.written());
    panel.Unload();
    panel.Show();
    EXPECT_FALSE(panel.LblA.written());
}

TEST_F(StoreTest, ofTheDesignTextRaisesNothing)
{
    panel.TxtB.Text = "b";
    EXPECT_TRUE(panel.log.empty());
}

TEST_F(StoreTest, intoALockedFieldIsNotRefused)
{
    panel.TxtC.Text = "code";
    EXPECT_EQ(panel.TxtC.Text, "code");
}

TEST_F(StoreTest, withNobodyListeningOnlyKeepsTheText)
{
    panel.TxtSeul.Text = "x";
    EXPECT_EQ(panel.TxtSeul.Text, "x");
    EXPECT_TRUE(panel.log.empty());
}

TEST_F(StoreTest, ofOneFieldIntoAnotherRaisesLikeAnyOther)
{
    panel.TxtA.Text = panel.TxtB.Text;
    EXPECT_EQ(panel.log.front(), "A begins with b");
}

TEST_F(StoreTest, betweenCaptionsAndTextsCopiesTheText)
{
    panel.LblA.Caption = panel.TxtB.Text;
    EXPECT_EQ(panel.LblA.Caption, "b");
    panel.LblA.Caption = "légende";
    panel.TxtSeul.Text = panel.LblA.Caption;
    EXPECT_EQ(panel.TxtSeul.Text, "légende");
}

TEST_F(StoreTest, betweenPositionsCopiesTheValue)
{
    panel.TxtA.Top = 1234;
    panel.LblA.Top = panel.TxtA.Top;
    EXPECT_EQ(Double{panel.LblA.Top}, 1234);
    panel.Trait.X2 = panel.Trait.X1;
    EXPECT_EQ(Double{panel.Trait.X2}, 100);
    panel.Left = panel.Width;
    EXPECT_EQ(Double{panel.Left}, 6000);
}

TEST_F(StoreTest, intoItselfChangesNothing)
{
    Chaine& same = panel;
    panel.TxtB.Text = same.TxtB.Text;
    panel.TxtB.Top = same.TxtB.Top;
    EXPECT_EQ(panel.TxtB.Text, "b");
    EXPECT_TRUE(panel.log.empty());
}

TEST_F(StoreTest, roundsAPositionToSingle)
{
    panel.Trait.Y1 = 0.1;
    EXPECT_EQ(Double{panel.Trait.Y1}, static_cast<double>(0.1F));
    panel.Top = 1.0 / 3;
    EXPECT_EQ(Double{panel.Top} + 1, 1 + static_cast<double>(1.0F / 3));
}

TEST_F(StoreTest, ofAPositionBeyondSingleIsAnOverflow)
{
    EXPECT_EQ(faultOf([&] { panel.Trait.Y1 = 1e39; }), FaultKind::Overflow);
    EXPECT_EQ(Double{panel.Trait.Y1}, 0);
}

TEST_F(StoreTest, tellsTheViewBeforeTheHandlerRuns)
{
    panel.Show();
    host.log.clear();
    panel.TxtB.Text = "x";
    EXPECT_EQ(host.log, (EventLog{"control TxtB", "control TxtC"}));
}

TEST_F(StoreTest, tellsTheViewOnlyWhatIsNew)
{
    panel.Show();
    host.log.clear();
    panel.TxtA.BackColor = 0xFFFFC0;
    panel.TxtA.BackColor = 0xFFFFC0;
    panel.TxtA.Locked = false;
    panel.TxtA.Visible = false;
    panel.LblA.Caption = "A";
    panel.Caption = "Chaîne";
    panel.Caption = "Autre";
    EXPECT_EQ(host.log, (EventLog{"control TxtA", "control TxtA", "changed Chaine"}));
}

/// A field that its own `Change` rewrites, as a `Calculer` does.
class Recalcul final : public FeuilleCalcul {
public:
    explicit Recalcul(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Recalcul", .Caption = "", .Width = 6000, .Height = 4000}}
    {
    }

    TextBox TxtA{this, "TxtA", {}, &Recalcul::TxtA_Change};
    int passes = 0;

private:
    void TxtA_Change()
    {
        ++passes;
        TxtA.Text = "fixe";
    }
};

TEST_F(StoreTest, endsAChainWhereNothingChanges)
{
    auto& recalcul = runtime.get<Recalcul>();
    recalcul.TxtA.Text = "x";
    EXPECT_EQ(recalcul.TxtA.Text, "fixe");
    EXPECT_EQ(recalcul.passes, 2);
}

} // namespace
} // namespace ondelis
