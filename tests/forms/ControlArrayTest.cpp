#include "forms/ControlArray.h"
#include "Support.h"

namespace ondelis {
namespace {

class Tableau final : public FeuilleCalcul {
public:
    explicit Tableau(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Tableau", .Caption = "", .Width = 6000, .Height = 4000}}
    {
    }

    struct Row {
        Row(Tableau* panel, int index)
            : Lbl{panel, elementName("Lbl", index), {}}, TxtUSec{panel, elementName("TxtUSec", index), {.Text = "2"},
                                                             &Tableau::TxtUSec_Change}
        {
        }
        Label Lbl;
        TextBox TxtUSec;
    };

    TextBox Before{this, "Before", {}};
    ControlArray<TextBox> Txt{this, "Txt", 3, [](int i) { return TextBox::Design{.at = {.Top = 100.0 * i}}; }};
    ControlArray<Row> Rows{this, 2};
    TextBox After{this, "After", {}};

    EventLog log;

private:
    void TxtUSec_Change() { log.emplace_back("TxtUSec_Change"); }
};

class ControlArrayTest : public RuntimeTest {
protected:
    Tableau& panel = runtime.get<Tableau>();
};

TEST_F(ControlArrayTest, hasOneDesignAnElement)
{
    EXPECT_EQ(panel.Txt.count(), 3);
    EXPECT_EQ(Double{panel.Txt(2).Top}, 200);
}

TEST_F(ControlArrayTest, faultsOutsideItsBounds)
{
    EXPECT_EQ(faultOf([&] { panel.Txt(3); }), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(faultOf([&] { panel.Txt(-1); }), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(faultOf([&] { panel.Rows(2); }), FaultKind::SubscriptOutOfRange);
}

TEST_F(ControlArrayTest, namesItsElementsByTheirIndex)
{
    EXPECT_EQ(panel.find("Txt(1)"), &panel.Txt(1));
    EXPECT_EQ(panel.find("Txt"), nullptr);
    EXPECT_EQ(panel.find("TxtUSec(0)"), &panel.Rows(0).TxtUSec);
}

TEST_F(ControlArrayTest, standsOnTheFormRowAfterRow)
{
    EventLog names;
    for (const Control* control : panel.controls())
        names.push_back(control->name());
    EXPECT_EQ(names,
        (EventLog{"Before", "Txt(0)", "Txt(1)", "Txt(2)", "Lbl(0)", "TxtUSec(0)", "Lbl(1)", "TxtUSec(1)", "After"}));
}

TEST_F(ControlArrayTest, isTypedInLikeAnyField)
{
    panel.Show();
    user.type(panel.Txt(2), "5");
    EXPECT_EQ(panel.Txt(2).Text, "5");
    user.type(panel.Rows(1).TxtUSec, "5");
    EXPECT_EQ(panel.Rows(1).TxtUSec.Text, "25");
    EXPECT_EQ(panel.log, EventLog{"TxtUSec_Change"});
}

} // namespace
} // namespace ondelis
