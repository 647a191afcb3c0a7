#include "State.h"

#include <gtest/gtest.h>

#include "ScriptedSurroundings.h"
#include "forms/Controls.h"
#include "kit/Region.h"

namespace ondelis::pilote {
namespace {

/// One control of each class.
class Echantillon final : public FeuilleCalcul {
public:
    explicit Echantillon(Desk& desk)
        : FeuilleCalcul{desk, {.name = "Echantillon", .Caption = "Échantillon", .Width = 6000, .Height = 4000}}
    {
    }

    Label LblA{this, "LblA", {.Caption = "Fréquence", .at = {240, 600, 1000, 240}}};
    TextBox TxtA{this, "TxtA",
        {.Text = "1", .at = {.Top = 240}, .BackColor = 0xC0E0FF, .Locked = true, .MaxLength = 5, .label = &LblA}};
    ListBox LstA{this, "LstA", {.Items = {"nF", "pF"}}};
    Frame Cadre{this, "Cadre", {.Caption = "Unité"}};
    OptionButton OptA{this, "OptA", {.Caption = "L", .Value = true, .ForeColor = 0x0000FF}};
    CommandButton BtnA{this, "BtnA", {.Caption = "Calculer", .Visible = false}};
    HScrollBar HscrA{this, "HscrA", {.Min = 10, .Max = -5, .Value = 3}};
    VScrollBar VscrA{this, "VscrA", {}};
    PictureBox Picture1{this, "Picture1", {}};
    Image Image1{this, "Image1", {.Visible = false}};
    Line Line1{this, "Line1", {.X1 = 1.5, .Y1 = 2, .X2 = -3, .Y2 = 0.1}};
    Shape Shape1{this, "Shape1", {}};
    MaskEdBox MebIp{this, "MebIp", {}};
};

class StateTest : public testing::Test {
protected:
    static void expectState(Control& control, const char* wanted) { EXPECT_EQ(stateOf(control), Json::parse(wanted)); }

    ScriptedSurroundings world;
    Desk desk{world};
    Echantillon& panel = desk.get<Echantillon>();
};

TEST_F(StateTest, HasEveryMemberOfEachClass)
{
    panel.LstA.ListIndex = 1;
    expectState(panel.LblA, R"({"kind":"Label","Caption":"Fréquence","Visible":true,"Top":600})");
    expectState(panel.TxtA, R"({"kind":"TextBox","Text":"1","BackColor":12640511,"ForeColor":0,"Locked":true,
        "Visible":true,"Top":240,"MaxLength":5,"Label":"LblA"})");
    expectState(panel.LstA, R"({"kind":"ListBox","ListIndex":1,"ListCount":2,"Text":"pF","Items":["nF","pF"],
        "Visible":true,"BackColor":16777215,"Label":""})");
    expectState(panel.Cadre, R"({"kind":"Frame","Caption":"Unité","Visible":true})");
    expectState(panel.OptA, R"({"kind":"OptionButton","Caption":"L","Value":true,"ForeColor":255,"Visible":true})");
    expectState(panel.BtnA, R"({"kind":"CommandButton","Caption":"Calculer","Value":false,"Visible":false})");
    expectState(panel.HscrA, R"({"kind":"HScrollBar","Value":3,"Min":10,"Max":-5,"Visible":true,"Label":""})");
    expectState(panel.VscrA, R"({"kind":"VScrollBar","Value":0,"Min":0,"Max":32767,"Visible":true,"Label":""})");
    expectState(panel.Picture1, R"({"kind":"PictureBox","Visible":true})");
    expectState(panel.Image1, R"({"kind":"Image","Visible":false})");
    expectState(panel.Shape1, R"({"kind":"Shape"})");
    expectState(panel.MebIp, R"({"kind":"MaskEdBox","Text":"","Display":"","Label":""})");
}

TEST_F(StateTest, HasTheCoordinatesOfALineAsSingles)
{
    expectState(panel.Line1, R"({"kind":"Line","X1":1.5,"Y1":2,"X2":-3,"Y2":0.10000000149011612,"Visible":true})");
}

TEST_F(StateTest, HasTheDisplayOfAMaskedBox)
{
    const ScopedRegion comma{{.decimal = ",", .thousands = "."}};
    panel.MebIp.Text = "0,12";
    expectState(panel.MebIp, R"({"kind":"MaskEdBox","Text":"0,12","Display":"1,200E-01","Label":""})");
}

TEST_F(StateTest, HasTheLoadedPanelsAlone)
{
    const MDIOndelis frame{desk};
    EXPECT_EQ(stateOfAll(frame)["panels"], Json::object());
    panel.Hide();
    panel.Left = 100.5;
    const Json state = stateOfAll(frame)["panels"]["Echantillon"];
    EXPECT_EQ(state["visible"], false);
    EXPECT_EQ(state["Left"], 100.5);
    EXPECT_EQ(state["Caption"], "Échantillon");
    EXPECT_EQ(state["controls"].size(), 13U);
}

TEST_F(StateTest, HasTheTreeOfTheMenu)
{
    const MDIOndelis frame{desk};
    const Json timers = stateOfAll(frame)["menus"][4];
    EXPECT_EQ(timers["Caption"], "Le timer 555");
    EXPECT_EQ(timers["Entries"][0], Json::parse(R"({"Name":"MenuAstable","Caption":"Astable"})"));
}

} // namespace
} // namespace ondelis::pilote
