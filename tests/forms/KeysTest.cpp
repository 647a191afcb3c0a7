#include "Support.h"

namespace ondelis {
namespace {

/// A field that records the keys it sees, a short one, and a bar over the whole range.
class Clavier final : public FeuilleCalcul {
public:
    explicit Clavier(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Clavier", .Caption = "", .Width = 6000, .Height = 4000}}
    {
    }

    TextBox TxtA{this, "TxtA", {}, {}, &Clavier::TxtA_KeyPress};
    TextBox TxtCourt{this, "TxtCourt", {.MaxLength = 3}};
    TextBox TxtRes{this, "TxtRes", {.Locked = true}};
    TextBox TxtCache{this, "TxtCache", {.Visible = false}};
    ListBox Liste{this, "Liste", {.Items = {"nF"}}};
    HScrollBar Barre{this, "Barre", {.Min = -32768, .Max = 32767}};
    HScrollBar Petite{this, "Petite", {.Min = 0, .Max = 10}};
    CommandButton Bouton{this, "Bouton", {}};
    OptionButton Choix{this, "Choix", {}};
    Label LblA{this, "LblA", {}};

    std::vector<int> keys;

private:
    void TxtA_KeyPress(Integer& KeyAscii) { keys.push_back(KeyAscii.value()); }
};

class KeysTest : public RuntimeTest {
protected:
    KeysTest()
    {
        panel.Show();
        host.log.clear();
    }
    Clavier& panel = runtime.get<Clavier>();
};

TEST_F(KeysTest, aKeyIsTheCodePointOfItsCharacter)
{
    user.type(panel.TxtA, "aéД€");
    EXPECT_EQ(panel.keys, (std::vector<int>{0x61, 0xE9, 0x414, 0x20AC}));
}

TEST_F(KeysTest, theLastCharacterThatFitsInAnIntegerIsItself)
{
    user.type(panel.TxtA, "\u7FFE\u7FFF\u8000");
    EXPECT_EQ(panel.keys, (std::vector<int>{32766, 32767, '?'}));
}

TEST_F(KeysTest, aLetterIsReplacedByOneThatBeginsWithTheSameByte)
{
    panel.TxtCourt.Text = "ééé";
    user.edit(panel.TxtCourt, "ééè", "");
    EXPECT_EQ(panel.TxtCourt.Text, "ééè");
}

TEST_F(KeysTest, nothingLandsInFrontOfTheSameLettersInAFullField)
{
    panel.TxtCourt.Text = "111";
    user.edit(panel.TxtCourt, "1", "111");
    EXPECT_EQ(panel.TxtCourt.Text, "111");
}

TEST_F(KeysTest, backspaceAndPasteGiveTheFieldTheKeyboard)
{
    user.backspace(panel.TxtA);
    EXPECT_EQ(host.log, EventLog{"focus TxtA"});
    user.replace(panel.TxtCourt, "");
    EXPECT_EQ(host.log, (EventLog{"focus TxtA", "focus TxtCourt"}));
}

TEST_F(KeysTest, aClickGivesTheKeyboard)
{
    user.click(panel.Bouton);
    EXPECT_EQ(host.log, EventLog{"focus Bouton"});
    user.click(panel.Choix);
    EXPECT_EQ(runtime.focused(), &panel.Choix);
}

TEST_F(KeysTest, aLetterIsTakenOutOfATooLongFieldAndNoneComesForIt)
{
    panel.TxtCourt.Text = "éééé";
    user.edit(panel.TxtCourt, "éééè", "");
    EXPECT_EQ(panel.TxtCourt.Text, "ééé");
}

TEST_F(KeysTest, aBarReachesBothEndsOfTheRange)
{
    EXPECT_FALSE(user.move(panel.Barre, -32768).has_value());
    EXPECT_EQ(panel.Barre.Value, -32768);
    EXPECT_FALSE(user.move(panel.Barre, 32767).has_value());
    EXPECT_EQ(panel.Barre.Value, 32767);
    for (const int beyond : {-32769, 32768})
        EXPECT_TRUE(user.move(panel.Barre, beyond).has_value()) << beyond;
    EXPECT_EQ(panel.Barre.Value, 32767);
    EXPECT_FALSE(runtime.ended());
}

TEST_F(KeysTest, aRefusalSaysWhy)
{
    EXPECT_EQ(user.type(panel.TxtRes, "1"), "the field is locked");
    EXPECT_EQ(user.type(panel.TxtCache, "1"), "the control is hidden");
    EXPECT_EQ(user.focus(panel.LblA), "the control takes no keyboard");
    EXPECT_EQ(user.choose(panel.Liste, 1), "the list has no such row");
    EXPECT_EQ(user.move(panel.Petite, 11), "the bar does not reach that value");
}

TEST_F(KeysTest, aRefusalOfAPanelOffScreenSaysSo)
{
    panel.Hide();
    EXPECT_EQ(user.type(panel.TxtA, "1"), "the panel is not on screen");
    EXPECT_EQ(user.close(panel), "the panel is not on screen");
}

TEST_F(KeysTest, aRefusalAfterTheEndSaysSo)
{
    runtime.close();
    EXPECT_EQ(user.type(panel.TxtA, "1"), "the program has ended");
    EXPECT_EQ(user.close(panel), "the program has ended");
}

} // namespace
} // namespace ondelis
