#include "Support.h"
#include "kit/Text.h"

namespace ondelis {
namespace {

class Saisie final : public FeuilleCalcul {
public:
    explicit Saisie(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Saisie", .Caption = "", .Width = 6000, .Height = 4000}}
    {
    }

    TextBox TxtA{this, "TxtA", {}, &Saisie::TxtA_Change, &Saisie::TxtA_KeyPress};
    TextBox TxtCourt{this, "TxtCourt", {.MaxLength = 3}, &Saisie::TxtCourt_Change, &Saisie::TxtCourt_KeyPress};
    TextBox TxtRes{this, "TxtRes", {.Text = "1", .Locked = true}};
    TextBox TxtEfface{this, "TxtEfface", {}, {}, &Saisie::TxtEfface_KeyPress};
    TextBox TxtRemis{this, "TxtRemis", {}, {}, &Saisie::TxtRemis_KeyPress};
    TextBox TxtLignes{this, "TxtLignes", {.multiLine = true}};
    Label LblA{this, "LblA", {}};
    Shape Cadre{this, "Cadre", {}};
    MaskEdBox MebIp{this, "MebIp", {}};

    EventLog log;
    bool hideAtChange = false;

private:
    void TxtA_Change()
    {
        log.push_back("text " + std::string{TxtA.Text});
        if (hideAtChange)
            TxtA.Visible = false;
    }
    void TxtA_KeyPress(Integer& KeyAscii) { log.push_back("key " + std::to_string(KeyAscii.value())); }
    void TxtCourt_Change() { log.push_back("court " + std::string{TxtCourt.Text}); }
    void TxtCourt_KeyPress(Integer& /*KeyAscii*/) { log.emplace_back("key"); }
    /// Takes the last character away itself, and faults on an empty field.
    void TxtEfface_KeyPress(Integer& KeyAscii)
    {
        if (KeyAscii == 8)
            TxtEfface.Text = ondelis::Left(TxtEfface.Text, Len(TxtEfface.Text) - 1);
    }
    /// Puts the field back whatever the key is.
    void TxtRemis_KeyPress(Integer& /*KeyAscii*/) { TxtRemis.Text = "100"; }
};

class UserTest : public RuntimeTest {
protected:
    UserTest()
    {
        panel.Show();
        host.log.clear();
    }
    Saisie& panel = runtime.get<Saisie>();
};

TEST_F(UserTest, eachKeyIsSeenBeforeItEntersTheField)
{
    user.type(panel.TxtA, "1,5");
    EXPECT_EQ(panel.log, (EventLog{"key 49", "text 1", "key 44", "text 1,", "key 53", "text 1,5"}));
}

TEST_F(UserTest, anEmptyTextIsNoKeyAtAll)
{
    EXPECT_FALSE(user.type(panel.TxtA, "").has_value());
    EXPECT_TRUE(panel.log.empty());
}

TEST_F(UserTest, aCharacterIsOneKeyHoweverManyBytesItHas)
{
    user.type(panel.TxtA, "éΩ");
    EXPECT_EQ(panel.log, (EventLog{"key 233", "text é", "key 937", "text éΩ"}));
}

TEST_F(UserTest, aKeyBeyondTheRangeOfIntegerReadsAsAQuestionMark)
{
    user.type(panel.TxtA, "\U0001F4FB");
    EXPECT_EQ(panel.log, (EventLog{"key 63", "text \U0001F4FB"}));
}

TEST_F(UserTest, backspaceTakesAWholeCharacter)
{
    user.type(panel.TxtA, "aé");
    panel.log.clear();
    user.backspace(panel.TxtA);
    user.backspace(panel.TxtA);
    EXPECT_EQ(panel.log, (EventLog{"key 8", "text a", "key 8", "text "}));
}

TEST_F(UserTest, backspaceInAnEmptyFieldIsAKeyOnly)
{
    user.backspace(panel.TxtA);
    EXPECT_EQ(panel.log, EventLog{"key 8"});
}

TEST_F(UserTest, backspaceTakesNothingMoreWhereTheHandlerRewroteTheText)
{
    user.type(panel.TxtEfface, "12");
    user.backspace(panel.TxtEfface);
    EXPECT_EQ(panel.TxtEfface.Text, "1");
    user.backspace(panel.TxtEfface);
    EXPECT_EQ(panel.TxtEfface.Text, "");
    user.backspace(panel.TxtEfface);
    EXPECT_EQ(host.fault, FaultKind::InvalidArgument);
}

TEST_F(UserTest, aRewrittenTextStandsUnderBackspaceAndGoesOnUnderAKey)
{
    user.replace(panel.TxtRemis, "7");
    user.backspace(panel.TxtRemis);
    EXPECT_EQ(panel.TxtRemis.Text, "100");
    user.type(panel.TxtRemis, "5");
    EXPECT_EQ(panel.TxtRemis.Text, "1005");
}

TEST_F(UserTest, atMaxLengthTheKeyIsSeenAndNothingLands)
{
    user.type(panel.TxtCourt, "éé12");
    EXPECT_EQ(panel.TxtCourt.Text, "éé1");
    EXPECT_EQ(panel.log, (EventLog{"key", "court é", "key", "court éé", "key", "court éé1", "key"}));
}

TEST_F(UserTest, maxLengthCutsAPasteAndNotAStore)
{
    user.replace(panel.TxtCourt, "éééé");
    EXPECT_EQ(panel.TxtCourt.Text, "ééé");
    panel.TxtCourt.Text = "long texte";
    EXPECT_EQ(panel.TxtCourt.Text, "long texte");
    user.type(panel.TxtCourt, "x");
    EXPECT_EQ(panel.TxtCourt.Text, "long texte");
    user.backspace(panel.TxtCourt);
    EXPECT_EQ(panel.TxtCourt.Text, "long text");
}

TEST_F(UserTest, anEditTakesCharactersOutOfALongTextAndCutsWhatItPutsIn)
{
    struct Edit {
        const char* toCaret;
        const char* tail;
        const char* stands;
    };
    panel.TxtCourt.Text = "élongé";
    for (const Edit& edit : std::initializer_list<Edit>{{"él", "ngé", "élngé"}, {"élx", "gé", "élgé"}, {"è", "é", "èé"},
             {"èxyz", "é", "èxé"}, {"", "", ""}, {"1234", "", "123"}}) {
        panel.log.clear();
        user.edit(panel.TxtCourt, edit.toCaret, edit.tail);
        EXPECT_EQ(panel.TxtCourt.Text, edit.stands);
        EXPECT_EQ(panel.log, (EventLog{std::string{"court "} + edit.stands}));
    }
}

TEST_F(UserTest, aFieldOfOneLineTakesTheFirstLineOfAPaste)
{
    struct Paste {
        const char* text;
        const char* stands;
    };
    for (const Paste& paste : std::initializer_list<Paste>{
             {"1\n2", "1"}, {"12\r\n", "12"}, {"3\r4", "3"}, {"\n5", ""}, {"6\t7 8", "6\t7 8"}}) {
        user.replace(panel.TxtA, paste.text);
        EXPECT_EQ(panel.TxtA.Text, paste.stands);
    }
    user.replace(panel.TxtCourt, "12\n456");
    EXPECT_EQ(panel.TxtCourt.Text, "12");
    user.replace(panel.TxtLignes, "1\r\n2");
    EXPECT_EQ(panel.TxtLignes.Text, "1\r\n2");
}

TEST_F(UserTest, anEditPutsInTheFirstLineOnly)
{
    panel.TxtA.Text = "2";
    user.edit(panel.TxtA, "1\n2", ""); // over the whole of it
    EXPECT_EQ(panel.TxtA.Text, "1");
    panel.TxtA.Text = "19";
    user.edit(panel.TxtA, "12\r\n9", "9");
    EXPECT_EQ(panel.TxtA.Text, "129");
    panel.TxtA.Text = "11";
    user.edit(panel.TxtA, "11", "1");
    EXPECT_EQ(panel.TxtA.Text, "111");
    user.edit(panel.TxtLignes, "1\n2", "");
    EXPECT_EQ(panel.TxtLignes.Text, "1\n2");
}

TEST_F(UserTest, aLineBreakThatCodeHasStoredStays)
{
    panel.TxtA.Text = "un\ndeux";
    EXPECT_EQ(panel.TxtA.Text, "un\ndeux");
    user.edit(panel.TxtA, "un\nxy\nz", "eux");
    EXPECT_EQ(panel.TxtA.Text, "un\nxyeux");
}

TEST_F(UserTest, theEnterKeyPutsNothingIntoAFieldOfOneLine)
{
    user.type(panel.TxtA, "1\r\n2");
    EXPECT_EQ(panel.log, (EventLog{"key 49", "text 1", "key 50", "text 12"}));
    user.type(panel.TxtLignes, "1\n2");
    EXPECT_EQ(panel.TxtLignes.Text, "1\n2");
}

TEST_F(UserTest, noKeyEntersAControlCharacter)
{
    user.type(panel.TxtA, "1\t2\x01");
    EXPECT_EQ(panel.log, (EventLog{"key 49", "text 1", "key 50", "text 12"}));
    user.type(panel.TxtLignes, "1\t2");
    EXPECT_EQ(panel.TxtLignes.Text, "12");
}

TEST_F(UserTest, aPasteIsOneChangeAndNoKey)
{
    user.replace(panel.TxtA, "14.1");
    user.replace(panel.TxtA, "14.1");
    user.replace(panel.TxtA, "");
    EXPECT_EQ(panel.log, (EventLog{"text 14.1", "text "}));
}

TEST_F(UserTest, typingGoesOnWhereTheHandlerLeftTheField)
{
    panel.hideAtChange = true;
    EXPECT_FALSE(user.type(panel.TxtA, "12").has_value());
    EXPECT_EQ(panel.TxtA.Text, "1");
}

TEST_F(UserTest, aLockedFieldRefusesKeysAndPastesButTakesTheKeyboard)
{
    EXPECT_TRUE(user.type(panel.TxtRes, "2").has_value());
    EXPECT_TRUE(user.backspace(panel.TxtRes).has_value());
    EXPECT_TRUE(user.replace(panel.TxtRes, "2").has_value());
    EXPECT_EQ(panel.TxtRes.Text, "1");
    EXPECT_EQ(runtime.focused(), nullptr);
    EXPECT_FALSE(user.focus(panel.TxtRes).has_value());
    EXPECT_EQ(runtime.focused(), &panel.TxtRes);
}

TEST_F(UserTest, aHiddenFieldRefusesEverything)
{
    panel.TxtA.Visible = false;
    EXPECT_TRUE(user.type(panel.TxtA, "2").has_value());
    EXPECT_TRUE(user.backspace(panel.TxtA).has_value());
    EXPECT_TRUE(user.replace(panel.TxtA, "2").has_value());
    EXPECT_TRUE(user.focus(panel.TxtA).has_value());
    EXPECT_TRUE(panel.log.empty());
}

TEST_F(UserTest, aPanelOffScreenRefusesEverythingAndIsNotLoadedByIt)
{
    panel.Hide();
    EXPECT_TRUE(user.type(panel.TxtA, "2").has_value());
    panel.Unload();
    EXPECT_TRUE(user.type(panel.TxtA, "2").has_value());
    EXPECT_TRUE(user.focus(panel.TxtA).has_value());
    EXPECT_FALSE(panel.loaded());
}

TEST_F(UserTest, whatIsOnlyShownTakesNoKeyboard)
{
    EXPECT_TRUE(user.focus(panel.LblA).has_value());
    EXPECT_TRUE(user.focus(panel.Cadre).has_value());
    EXPECT_FALSE(user.focus(panel.MebIp).has_value());
}

TEST_F(UserTest, anActionGivesItsControlTheKeyboardFirst)
{
    user.type(panel.TxtA, "1");
    user.type(panel.TxtA, "2");
    EXPECT_EQ(host.log, (EventLog{"focus TxtA", "control TxtA", "control TxtA"}));
}

TEST_F(UserTest, theViewIsToldWhereTheHandlerRewroteTheText)
{
    EXPECT_FALSE(user.key(panel.TxtA, U'é'));
    EXPECT_EQ(panel.log, EventLog{"key 233"});
    EXPECT_EQ(panel.TxtA.Text, "");
    panel.TxtEfface.Text = "12";
    EXPECT_TRUE(user.key(panel.TxtEfface, 8));
    EXPECT_EQ(panel.TxtEfface.Text, "1");
}

} // namespace
} // namespace ondelis
