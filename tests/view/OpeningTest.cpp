#include <QScreen>

#include "Program.h"
#include "shell/Menu.h"
#include "view/ClientArea.h"

namespace ondelis {

/// What a person sees and where the keyboard is after each entry of the menu, on one of the screens that people have:
/// the frame is larger than most of them.
class OpeningTest final : public QObject {
    Q_OBJECT

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

    static void addEntries()
    {
        QTest::addColumn<QString>("entry");
        for (const MenuEntry* entry : panelEntries())
            QTest::newRow(std::string{entry->control}.c_str()) << toQString(entry->control);
    }

    /// Opens the panels of an entry after others have been open, as a person does.
    static void open(Program& program, const QString& entry)
    {
        program.pick("MenuPasseHaut");
        program.pick(entry.toUtf8().constData());
        program.view.mainWindow().activateWindow(); // a box may have been before it, and there is no window manager
        QVERIFY(QTest::qWaitForWindowActive(&program.view.mainWindow()));
        QCoreApplication::processEvents();
    }

private slots:
    void aPanelThatOpensIsSeen_data() { addEntries(); }

    void aPanelThatOpensIsSeen()
    {
        QFETCH(QString, entry);
        const BoxCloser closer;
        Program program;
        open(program, entry);
        const PanelWindow& panel = *windows(program).first();
        QRect all;
        for (const PanelWindow* window : windows(program))
            all |= onScreen(*window);
        if (fits(all.size(), room(program)))
            QVERIFY2(seen(program).contains(all), "there is room for all");
        if (fits(panel.size(), room(program))) {
            QVERIFY2(seen(program).contains(onScreen(panel)), "there is room for it");
            return;
        }
        const QSize title{std::min(panel.width(), seen(program).width()), titleHeight};
        QVERIFY(seen(program).contains(QRect{onScreen(panel).topLeft(), title}));
        if (const Control* const first = firstControl(panel.panel()))
            QVERIFY(seen(program).contains(onScreen(program.widget(*first))));
    }

    void itsPlaceStaysAsComputed_data() { addEntries(); }

    void itsPlaceStaysAsComputed()
    {
        QFETCH(QString, entry);
        const BoxCloser closer;
        Program program;
        open(program, entry);
        const double left = Double{windows(program).first()->panel().Left}.value();
        const double top = Double{windows(program).first()->panel().Top}.value();
        if (windows(program).size() == 1) { // alone, it is in the middle of the frame
            const FeuilleCalcul& panel = windows(program).first()->panel();
            QCOMPARE(left, (19470 - Double{panel.Width}.value()) / 2);
            QCOMPARE(top, (15000 - Double{panel.Height}.value()) / 2);
        } else { // the places of pairs are whole numbers, but one
            QVERIFY(entry == QStringLiteral("mnuDipoleRaccourci") || (left >= 800 && left <= 3000));
            QVERIFY(entry == QStringLiteral("mnuDipoleRaccourci") || (top >= 1500 && top <= 3000));
        }
    }

    void itHasTheKeyboard_data() { addEntries(); }

    void itHasTheKeyboard()
    {
        QFETCH(QString, entry);
        const BoxCloser closer;
        Program program;
        open(program, entry);
        const PanelWindow& panel = *windows(program).first();
        QCOMPARE(program.view.mainWindow().area().activeSubWindow(), &panel);
        const Control* const first = firstField(panel.panel());
        QCOMPARE(program.desk.focused(), first);
        if (first == nullptr)
            return;
        const QWidget& widget = program.widget(*first);
        QVERIFY(widget.hasFocus());
        QVERIFY(seen(program).contains(onScreen(widget)));
        if (const auto* const field = qobject_cast<const QLineEdit*>(&widget))
            QCOMPARE(field->selectedText(), field->text());
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::OpeningTest>(argc, argv);
}

#include "OpeningTest.moc"
