#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QWheelEvent>

#include "Program.h"
#include "TestPanel.h"
#include "panels/timer555/Astable.h"

namespace ondelis {
namespace {

/// What the context menus of fields and captions let a person copy.
class CopyingTest : public testing::Test {
protected:
    /// The entry "Copier" of the context menu that is open; null where there is none.
    static QAction* copyEntry()
    {
        const auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr)
            return nullptr;
        for (QAction* const action : menu->actions())
            if (action->text().section(QLatin1Char{'\t'}, 0, 0).remove(QLatin1Char{'&'}) == QStringLiteral("Copier"))
                return action;
        return nullptr;
    }

    /// Opens the context menu of a widget, by the right button or by the menu key.
    static void openMenu(QWidget& widget, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
    {
        auto* const area = qobject_cast<QAbstractScrollArea*>(&widget);
        QWidget& under = area != nullptr && reason == QContextMenuEvent::Mouse ? *area->viewport() : widget;
        const QPoint place = under.rect().center();
        QContextMenuEvent event{reason, place, under.mapToGlobal(place)};
        QApplication::sendEvent(&under, &event);
    }

    /// What "Copier" copies, from a clipboard that held something else.
    static QString copied()
    {
        QGuiApplication::clipboard()->setText(QStringLiteral("autre chose"));
        QAction* const entry = copyEntry();
        if (entry == nullptr || !entry->isEnabled())
            return QStringLiteral("nothing to copy by");
        entry->trigger();
        QApplication::activePopupWidget()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return QGuiApplication::clipboard()->text();
    }

    void TearDown() override
    {
        while (QWidget* const menu = QApplication::activePopupWidget())
            menu->close();
    }
};

TEST_F(CopyingTest, aFieldGivesItsWholeText)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] {
        panel.TxtA.Text = "14.1";
        panel.TxtB.Text = " 1.012585 Kilo";
        panel.TxtM.Text = "un\ndeux";
        panel.TxtM.Locked = true;
        panel.MebI.Text = "0.12";
    });
    for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
        openMenu(program.widget(panel.TxtA), reason);
        EXPECT_EQ(copied(), QStringLiteral("14.1"));
        openMenu(program.widget(panel.TxtB), reason);
        EXPECT_EQ(copied(), QStringLiteral(" 1.012585 Kilo"));
        openMenu(program.widget(panel.TxtM), reason);
        EXPECT_EQ(copied(), QStringLiteral("un\ndeux"));
        openMenu(program.widget(panel.MebI), reason);
        EXPECT_EQ(copied(), QStringLiteral("1.200E-01"));
    }
}

TEST_F(CopyingTest, aSelectionIsCopiedAlone)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] {
        panel.TxtB.Text = " 1.012585 Kilo";
        panel.TxtM.Text = "un\ndeux";
    });
    program.widget<QLineEdit>(panel.TxtB).setSelection(1, 4);
    openMenu(program.widget(panel.TxtB));
    EXPECT_EQ(copied(), QStringLiteral("1.01"));
    auto& lines = program.widget<QPlainTextEdit>(panel.TxtM);
    lines.moveCursor(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
    openMenu(lines);
    EXPECT_EQ(copied(), QStringLiteral("un"));
}

TEST_F(CopyingTest, anEmptyFieldHasNothingToCopy)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    openMenu(program.widget(panel.TxtB));
    ASSERT_NE(copyEntry(), nullptr);
    EXPECT_FALSE(copyEntry()->isEnabled());
}

TEST_F(CopyingTest, aCaptionThatCodeWritesCanBeCopied)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    QWidget& caption = program.widget(panel.LblC);
    openMenu(caption);
    EXPECT_EQ(copyEntry(), nullptr);
    program.store([&] { panel.LblC.Caption = "Gain & perte"; }); // the words of its design
    openMenu(caption);
    EXPECT_EQ(copied(), QStringLiteral("Gain & perte"));
    program.store([&] { panel.LblC.Caption = ""; });
    openMenu(caption);
    EXPECT_EQ(copyEntry(), nullptr);
}

TEST_F(CopyingTest, theResultsOfATimerCanBeCopied)
{
    Program program;
    program.pick("MenuAstable");
    const auto& panel = program.desk.get<Astable>();
    QStringList taken;
    for (const Control* control : panel.controls()) {
        const auto* const label = dynamic_cast<const Label*>(control);
        if (label == nullptr)
            continue;
        openMenu(program.widget(*label));
        if (copyEntry() == nullptr)
            continue;
        EXPECT_EQ(copied(), toQString(label->Caption.get()));
        taken.append(toQString(label->name()));
    }
    EXPECT_EQ(taken.join(QLatin1Char{' '}), QStringLiteral("LblFreq LblCapa LblR1 LblR2"));
}

TEST_F(CopyingTest, theWheelLeavesTheSizeOfALockedTextAlone)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    program.store([&] { panel.TxtM.Locked = true; });
    auto& field = program.widget<QPlainTextEdit>(panel.TxtM);
    const double size = field.font().pointSizeF();
    const QPoint middle = field.viewport()->rect().center();
    QWheelEvent event{middle, field.viewport()->mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, Qt::ControlModifier,
        Qt::NoScrollPhase, false};
    QApplication::sendEvent(field.viewport(), &event);
    EXPECT_EQ(field.font().pointSizeF(), size);
}

} // namespace
} // namespace ondelis
