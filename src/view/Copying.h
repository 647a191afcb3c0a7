#pragma once

#include <QKeyEvent>
#include <QMenu>
#include <QString>

namespace ondelis {

// What a person copies from a field: the selected text, or all of it if nothing is selected. A click in a result is
// enough to copy it.

/// Copies the whole text on the copy key if nothing is selected. True if it has done so.
[[nodiscard]] bool copyAll(const QKeyEvent& event, bool selected, const QString& text);

/// The context menu of a field, which the toolkit has made, with its entry "Copier" enabled even if nothing is
/// selected: then it copies the whole text. The menu deletes itself when it closes.
void showFieldMenu(QMenu* menu, const QPoint& place, bool selected, const QString& text);

/// The context menu of a text that takes no keyboard: "Copier", which copies all of it. It deletes itself when it
/// closes.
void showCopyMenu(QWidget& widget, const QPoint& place, const QString& text);

} // namespace ondelis
