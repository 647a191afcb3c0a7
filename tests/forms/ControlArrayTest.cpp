#include "forms/ControlArray.h"
#include "Support.h"

namespace ondelis::tests {
namespace {

class Tableau final : public FeuilleCalcul {
public:
    explicit Tableau(Desk& desk)
        : FeuilleCalcul{desk, {.name = "Tableau", .Caption = "", .Width = 6000, .Height = 4000}}
    {
        tabAlongRows(TxtUSec, Lbl);
    }

    TextBox Before{this, "Before", {}};
    ControlArray<TextBox> TxtUSec{this, "TxtUSec", 3,
        [](int i) { return TextBox::Design{.Text = "2", .at = {.Top = 100.0 * i}}; }, &Tableau::TxtUSec_Change};
    ControlArray<Label> Lbl{this, "Lbl", 3, [](int) { return Label::Design{}; }};
    TextBox After{this, "After", {}};

    Log log;

private:
    void TxtUSec_Change(Integer Index)
    {
        log.push_back(std::to_string(Index.value()) + ": " + std::string{TxtUSec(Index).Text});
    }
};

class ControlArrayTest : public DeskTest {
protected:
    Tableau& panel = desk.get<Tableau>();
};

TEST_F(ControlArrayTest, HasOneDesignAnElement)
{
    EXPECT_EQ(panel.TxtUSec.count(), 3);
    EXPECT_EQ(Double{panel.TxtUSec(2).Top}, 200);
}

TEST_F(ControlArrayTest, TellsItsProcedureTheIndexOfTheElement)
{
    panel.TxtUSec(1).Text = "12";
    panel.TxtUSec(0).Text = "24";
    EXPECT_EQ(panel.log, (Log{"1: 12", "0: 24"}));
}

TEST_F(ControlArrayTest, FaultsOutsideItsBounds)
{
    EXPECT_EQ(faultOf([&] { panel.TxtUSec(3); }), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(faultOf([&] { panel.TxtUSec(-1); }), FaultKind::SubscriptOutOfRange);
}

TEST_F(ControlArrayTest, NamesItsElementsByTheirIndex)
{
    EXPECT_EQ(panel.find("TxtUSec(1)"), &panel.TxtUSec(1));
    EXPECT_EQ(panel.find("TxtUSec"), nullptr);
    EXPECT_EQ(panel.find("Lbl(0)"), &panel.Lbl(0));
}

TEST_F(ControlArrayTest, CanLeadTheTabKeyAlongItsRows)
{
    Log names;
    for (const Control* control : panel.controls())
        names.push_back(control->name());
    EXPECT_EQ(names, (Log{"Before", "TxtUSec(0)", "Lbl(0)", "TxtUSec(1)", "Lbl(1)", "TxtUSec(2)", "Lbl(2)", "After"}));
}

TEST_F(ControlArrayTest, IsTypedInLikeAnyField)
{
    panel.Show();
    user.type(panel.TxtUSec(2), "5");
    EXPECT_EQ(panel.log, Log{"2: 25"});
}

} // namespace
} // namespace ondelis::tests
