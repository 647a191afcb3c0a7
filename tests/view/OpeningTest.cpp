#include <QScreen>

#include "Program.h"
#include "shell/Menu.h"
#include "view/ClientArea.h"

namespace ondelis {
namespace {

/// What a person sees and where the keyboard is after each entry of the menu, on one of the screens that people have:
/// the frame is larger than most of them.
class OpeningTest : public testing::TestWithParam<const MenuEntry*> {
protected:
    static constexpr int titleHeight = 24; // pixels, at least

    static QRect onScreen(const QWidget& widget) { return {widget.mapToGlobal(QPoint{}), widget.size()}; }

    /// What can be seen of the client area, its scroll bars left out.
    static QRect seen(const Program& program)
    {
        return onScreen(*program.view.mainWindow().area().viewport()) & program.view.mainWindow().screen()->geometry();
    }

    /// How much could be seen of it without scroll bars.
    static QSize room(const Program& program)
    {
        const ClientArea& area = program.view.mainWindow().area();
        return (QRect{area.mapToGlobal(QPoint{}), area.contentsRect().size()}
            & program.view.mainWindow().screen()->geometry())
            .size();
    }

    static bool fits(const QSize& size, const QSize& room)
    {
        return size.width() <= room.width() && size.height() <= room.height();
    }

    /// The panels on screen, the one that the entry names first.
    static QList<const PanelWindow*> windows(const Program& program)
    {
        QList<const PanelWindow*> shown;
        for (const FeuilleCalcul* panel : program.desk.loadedPanels())
            if (panel->visible())
                shown.append(&program.window(*panel));
        return shown;
    }

    static const Control* firstControl(const FeuilleCalcul& panel)
    {
        const auto first = std::ranges::find_if(panel.controls(), &Control::focusable);
        return first == panel.controls().end() ? nullptr : *first;
    }

    /// The first field to type into, else the first control.
    static const Control* firstField(const FeuilleCalcul& panel)
    {
        for (Control* const control : panel.controls()) {
            const auto* const box = dynamic_cast<const TextBox*>(control);
            if (control->focusable()
                && (box != nullptr ? !box->Locked : dynamic_cast<const MaskEdBox*>(control) != nullptr))
                return control;
        }
        return firstControl(panel);
    }

    /// Opens the panels of an entry after others have been open, as a person does.
    static void open(Program& program)
    {
        program.pick("MenuPasseHaut");
        program.pick(GetParam()->control);
        program.view.mainWindow().activateWindow(); // a box may have been before it, and there is no window manager
        ASSERT_TRUE(QTest::qWaitForWindowActive(&program.view.mainWindow()));
        QCoreApplication::processEvents();
    }
};

TEST_P(OpeningTest, aPanelThatOpensIsSeen)
{
    const BoxCloser closer;
    Program program;
    open(program);
    const PanelWindow& panel = *windows(program).first();
    QRect all;
    for (const PanelWindow* window : windows(program))
        all |= onScreen(*window);
    if (fits(all.size(), room(program))) {
        EXPECT_TRUE(seen(program).contains(all)) << "there is room for all";
    }
    if (fits(panel.size(), room(program))) {
        EXPECT_TRUE(seen(program).contains(onScreen(panel))) << "there is room for it";
        return;
    }
    const QSize title{std::min(panel.width(), seen(program).width()), titleHeight};
    EXPECT_TRUE(seen(program).contains(QRect{onScreen(panel).topLeft(), title}));
    if (const Control* const first = firstControl(panel.panel())) {
        EXPECT_TRUE(seen(program).contains(onScreen(program.widget(*first))));
    }
}

TEST_P(OpeningTest, itsPlaceStaysAsComputed)
{
    const BoxCloser closer;
    Program program;
    open(program);
    const double left = Double{windows(program).first()->panel().Left}.value();
    const double top = Double{windows(program).first()->panel().Top}.value();
    if (windows(program).size() == 1) { // alone, it is in the middle of the frame
        const FeuilleCalcul& panel = windows(program).first()->panel();
        EXPECT_EQ(left, (19470 - Double{panel.Width}.value()) / 2);
        EXPECT_EQ(top, (15000 - Double{panel.Height}.value()) / 2);
    } else if (GetParam()->control != "mnuDipoleRaccourci") { // the places of all other pairs are whole numbers
        EXPECT_TRUE(left >= 800 && left <= 3000) << left;
        EXPECT_TRUE(top >= 1500 && top <= 3000) << top;
    }
}

TEST_P(OpeningTest, itHasTheKeyboard)
{
    const BoxCloser closer;
    Program program;
    open(program);
    const PanelWindow& panel = *windows(program).first();
    EXPECT_EQ(program.view.mainWindow().area().activeSubWindow(), &panel);
    const Control* const first = firstField(panel.panel());
    EXPECT_EQ(program.desk.focused(), first);
    if (first == nullptr)
        return;
    const QWidget& widget = program.widget(*first);
    EXPECT_TRUE(widget.hasFocus());
    EXPECT_TRUE(seen(program).contains(onScreen(widget)));
    if (const auto* const field = qobject_cast<const QLineEdit*>(&widget)) {
        EXPECT_EQ(field->selectedText(), field->text());
    }
}

INSTANTIATE_TEST_SUITE_P(Panels, OpeningTest, testing::ValuesIn(panelEntries()), nameOfRow<const MenuEntry*>);

} // namespace
} // namespace ondelis
