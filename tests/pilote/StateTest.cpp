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

    Frame Autour{this, "Autour", {.Caption = "Structure", .picture = "lpda"}};
    Label LblA{this, "LblA",
        {.Caption = "Fréquence",
            .at = {240, 600, 1000, 240},
            .ForeColor = 0x0000FF,
            .align = Align::Right,
            .font = {.size = 8, .bold = true},
            .container = &Autour}};
    Label LblB{this, "LblB", {}};
    TextBox TxtA{this, "TxtA",
        {.Text = "1", .at = {.Top = 240}, .BackColor = 0xC0E0FF, .Locked = true, .MaxLength = 5, .label = &LblA}};
    TextBox TxtB{this, "TxtB", {.multiLine = true, .align = Align::Center, .font = {.size = 14}, .Visible = false}};
    ListBox LstA{this, "LstA", {.Items = {"nF", "pF"}}};
    Frame Cadre{this, "Cadre", {.Caption = "Unité"}};
    OptionButton OptA{this, "OptA", {.Caption = "L", .Value = true, .ForeColor = 0x0000FF}};
    CommandButton BtnA{this, "BtnA", {.Caption = "Calculer", .Visible = false}};
    HScrollBar HscrA{this, "HscrA", {.Min = 10, .Max = -5, .Value = 3, .SmallChange = 2, .LargeChange = 5}};
    VScrollBar VscrA{this, "VscrA", {}};
    PictureBox Picture1{this, "Picture1", {.picture = "thomson"}};
    Image Image1{this, "Image1", {.picture = "bobine", .Visible = false, .container = &Autour}};
    Line Line1{this, "Line1", {.X1 = 1.5, .Y1 = 2, .X2 = -3, .Y2 = 0.1, .BorderColor = 0xD08C4A, .BorderWidth = 7}};
    Shape Shape1{this, "Shape1", {}};
    MaskEdBox MebIp{this, "MebIp", {.BackColor = 0xFFFFC0}};
};

class StateTest : public testing::Test {
protected:
    static void expectState(Control& control, const char* wanted)
    {
        EXPECT_EQ(State{}.see(control), Json::parse(wanted));
    }

    ScriptedSurroundings world;
    Desk desk{world};
    Echantillon& panel = desk.get<Echantillon>();
};

TEST_F(StateTest, hasEveryMemberOfEachClass)
{
    panel.LstA.ListIndex = 1;
    expectState(panel.LblA, R"({"kind":"Label","Caption":"Fréquence","Visible":true,"Top":600,"ForeColor":255,
        "Alignment":"right","FontSize":8,"FontBold":true,"Frame":"Autour"})");
    expectState(panel.LblB, R"({"kind":"Label","Caption":"","Visible":true,"Top":0,"ForeColor":0,
        "Alignment":"left","FontSize":9,"FontBold":false,"Frame":""})");
    expectState(panel.TxtA, R"({"kind":"TextBox","Text":"1","BackColor":12640511,"ForeColor":0,"Locked":true,
        "Visible":true,"Top":240,"MaxLength":5,"MultiLine":false,"Label":"LblA","Alignment":"left","FontSize":9,
        "FontBold":false,"Frame":""})");
    expectState(panel.TxtB, R"({"kind":"TextBox","Text":"","BackColor":16777215,"ForeColor":0,"Locked":false,
        "Visible":false,"Top":0,"MaxLength":0,"MultiLine":true,"Label":"","Alignment":"center","FontSize":14,
        "FontBold":false,"Frame":""})");
    expectState(panel.LstA, R"({"kind":"ListBox","ListIndex":1,"ListCount":2,"Text":"pF","Items":["nF","pF"],
        "Visible":true,"BackColor":16777215,"Label":"","Frame":""})");
    expectState(panel.Cadre, R"({"kind":"Frame","Caption":"Unité","Picture":"","Visible":true,"Frame":""})");
    expectState(panel.Autour, R"({"kind":"Frame","Caption":"Structure","Picture":"lpda","Visible":true,"Frame":""})");
    expectState(
        panel.OptA, R"({"kind":"OptionButton","Caption":"L","Value":true,"ForeColor":255,"Visible":true,"Frame":""})");
    expectState(
        panel.BtnA, R"({"kind":"CommandButton","Caption":"Calculer","Value":false,"Visible":false,"Frame":""})");
    expectState(panel.HscrA, R"({"kind":"HScrollBar","Value":3,"Min":10,"Max":-5,"SmallChange":2,"LargeChange":5,
        "Visible":true,"Label":"","Frame":""})");
    expectState(panel.VscrA, R"({"kind":"VScrollBar","Value":0,"Min":0,"Max":32767,"SmallChange":1,"LargeChange":1,
        "Visible":true,"Label":"","Frame":""})");
    expectState(panel.Picture1, R"({"kind":"PictureBox","Picture":"thomson","Visible":true,"Frame":""})");
    expectState(panel.Image1, R"({"kind":"Image","Picture":"bobine","Visible":false,"Frame":"Autour"})");
    expectState(panel.Shape1, R"({"kind":"Shape","Frame":""})");
    expectState(
        panel.MebIp, R"({"kind":"MaskEdBox","Text":"","Display":"","BackColor":16777152,"Label":"","Frame":""})");
}

TEST_F(StateTest, hasTheCoordinatesOfALineAsSingles)
{
    expectState(panel.Line1, R"({"kind":"Line","X1":1.5,"Y1":2,"X2":-3,"Y2":0.10000000149011612,
        "BorderColor":13667402,"BorderWidth":7,"Visible":true,"Frame":""})");
}

TEST_F(StateTest, hasTheDisplayOfAMaskedBox)
{
    const ScopedRegion comma{{.decimal = ",", .thousands = "."}};
    panel.MebIp.Text = "0,12";
    expectState(panel.MebIp,
        R"({"kind":"MaskEdBox","Text":"0,12","Display":"1,200E-01","BackColor":16777152,"Label":"","Frame":""})");
}

TEST_F(StateTest, hasTheControlsThatTheTabKeyLeadsTo)
{
    panel.Show();
    EXPECT_EQ(State{}.see(panel)["TabOrder"], Json({"TxtA", "LstA", "OptA", "HscrA", "VscrA", "MebIp"}));
    panel.BtnA.Visible = true;
    EXPECT_EQ(State{}.see(panel)["TabOrder"], Json({"TxtA", "LstA", "OptA", "BtnA", "HscrA", "VscrA", "MebIp"}));
}

TEST_F(StateTest, hasTheControlWithTheKeyboard)
{
    const MDIOndelis frame{desk};
    EXPECT_EQ(State{}.see(frame)["Focus"], "");
    panel.Show();
    panel.TxtA.SetFocus();
    EXPECT_EQ(State{}.see(frame)["Focus"], "Echantillon.TxtA");
}

TEST_F(StateTest, hasTheLoadedPanelsAlone)
{
    const MDIOndelis frame{desk};
    EXPECT_EQ(seeAll(State{}, frame)["panels"], Json::object());
    panel.Hide();
    panel.Left = 100.5;
    const Json state = seeAll(State{}, frame)["panels"]["Echantillon"];
    EXPECT_EQ(state["visible"], false);
    EXPECT_EQ(state["Left"], 100.5);
    EXPECT_EQ(state["Caption"], "Échantillon");
    EXPECT_EQ(state["controls"].size(), 16U);
}

TEST_F(StateTest, hasTheTreeOfTheMenu)
{
    const MDIOndelis frame{desk};
    const Json timers = seeAll(State{}, frame)["menus"][4];
    EXPECT_EQ(timers["Caption"], "Le timer 555");
    EXPECT_EQ(timers["Entries"][0], Json::parse(R"({"Name":"MenuAstable","Caption":"Astable"})"));
}

} // namespace
} // namespace ondelis::pilote
