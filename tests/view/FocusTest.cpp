#include <QFocusFrame>
#include <QImage>
#include <QMenuBar>

#include "Program.h"
#include "TestPanel.h"
#include "panels/resonance/FormuleDeThomson.h"
#include "shell/Apropos.h"
#include "view/Colors.h"

namespace ondelis {

/// Which control has the keyboard can be seen: each kind of control, in light and in dark windows.
class FocusTest final : public QObject {
    Q_OBJECT

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

    static QPalette darkPalette(const QColor& window, const QColor& highlight)
    {
        QPalette palette{window};
        palette.setColor(QPalette::Highlight, highlight);
        return palette;
    }

    static void addPalettes()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << QPalette{};
        QTest::newRow("dark") << darkPalette({45, 45, 45}, {42, 130, 218});
        QTest::newRow("dark, dim") << darkPalette({45, 45, 45}, {60, 60, 90});
        QTest::newRow("black") << darkPalette(Qt::black, {0, 0, 0x80});
    }

private slots:
    void cleanup() { QApplication::setPalette(QPalette{}); }

    void theMarkIsSeen_data() { addPalettes(); }

    void theMarkIsSeen()
    {
        QFETCH(QPalette, palette);
        QApplication::setPalette(palette);
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
            QVERIFY2(seen > 1, qPrintable(toQString(control->name()) + QStringLiteral(" %1").arg(seen)));
        }
    }

    void theFrameIsTheOnlyMark()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        program.store([&] { panel.OptX.Value = true; });
        QWidget& option = program.widget(panel.OptX);
        program.widget(panel.TxtC).setFocus();
        const QImage before = option.grab().toImage();
        option.setFocus(Qt::TabFocusReason);
        QVERIFY(option.hasFocus());
        QCOMPARE(option.grab().toImage(), before);
    }

    void theMarkIsSeenAroundAnOptionWithoutCaption()
    {
        Program program;
        program.pick("MenuThomson");
        const auto& panel = program.desk.get<FormuleDeThomson>();
        for (const OptionButton* option : {&panel.OptF, &panel.OptL})
            QVERIFY(mark(program, *option, panel.TxtSelf) > 1);
    }

    void theButtonOfABoxIsMarked_data() { addPalettes(); }

    void theButtonOfABoxIsMarked()
    {
        QFETCH(QPalette, palette);
        QApplication::setPalette(palette);
        Program program;
        auto& panel = program.open<TestPanel>();
        panel.onGo = [&] { panel.MsgBox("Continuer ?", 4, "Filtre"); };
        double seen = 0;
        Reader reader{{"Non"}};
        reader.meanwhile = [&] {
            QWidget& box = *QApplication::activeModalWidget();
            QVERIFY(QTest::qWaitFor([&] { return box.isActiveWindow(); }));
            const QWidget& yes = *box.focusWidget();
            const QImage with = picture(yes, box);
            QTest::keyClick(&box, Qt::Key_Tab);
            seen = change(picture(yes, box), with, yes);
        };
        QTest::mouseClick(&program.widget(panel.BtnGo), Qt::LeftButton);
        QVERIFY2(seen > 0.5, qPrintable(QString::number(seen)));
    }

    void theHeadingThatAltLeadsToIsMarked()
    {
        const Program program;
        QMenuBar& bar = *program.view.mainWindow().menuBar();
        const auto picture = [&] { return bar.grab(bar.actionGeometry(bar.actions().first())).toImage(); };
        const QImage without = picture();
        QWindow* const window = program.view.mainWindow().windowHandle();
        QTest::keyPress(window, Qt::Key_Alt, Qt::AltModifier);
        QTest::keyRelease(window, Qt::Key_Alt);
        const QImage with = picture();
        QVERIFY(contrast(without.pixel(2, 2), with.pixel(2, 2)) >= 3);
    }

    void theMarkStaysWithTheKeyboard()
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
        QVERIFY(marked());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier); // from the first to the last
        QVERIFY(marked());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // and back
        QVERIFY(marked());
        QTest::mouseClick(&window, Qt::LeftButton, {}, QPoint{window.width() / 2, window.form().y() / 2}); // the title
        QVERIFY(marked());
        QTest::mouseClick(&window.form(), Qt::LeftButton, {}, window.form().rect().bottomRight());
        QVERIFY(marked());
        QTest::mouseClick(&window.form(), Qt::RightButton, {}, window.form().rect().bottomRight());
        QVERIFY(marked());
    }

    void nothingIsMarkedOnAPanelOfTexts()
    {
        Program program;
        program.pick("MenuLogiciel");
        QVERIFY(!program.window(program.desk.get<Apropos>()).form().findChild<QFocusFrame*>()->isVisible());
    }

    void thereIsNoMarkWithoutTheKeyboard()
    {
        Program program;
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        const auto& panel = program.open<TestPanel>();
        QVERIFY(!program.widget(panel.TxtA).hasFocus());
        const auto marks = program.window(panel).findChildren<QFocusFrame*>();
        QCOMPARE(marks.size(), 1);
        QVERIFY(!marks.first()->isVisible());
    }

    void theMarkGoesWithItsControl()
    {
        Program program;
        auto& panel = program.open<TestPanel>();
        const auto moveTo = [&](double top) { program.store([&] { panel.TxtA.Top = Double{top}; }); };
        program.widget(panel.TxtF).setFocus();
        const QImage without = picture(program, panel.TxtA);
        program.widget(panel.TxtA).setFocus();
        const QImage with = picture(program, panel.TxtA);
        QVERIFY(with != without);
        moveTo(6240);
        QCOMPARE(picture(program, panel.TxtA), with);
        program.store([&] { panel.TxtA.Visible = false; });
        QVERIFY(!program.widget(panel.TxtA).hasFocus());
        program.widget(panel.TxtA).setVisible(true); // nothing is left of the mark
        QCOMPARE(picture(program, panel.TxtA), without);
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::FocusTest>(argc, argv);
}

#include "FocusTest.moc"
