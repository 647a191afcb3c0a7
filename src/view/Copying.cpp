#include "view/Copying.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <algorithm>

namespace ondelis {
namespace {

void copyWhenTriggered(QAction& action, const QString& text)
{
    QObject::connect(&action, &QAction::triggered, &action, [text] { QGuiApplication::clipboard()->setText(text); });
}

/// Whether an entry of a context menu is the one that copies: which letter is underlined depends on the kind of field,
/// and the key follows the text.
bool isCopyAction(const QAction* entry)
{
    const auto plain
        = [](const QString& words) { return words.section(QLatin1Char{'\t'}, 0, 0).remove(QLatin1Char{'&'}); };
    return plain(entry->text()) == plain(QLineEdit::tr("&Copy"));
}

} // namespace

bool copyAll(const QKeyEvent& event, bool selected, const QString& text)
{
    if (!event.matches(QKeySequence::Copy) || selected || text.isEmpty())
        return false;
    QGuiApplication::clipboard()->setText(text);
    return true;
}

void showFieldMenu(QMenu* menu, const QPoint& place, bool selected, const QString& text)
{
    const QList<QAction*> actions = menu->actions();
    const auto copy = std::ranges::find_if(actions, isCopyAction);
    if (copy != actions.end() && !selected && !text.isEmpty()) {
        (*copy)->setEnabled(true); // the field's own copying does nothing without a selection
        copyWhenTriggered(**copy, text);
    }
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(place);
}

void showCopyMenu(QWidget& widget, const QPoint& place, const QString& text)
{
    auto* const menu = new QMenu{&widget};
    copyWhenTriggered(*menu->addAction(QLineEdit::tr("&Copy")), text);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(place);
}

} // namespace ondelis
