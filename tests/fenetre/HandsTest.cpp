#include <QLineEdit>
#include <QRadioButton>

#include "Support.h"

namespace ondelis::fenetre {
namespace {

/// What a person does with mouse and keys, and what they cannot do.
class HandsTest : public WindowTest { };

TEST_F(HandsTest, reachNothingThatIsNotOnScreen)
{
    EXPECT_EQ(refusal("menu MenuQuitter"), "the program has not started");
    say("start");
    EXPECT_EQ(refusal("menu Rien"), "the menu has no such entry");
    EXPECT_EQ(refusal("close GammaMatch"), "the panel is not on screen");
    say("menu MenuCircuitOscillant");
    EXPECT_EQ(refusal("type CircuitsOscillants.TxtRien 1"), "the panel has no such control");
    EXPECT_EQ(refusal("type CircuitsOscillants.TxtResonance 1"), "the control is hidden");
    EXPECT_EQ(refusal("select CircuitsOscillants.LstFreq 9"), "the list has no such row");
    EXPECT_EQ(refusal("click CircuitsOscillants.TxtFreq"), "the control is of another class");
}

TEST_F(HandsTest, writeIntoNoLockedField)
{
    say("start");
    say("menu mnuGammaMatch");
    EXPECT_EQ(refusal("type GammaMatch.TxtGamma 1"), "the field is locked");
    EXPECT_EQ(refusal("replace GammaMatch.TxtGamma 1"), "the field is locked");
    EXPECT_EQ(refusal("hold GammaMatch.TxtGamma backspace 3"), "the field is locked");
}

TEST_F(HandsTest, reachNothingThatLiesUnderSomethingElse)
{
    say("start");
    say("menu MenuCircuitOscillant"); // another field has the keyboard
    auto& field = widget<QLineEdit>("TxtRes");
    QWidget cover{field.parentWidget()};
    cover.setGeometry(field.geometry());
    cover.show();
    EXPECT_EQ(refusal("replace CircuitsOscillants.TxtRes 1"), "something else lies there");
    cover.hide();
    EXPECT_EQ(refusal("replace CircuitsOscillants.TxtRes 1"), "");
}

TEST_F(HandsTest, bringAPanelForwardThatLiesUnderAnother)
{
    say("start");
    say("menu menuFiltreEliminationDeBande");
    say("move CalculNombreSpires 1860 1695"); // over the whole of the other
    EXPECT_EQ(refusal("replace FiltreEliminationBande.TxtFreq2 3"), "");
    EXPECT_EQ(seen("FiltreEliminationBande.TxtFreq2.Text"), "3");
}

TEST_F(HandsTest, typeWhereTheKeyboardIs)
{
    say("start");
    say("menu MenuCircuitOscillant");
    say("select CircuitsOscillants.LstCalcul 6");
    say("type CircuitsOscillants.TxtFreq 14.1");
    EXPECT_EQ(QApplication::focusWidget(), &widget("TxtFreq"));
    EXPECT_EQ(widget<QLineEdit>("TxtFreq").text(), QStringLiteral("14.1"));
    EXPECT_EQ(refusal("focus CircuitsOscillants.LstCapa"), "");
    EXPECT_EQ(QApplication::focusWidget(), &widget("LstCapa"));
    EXPECT_TRUE(body.agreesOnKeyboard());
}

TEST_F(HandsTest, giveAnOptionTheKeyboardWithoutChoosingIt)
{
    say("start");
    say("menu menuFiltrePasseBas");
    for (const char* const name : {"OptmmH", "OptmH", "OptmicroH"})
        if (auto* const option = mainWindow().findChild<QRadioButton*>(QString::fromLatin1(name)))
            if (!option->isChecked() && option->isVisible()) {
                EXPECT_EQ(refusal(std::string{"focus CalculNombreSpires."} + name), "");
                EXPECT_TRUE(option->hasFocus());
                EXPECT_FALSE(option->isChecked());
                return;
            }
    FAIL() << "each option is chosen";
}

TEST_F(HandsTest, takeAnotherScreen)
{
    EXPECT_EQ(refusal("screen 24000 18000"), "");
    say("start");
    EXPECT_EQ(seen("MDIOndelis.Left"), 2265);
    EXPECT_EQ(seen("MDIOndelis.Top"), 1500);
}

TEST_F(HandsTest, readTheFaultFromItsBox)
{
    say("start");
    say("menu MenuCircuitOscillant");
    const pilote::Json reply = say("type CircuitsOscillants.TxtFreq 1e999");
    EXPECT_EQ(reply["fault"], "overflow");
    EXPECT_EQ(reply["ended"], true);
    EXPECT_EQ(refusal("menu MenuCircuitOscillant"), "the program has ended");
}

} // namespace
} // namespace ondelis::fenetre
