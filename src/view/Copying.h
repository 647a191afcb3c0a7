#pragma once

#include <QKeyEvent>
#include <QMenu>
#include <QString>

namespace ondelis {

// What a person takes along from a field: the text that is selected, or all of it where none is. A click into a result
// is enough to take it away.

/// Copies the whole text on the copy key where nothing is selected. True where it has done so.
[[nodiscard]] bool copyWhole(const QKeyEvent& event, bool selected, const QString& text);

/// The context menu of a field, which the toolkit has made, with its entry "Copier" open where nothing is selected too:
/// then it copies the whole text. The menu goes when it closes.
void popUp(QMenu* menu, const QPoint& place, bool selected, const QString& text);

/// The context menu of a text that takes no keyboard: "Copier", which copies the whole of it. It goes when it closes.
void popUpCopy(QWidget& widget, const QPoint& place, const QString& text);

} // namespace ondelis
