#include <utility>

#include "Support.h"

namespace ondelis {
namespace {

/// One control of each class that has properties to store.
class Palette final : public FeuilleCalcul {
public:
    explicit Palette(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Palette", .Caption = "Palette", .Width = 6000, .Height = 4000}}
    {
    }

    Label Legende{this, "Legende", {}};
    TextBox Champ{this, "Champ", {}};
    ListBox Liste{this, "Liste", {.Items = {"nF", "pF"}}};
    OptionButton Serie{this, "Serie", {.Value = true}};
    OptionButton Parallele{this, "Parallele", {}};
    CommandButton Bouton{this, "Bouton", {}};
    HScrollBar Barre{this, "Barre", {.Max = 100, .Value = 50}};
    Frame Cadre{this, "Cadre", {}};
    Image Dessin{this, "Dessin", {}};
    Line Trait{this, "Trait", {}};
    MaskEdBox Masque{this, "Masque", {}};
};

struct Store {
    std::function<void(Palette&)> run;
    EventLog reported;
};

const std::vector<Store> stores{
    {[](Palette& panel) { panel.Legende.Caption = "C"; }, {"control Legende"}},
    {[](Palette& panel) { panel.Legende.Top = 120; }, {"control Legende"}},
    {[](Palette& panel) { panel.Legende.Visible = false; }, {"control Legende"}},
    {[](Palette& panel) { panel.Champ.Text = "12"; }, {"control Champ"}},
    {[](Palette& panel) { panel.Champ.BackColor = red; }, {"control Champ"}},
    {[](Palette& panel) { panel.Champ.ForeColor = red; }, {"control Champ"}},
    {[](Palette& panel) { panel.Champ.Locked = true; }, {"control Champ"}},
    {[](Palette& panel) { panel.Champ.Top = 120; }, {"control Champ"}},
    {[](Palette& panel) { panel.Liste.ListIndex = 1; }, {"control Liste"}},
    {[](Palette& panel) { panel.Liste.BackColor = red; }, {"control Liste"}},
    {[](Palette& panel) { panel.Parallele.Value = true; }, {"control Parallele", "control Serie"}},
    {[](Palette& panel) { panel.Parallele.ForeColor = red; }, {"control Parallele"}},
    {[](Palette& panel) { panel.Bouton.Visible = false; }, {"control Bouton"}},
    {[](Palette& panel) { panel.Barre.Value = 60; }, {"control Barre"}},
    {[](Palette& panel) { panel.Barre.Min = 10; }, {"control Barre"}},
    {[](Palette& panel) { panel.Barre.Max = 90; }, {"control Barre"}},
    {[](Palette& panel) { panel.Barre.Min = 70; }, {"control Barre", "control Barre"}}, // the limit, then the value
    {[](Palette& panel) { panel.Cadre.Visible = false; }, {"control Cadre"}},
    {[](Palette& panel) { panel.Dessin.Visible = false; }, {"control Dessin"}},
    {[](Palette& panel) { panel.Trait.X1 = 120; }, {"control Trait"}},
    {[](Palette& panel) { panel.Trait.Y2 = 120; }, {"control Trait"}},
    {[](Palette& panel) { panel.Masque.Text = "0.12"; }, {"control Masque"}},
    {[](Palette& panel) { panel.Caption = "Autre"; }, {"changed Palette"}},
};

class ReportingTest : public RuntimeTest {
protected:
    Palette& panel = runtime.get<Palette>();

    EventLog reportedBy(const std::function<void(Palette&)>& action)
    {
        host.log.clear();
        action(panel);
        return std::exchange(host.log, {});
    }
};

TEST_F(ReportingTest, theViewIsToldOfEachNewValueOnce)
{
    panel.Show();
    for (const Store& store : stores) {
        EXPECT_EQ(reportedBy(store.run), store.reported) << "store " << &store - stores.data();
        EXPECT_EQ(reportedBy(store.run), EventLog{}) << "again store " << &store - stores.data();
    }
}

TEST_F(ReportingTest, theViewIsToldOfEachRowThatComesAndOfAListThatIsCleared)
{
    panel.Show();
    EXPECT_EQ(reportedBy([](Palette& palette) { palette.Liste.AddItem("µF"); }), EventLog{"control Liste"});
    EXPECT_EQ(reportedBy([](Palette& palette) { palette.Liste.Clear(); }), EventLog{"control Liste"});
}

TEST_F(ReportingTest, theViewIsToldWhichFieldCodeGivesTheKeyboard)
{
    panel.Show();
    EXPECT_EQ(reportedBy([](Palette& palette) { palette.Champ.SetFocus(); }), EventLog{"focus Champ"});
    EXPECT_EQ(runtime.focused(), &panel.Champ);
}

TEST_F(ReportingTest, theViewIsToldOfAPanelThatHidesOnce)
{
    panel.Show();
    EXPECT_EQ(reportedBy([](Palette& palette) { palette.Hide(); }), EventLog{"changed Palette"});
    EXPECT_EQ(reportedBy([](Palette& palette) { palette.Hide(); }), EventLog{});
}

TEST_F(ReportingTest, theViewIsNeverToldToShowAPanelThatIsLoadedHidden)
{
    EXPECT_EQ(reportedBy([](Palette& palette) { palette.Hide(); }), (EventLog{"loaded Palette", "changed Palette"}));
}

TEST_F(ReportingTest, theViewIsToldOfAPanelThatIsClosedOnce)
{
    panel.Show();
    EXPECT_EQ(reportedBy([](Palette& palette) { palette.Unload(); }), EventLog{"unloaded Palette"});
    EXPECT_EQ(reportedBy([](Palette& palette) { palette.Unload(); }), EventLog{});
}

TEST_F(ReportingTest, theViewIsToldNothingOfAValueThatIsOnlyRead)
{
    panel.Show();
    EXPECT_EQ(reportedBy([](Palette& palette) { EXPECT_EQ(palette.Liste.List(1), "pF"); }), EventLog{});
}

} // namespace
} // namespace ondelis
