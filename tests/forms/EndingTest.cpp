#include "Support.h"

namespace ondelis {
namespace {

/// Buttons whose handlers wait, fault and end, each within another one.
class Fins final : public FeuilleCalcul {
public:
    explicit Fins(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Fins", .Caption = "", .Width = 6000, .Height = 4000}}
    {
    }

    CommandButton BtnBoite{this, "BtnBoite", {}, &Fins::BtnBoite_Click};
    CommandButton BtnAttente{this, "BtnAttente", {}, &Fins::BtnAttente_Click};
    CommandButton BtnFaute{this, "BtnFaute", {}, &Fins::BtnFaute_Click};
    CommandButton BtnFin{this, "BtnFin", {}, &Fins::BtnFin_Click};
    TextBox TxtA{this, "TxtA", {}, &Fins::TxtA_Change, &Fins::TxtA_KeyPress};

    EventLog log;
    std::function<void()> atChange = [] {};
    std::function<void()> atLoad = [] {};
    bool boxAtKey = false;

    Answer ask(const std::string& prompt, int buttons, const std::string& title)
    {
        return MsgBox(prompt, buttons, title);
    }

private:
    void Form_Load() override { atLoad(); }
    void BtnBoite_Click()
    {
        MsgBox("Un message");
        log.emplace_back("after the box");
    }
    void BtnAttente_Click()
    {
        DoEvents();
        log.emplace_back("after the events");
    }
    void BtnFaute_Click()
    {
        log.push_back(std::to_string((Double{1} / Double{0}).value()));
        log.emplace_back("after the fault");
    }
    void BtnFin_Click()
    {
        runtime().End();
        log.emplace_back("after the end");
    }
    void TxtA_Change()
    {
        atChange();
        log.emplace_back("after the change");
    }
    void TxtA_KeyPress(Integer& /*KeyAscii*/)
    {
        if (boxAtKey)
            MsgBox("Une touche");
    }
};

/// Shows a box while it loads.
class Bavarde final : public FeuilleCalcul {
public:
    explicit Bavarde(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Bavarde", .Caption = "", .Width = 6000, .Height = 4000}}
    {
    }

    TextBox TxtA{this, "TxtA", {}};

private:
    void Form_Load() override
    {
        MsgBox("Bonjour");
        TxtA.Text = "chargée";
    }
};

class EndingTest : public RuntimeTest {
protected:
    EndingTest() { panel.Show(); }
    Fins& panel = runtime.get<Fins>();
};

TEST_F(EndingTest, aFaultIsShownAndEndsTheProgramWithStatusOne)
{
    user.click(panel.BtnFaute);
    EXPECT_EQ(host.fault, FaultKind::DivisionByZero);
    EXPECT_EQ(host.endings, std::vector<int>{1});
    EXPECT_TRUE(runtime.ended());
    EXPECT_TRUE(panel.log.empty());
}

TEST_F(EndingTest, aFaultLeavesAllNestedHandlers)
{
    panel.atChange = [this] { panel.BtnFaute.Value = true; };
    user.type(panel.TxtA, "ab");
    EXPECT_EQ(panel.TxtA.Text, "a");
    EXPECT_TRUE(panel.log.empty());
    EXPECT_EQ(host.endings, std::vector<int>{1});
}

TEST_F(EndingTest, endLeavesAllNestedHandlersWithStatusZero)
{
    panel.atChange = [this] { panel.BtnFin.Value = true; };
    user.type(panel.TxtA, "ab");
    EXPECT_TRUE(panel.log.empty());
    EXPECT_EQ(host.fault, std::nullopt);
    EXPECT_EQ(host.endings, std::vector<int>{0});
}

TEST_F(EndingTest, nothingHappensAfterTheEnd)
{
    runtime.close();
    EXPECT_TRUE(user.click(panel.BtnBoite).has_value());
    EXPECT_TRUE(user.type(panel.TxtA, "x").has_value());
    EXPECT_TRUE(user.close(panel).has_value());
    runtime.perform([] { FAIL() << "performed after the end"; });
    runtime.close();
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(host.endings, std::vector<int>{0});
}

TEST_F(EndingTest, aBoxTellsItsPromptButtonsAndTitleAndGivesTheAnswer)
{
    host.onBox = [](const MessageBox&) { return Answer::No; };
    EXPECT_EQ(panel.ask("Encore\tun ?\nVraiment ?", 4, "Titre"), Answer::No);
    EXPECT_EQ(host.boxes.back().prompt, "Encore\tun ?\nVraiment ?");
    EXPECT_EQ(host.boxes.back().buttons, 4);
    EXPECT_EQ(host.boxes.back().title, "Titre");
}

TEST_F(EndingTest, aBoxWithOneButtonBearsTheTitleOfTheApplication)
{
    user.click(panel.BtnBoite);
    EXPECT_EQ(host.boxes.back().buttons, 0);
    EXPECT_EQ(host.boxes.back().title, "Ondelis");
}

TEST_F(EndingTest, aBoxHoldsTheHandlerUntilItIsAnswered)
{
    host.onBox = [this](const MessageBox&) {
        EXPECT_TRUE(panel.log.empty());
        return Answer::Ok;
    };
    user.click(panel.BtnBoite);
    EXPECT_EQ(panel.log, EventLog{"after the box"});
}

TEST_F(EndingTest, closingTheProgramWhileABoxIsOpenLeavesTheHandlers)
{
    panel.atChange = [this] { panel.BtnBoite.Value = true; };
    host.onBox = [this](const MessageBox&) {
        runtime.close();
        return Answer::Ok;
    };
    user.type(panel.TxtA, "x");
    EXPECT_TRUE(panel.log.empty());
    EXPECT_EQ(host.endings, std::vector<int>{0});
    EXPECT_EQ(host.fault, std::nullopt);
}

TEST_F(EndingTest, closingThePanelWhileABoxIsOpenLeavesItsHandlers)
{
    panel.atChange = [this] { panel.BtnBoite.Value = true; };
    host.onBox = [this](const MessageBox&) {
        EXPECT_FALSE(user.close(panel).has_value());
        return Answer::Ok;
    };
    user.type(panel.TxtA, "xy");
    EXPECT_TRUE(panel.log.empty());
    EXPECT_FALSE(panel.loaded());
    EXPECT_FALSE(runtime.ended());
    panel.Show();
    EXPECT_EQ(panel.TxtA.Text, "");
}

TEST_F(EndingTest, closingThePanelWhileAKeyIsSeenLetsNoCharacterLand)
{
    panel.boxAtKey = true;
    host.onBox = [this](const MessageBox&) {
        user.close(panel);
        return Answer::Ok;
    };
    user.type(panel.TxtA, "xy");
    EXPECT_FALSE(panel.loaded());
    EXPECT_EQ(host.boxes.size(), 1U);
}

TEST_F(EndingTest, aHandlerOfAnEarlierLoadingDoesNotGoOnInALaterOne)
{
    host.onPending = [this] {
        panel.Unload();
        panel.Show();
    };
    user.click(panel.BtnAttente);
    EXPECT_TRUE(panel.log.empty());
    EXPECT_TRUE(panel.visible());
}

TEST_F(EndingTest, pendingEventsRunWithinTheHandler)
{
    bool once = false;
    host.onPending = [&] {
        if (!std::exchange(once, true))
            user.click(panel.BtnAttente);
        panel.log.emplace_back("pending");
    };
    user.click(panel.BtnAttente);
    EXPECT_EQ(panel.log, (EventLog{"pending", "after the events", "pending", "after the events"}));
}

TEST_F(EndingTest, aFaultOfAPendingEventLeavesTheWaitingHandlersToo)
{
    panel.atChange = [this] { panel.BtnAttente.Value = true; };
    host.onPending = [this] { user.click(panel.BtnFaute); };
    user.type(panel.TxtA, "x");
    EXPECT_TRUE(panel.log.empty());
    EXPECT_EQ(host.fault, FaultKind::DivisionByZero);
    EXPECT_EQ(host.endings, std::vector<int>{1});
}

TEST_F(EndingTest, anEndOfAPendingEventLeavesTheWaitingHandlersToo)
{
    host.onPending = [this] { user.click(panel.BtnFin); };
    user.click(panel.BtnAttente);
    EXPECT_TRUE(panel.log.empty());
    EXPECT_EQ(host.endings, std::vector<int>{0});
}

TEST_F(EndingTest, closingThePanelTwoLoopsDeepLeavesBothHandlers)
{
    int depth = 0;
    host.onPending = [&] {
        if (++depth == 1)
            user.click(panel.BtnAttente);
        else
            user.close(panel);
    };
    user.click(panel.BtnAttente);
    EXPECT_EQ(depth, 2);
    EXPECT_TRUE(panel.log.empty());
    EXPECT_FALSE(panel.loaded());
}

TEST_F(EndingTest, aPanelOpenedByAPendingEventLoadsWholeThoughTheWaitingOneIsGone)
{
    host.onPending = [this] {
        runtime.perform([this] {
            panel.Unload();
            runtime.get<Bavarde>().Show();
        });
    };
    user.click(panel.BtnAttente);
    EXPECT_TRUE(panel.log.empty());
    EXPECT_TRUE(runtime.get<Bavarde>().visible());
    EXPECT_EQ(runtime.get<Bavarde>().TxtA.Text, "chargée");
}

TEST_F(EndingTest, closingTheProgramWhileAPanelLoadsLeavesItsFormLoad)
{
    host.onBox = [this](const MessageBox&) {
        runtime.close();
        return Answer::Ok;
    };
    runtime.perform([this] { runtime.get<Bavarde>().Show(); });
    EXPECT_EQ(runtime.get<Bavarde>().TxtA.Text, "");
    EXPECT_FALSE(runtime.get<Bavarde>().visible());
}

TEST_F(EndingTest, aPanelThatLoadsCannotBeClosedYet)
{
    host.onBox = [this](const MessageBox&) {
        EXPECT_TRUE(user.close(runtime.get<Bavarde>()).has_value());
        return Answer::Ok;
    };
    runtime.perform([this] { runtime.get<Bavarde>().Show(); });
    EXPECT_TRUE(runtime.get<Bavarde>().visible());
}

TEST_F(EndingTest, nothingCanBeDoneWhileTheFaultIsRead)
{
    host.onFault = [this] {
        EXPECT_TRUE(user.click(panel.BtnBoite).has_value());
        runtime.close();
    };
    user.click(panel.BtnFaute);
    EXPECT_TRUE(panel.log.empty());
    EXPECT_EQ(host.endings, std::vector<int>{1});
}

TEST_F(EndingTest, afterTheHandlersAreLeftTheNextActionIsAsEver)
{
    host.onBox = [this](const MessageBox&) {
        user.close(panel);
        return Answer::Ok;
    };
    user.click(panel.BtnBoite);
    host.onBox = [](const MessageBox&) { return Answer::Ok; };
    panel.Show();
    user.click(panel.BtnBoite);
    EXPECT_EQ(panel.log, EventLog{"after the box"});
}

TEST_F(EndingTest, aKeyAfterTheEndIsSeenByNobody)
{
    panel.boxAtKey = true;
    runtime.close();
    EXPECT_FALSE(user.key(panel.TxtA, U'a'));
    EXPECT_TRUE(host.boxes.empty());
}

} // namespace
} // namespace ondelis
