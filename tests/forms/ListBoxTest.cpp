#include "Support.h"

namespace ondelis {
namespace {

class Listes final : public FeuilleCalcul {
public:
    explicit Listes(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Listes", .Caption = "", .Width = 6000, .Height = 4000}}
    {
    }

    ListBox LstUnite{this, "LstUnite", {.Items = {"µF", "nF", "pF"}}, &Listes::LstUnite_Click};
    ListBox LstVide{this, "LstVide", {}, &Listes::LstVide_Click};
    ListBox LstTete{this, "LstTete", {.Items = {"0", "1"}, .clickOnChosenRow = true}, &Listes::LstTete_Click,
        &Listes::LstTete_GotFocus};
    TextBox TxtChoix{this, "TxtChoix", {}};

    EventLog log;

private:
    void LstUnite_Click() { log.push_back("unité " + std::string{LstUnite.Text}); }
    void LstVide_Click() { log.emplace_back("vide"); }
    void LstTete_Click() { log.emplace_back("tête"); }
    void LstTete_GotFocus() { log.emplace_back("clavier"); }
};

class ListBoxTest : public RuntimeTest {
protected:
    ListBoxTest() { panel.Show(); }
    Listes& panel = runtime.get<Listes>();
};

TEST_F(ListBoxTest, opensWithItsDesignItemsAndNoChosenRow)
{
    EXPECT_EQ(panel.LstUnite.ListCount(), 3);
    EXPECT_EQ(panel.LstUnite.ListIndex, -1);
    EXPECT_EQ(std::string{panel.LstUnite.Text}, "");
    EXPECT_EQ(panel.LstVide.ListCount(), 0);
}

TEST_F(ListBoxTest, raisesClickForAnotherRowOnly)
{
    panel.LstUnite.ListIndex = 1;
    panel.LstUnite.ListIndex = 1;
    panel.LstUnite.ListIndex = 0;
    EXPECT_EQ(panel.log, (EventLog{"unité nF", "unité µF"}));
}

TEST_F(ListBoxTest, raisesClickWhenTheChoiceIsTakenBack)
{
    panel.LstUnite.ListIndex = 2;
    panel.LstUnite.ListIndex = -1;
    EXPECT_EQ(panel.log, (EventLog{"unité pF", "unité "}));
}

TEST_F(ListBoxTest, faultsOnARowBeyondTheList)
{
    EXPECT_EQ(faultOf([&] { panel.LstUnite.ListIndex = 3; }), FaultKind::InvalidPropertyValue);
    EXPECT_EQ(faultOf([&] { panel.LstUnite.ListIndex = -2; }), FaultKind::InvalidPropertyValue);
    EXPECT_EQ(faultOf([&] { panel.LstVide.ListIndex = 0; }), FaultKind::InvalidPropertyValue);
    EXPECT_EQ(panel.LstUnite.ListIndex, -1);
    EXPECT_TRUE(panel.log.empty());
}

TEST_F(ListBoxTest, raisesNothingForAddItem)
{
    panel.LstVide.AddItem("un");
    panel.LstVide.AddItem("");
    EXPECT_EQ(panel.LstVide.ListCount(), 2);
    EXPECT_EQ(panel.LstVide.List(0), "un");
    EXPECT_EQ(panel.LstVide.ListIndex, -1);
    EXPECT_TRUE(panel.log.empty());
}

TEST_F(ListBoxTest, keepsTheChosenRowWhenRowsAreAdded)
{
    panel.LstUnite.ListIndex = 1;
    panel.LstUnite.AddItem("fF");
    EXPECT_EQ(std::string{panel.LstUnite.Text}, "nF");
}

TEST_F(ListBoxTest, raisesNothingForClearAndHasNoChoiceThen)
{
    panel.LstUnite.ListIndex = 1;
    panel.log.clear();
    panel.LstUnite.Clear();
    EXPECT_EQ(panel.LstUnite.ListIndex, -1);
    EXPECT_EQ(panel.LstUnite.ListCount(), 0);
    EXPECT_EQ(std::string{panel.LstUnite.Text}, "");
    EXPECT_TRUE(panel.log.empty());
}

TEST_F(ListBoxTest, raisesClickForTheOldRowNumberAfterClear)
{
    panel.LstUnite.ListIndex = 1;
    panel.LstUnite.Clear();
    panel.LstUnite.AddItem("a");
    panel.LstUnite.AddItem("b");
    panel.log.clear();
    panel.LstUnite.ListIndex = 1;
    EXPECT_EQ(panel.log, EventLog{"unité b"});
}

TEST_F(ListBoxTest, givesTheTextsOfItsRows)
{
    EXPECT_EQ(panel.LstUnite.List(2), "pF");
    panel.LstUnite.ListIndex = 2;
    panel.TxtChoix.Text = panel.LstUnite.Text;
    EXPECT_EQ(panel.TxtChoix.Text, "pF");
    EXPECT_EQ(panel.LstUnite.List(panel.LstUnite.ListIndex), "pF");
}

TEST_F(ListBoxTest, givesNoTextWhereThereIsNoRow)
{
    EXPECT_EQ(panel.LstUnite.List(-1), "");
    EXPECT_EQ(panel.LstUnite.List(3), "");
}

TEST_F(ListBoxTest, hasItsDesignItemsAgainAfterUnload)
{
    panel.LstUnite.AddItem("fF");
    panel.LstUnite.ListIndex = 3;
    panel.Unload();
    EXPECT_EQ(panel.LstUnite.ListCount(), 3);
    EXPECT_EQ(panel.LstUnite.ListIndex, -1);
}

TEST_F(ListBoxTest, raisesNothingWhenTheUserClicksTheChosenRow)
{
    EXPECT_EQ(user.choose(panel.LstUnite, 1), User::Refusal{});
    EXPECT_EQ(user.choose(panel.LstUnite, 1), User::Refusal{});
    EXPECT_EQ(panel.log, EventLog{"unité nF"});
}

TEST_F(ListBoxTest, raisesClickForTheChosenRowWhereTheDesignSaysSo)
{
    user.choose(panel.LstTete, 1);
    user.choose(panel.LstTete, 1);
    panel.LstTete.ListIndex = 1;
    EXPECT_EQ(panel.log, (EventLog{"clavier", "tête", "tête"}));
}

TEST_F(ListBoxTest, raisesGotFocusOnlyWhenItDidNotHaveTheKeyboard)
{
    user.focus(panel.LstTete);
    user.focus(panel.LstTete);
    EXPECT_EQ(panel.log, EventLog{"clavier"});
    user.choose(panel.LstUnite, 0);
    user.choose(panel.LstTete, 0);
    EXPECT_EQ(panel.log, (EventLog{"clavier", "unité µF", "clavier", "tête"}));
}

TEST_F(ListBoxTest, raisesNoGotFocusForAStoreFromCode)
{
    panel.LstTete.ListIndex = 1;
    EXPECT_EQ(panel.log, EventLog{"tête"});
}

TEST_F(ListBoxTest, raisesGotFocusAgainAfterAnUnload)
{
    user.focus(panel.LstTete);
    panel.Unload();
    panel.Show();
    user.focus(panel.LstTete);
    EXPECT_EQ(panel.log, (EventLog{"clavier", "clavier"}));
}

TEST_F(ListBoxTest, refusesTheUserARowThatIsNotThere)
{
    EXPECT_TRUE(user.choose(panel.LstUnite, 3).has_value());
    EXPECT_TRUE(user.choose(panel.LstUnite, -1).has_value());
    EXPECT_EQ(runtime.focused(), nullptr);
    EXPECT_TRUE(panel.log.empty());
}

} // namespace
} // namespace ondelis
