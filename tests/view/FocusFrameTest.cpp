#include <QFocusFrame>
#include <QImage>
#include <QMenuBar>

#include "Program.h"
#include "TestPanel.h"
#include "panels/resonance/FormuleDeThomson.h"
#include "shell/Apropos.h"
#include "view/Colors.h"

namespace ondelis {
namespace {

/// The colours of a desktop.
struct DesktopColors {
    const char* name;
    QPalette palette;
};

void PrintTo(const DesktopColors& colors, std::ostream* out)
{
    *out << colors.name;
}

QPalette darkPalette(const QColor& window, const QColor& highlight)
{
    QPalette palette{window};
    palette.setColor(QPalette::Highlight, highlight);
    return palette;
}

/// Which control has the keyboard can be seen: each kind of control, in light and in dark windows.
class FocusFrameTest : public testing::TestWithParam<DesktopColors> {
protected:
    /// The widget and its surroundings on the form, as they are seen.
    static QImage picture(const QWidget& widget, QWidget& form)
    {
        constexpr int around = 3; // pixels: as far as to the next row
        const QRect place{widget.mapTo(&form, QPoint{}), widget.size()};
        return form.grab(place.adjusted(-around, -around, around, around)).toImage();
    }

    static QImage picture(const Program& program, const Control& control)
    {
        return picture(program.widget(control), program.window(control.panel()).form());
    }

    /// How many pixels change clearly, at least 3 to 1, as a share of the widget's outline.
    static double change(const QImage& without, const QImage& with, const QWidget& widget)
    {
        int pixels = 0;
        for (int y = 0; y < with.height(); ++y)
            for (int x = 0; x < with.width(); ++x)
                pixels += contrast(without.pixel(x, y), with.pixel(x, y)) >= 3 ? 1 : 0;
        return static_cast<double>(pixels) / (2 * (widget.width() + widget.height()));
    }

    /// How getting the keyboard changes the look of a control.
    static double mark(const Program& program, const Control& control, const Control& other)
    {
        QWidget& widget = program.widget(control);
        program.widget(other).setFocus();
        const QImage without = picture(program, control);
        widget.setFocus(Qt::TabFocusReason);
        return change(without, picture(program, control), widget);
    }

    void TearDown() override { QApplication::setPalette(QPalette{}); }
};

TEST_P(FocusFrameTest, theMarkIsSeen)
{
    QApplication::setPalette(GetParam().palette);
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] {
        panel.LstR.ListIndex = 1;
        panel.OptY.Value = true;
    });
    for (const Control* control : panel.controls()) {
        if (!control->focusable())
            continue;
        const Control& other = control == &panel.TxtF ? panel.TxtA : panel.TxtF;
        const double seen = mark(program, *control, other);
        EXPECT_GT(seen, 1) << control->name();
    }
}

TEST_F(FocusFrameTest, theFrameIsTheOnlyMark)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] { panel.OptX.Value = true; });
    QWidget& option = program.widget(panel.OptX);
    program.widget(panel.TxtC).setFocus();
    const QImage before = option.grab().toImage();
    option.setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(option.hasFocus());
    EXPECT_EQ(option.grab().toImage(), before);
}

TEST_F(FocusFrameTest, theMarkIsSeenAroundAnOptionWithoutCaption)
{
    Program program;
    program.pick("MenuThomson");
    const auto& panel = program.desk.get<FormuleDeThomson>();
    for (const OptionButton* option : {&panel.OptF, &panel.OptL})
        EXPECT_GT(mark(program, *option, panel.TxtSelf), 1);
}

TEST_P(FocusFrameTest, theButtonOfABoxIsMarked)
{
    QApplication::setPalette(GetParam().palette);
    Program program;
    auto& panel = program.open<TestPanel>();
    panel.onGo = [&] { panel.MsgBox("Continuer ?", 4, "Filtre"); };
    double seen = 0;
    Reader reader{{"Non"}};
    reader.meanwhile = [&] {
        QWidget& box = *QApplication::activeModalWidget();
        ASSERT_TRUE(QTest::qWaitFor([&] { return box.isActiveWindow(); }));
        const QWidget& yes = *box.focusWidget();
        const QImage with = picture(yes, box);
        QTest::keyClick(&box, Qt::Key_Tab);
        seen = change(picture(yes, box), with, yes);
    };
    QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
    EXPECT_GT(seen, 0.5);
}

TEST_F(FocusFrameTest, theHeadingThatAltLeadsToIsMarked)
{
    const Program program;
    QMenuBar& bar = *program.view.mainWindow().menuBar();
    const auto picture = [&] { return bar.grab(bar.actionGeometry(bar.actions().first())).toImage(); };
    const QImage without = picture();
    QWindow* const window = program.view.mainWindow().windowHandle();
    QTest::keyPress(window, Qt::Key_Alt, Qt::AltModifier);
    QTest::keyRelease(window, Qt::Key_Alt);
    const QImage with = picture();
    EXPECT_GE(contrast(without.pixel(2, 2), with.pixel(2, 2)), 3);
}

TEST_F(FocusFrameTest, theMarkStaysWithTheKeyboard)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    PanelWindow& window = program.window(panel);
    const auto& mark = *window.form().findChild<QFocusFrame*>();
    const auto marked = [&] {
        const QWidget* const focused = QApplication::focusWidget();
        return focused != nullptr && window.form().isAncestorOf(focused) && mark.isVisible()
            && mark.widget() == focused;
    };
    EXPECT_TRUE(marked());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier); // from the first to the last
    EXPECT_TRUE(marked());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // and back
    EXPECT_TRUE(marked());
    QTest::mouseClick(&window, Qt::LeftButton, {}, QPoint{window.width() / 2, window.form().y() / 2}); // the title
    EXPECT_TRUE(marked());
    QTest::mouseClick(&window.form(), Qt::LeftButton, {}, window.form().rect().bottomRight());
    EXPECT_TRUE(marked());
    QTest::mouseClick(&window.form(), Qt::RightButton, {}, window.form().rect().bottomRight());
    EXPECT_TRUE(marked());
}

TEST_F(FocusFrameTest, nothingIsMarkedOnAPanelOfTexts)
{
    Program program;
    program.pick("MenuLogiciel");
    EXPECT_FALSE(program.window(program.desk.get<Apropos>()).form().findChild<QFocusFrame*>()->isVisible());
}

TEST_F(FocusFrameTest, thereIsNoMarkWithoutTheKeyboard)
{
    Program program;
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    const auto& panel = program.open<TestPanel>();
    EXPECT_FALSE(program.widget(panel.TxtA).hasFocus());
    const auto marks = program.window(panel).findChildren<QFocusFrame*>();
    ASSERT_EQ(marks.size(), 1);
    EXPECT_FALSE(marks.first()->isVisible());
}

TEST_F(FocusFrameTest, theMarkGoesWithItsControl)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    const auto moveTo = [&](double top) { program.store([&] { panel.TxtA.Top = Double{top}; }); };
    program.widget(panel.TxtF).setFocus();
    const QImage without = picture(program, panel.TxtA);
    program.widget(panel.TxtA).setFocus();
    const QImage with = picture(program, panel.TxtA);
    EXPECT_NE(with, without);
    moveTo(6240);
    EXPECT_EQ(picture(program, panel.TxtA), with);
    program.store([&] { panel.TxtA.Visible = false; });
    EXPECT_FALSE(program.widget(panel.TxtA).hasFocus());
    program.widget(panel.TxtA).setVisible(true); // nothing is left of the mark
    EXPECT_EQ(picture(program, panel.TxtA), without);
}

INSTANTIATE_TEST_SUITE_P(Desktops, FocusFrameTest,
    testing::Values(DesktopColors{"light", {}}, DesktopColors{"dark", darkPalette({45, 45, 45}, {42, 130, 218})},
        DesktopColors{"dark, dim", darkPalette({45, 45, 45}, {60, 60, 90})},
        DesktopColors{"black", darkPalette(Qt::black, {0, 0, 0x80})}),
    nameOfRow<DesktopColors>);

} // namespace
} // namespace ondelis
