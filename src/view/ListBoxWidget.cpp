#include "view/ListBoxWidget.h"

#include <QMouseEvent>
#include <QScopedValueRollback>

namespace ondelis {

ListBoxWidget::ListBoxWidget(PanelWindow& window, ListBox& list, QWidget* parent) : WidgetOf{window, list, parent}
{
    setUniformItemSizes(true);
    setFocusPolicy(Qt::TabFocus); // the base class would take the keyboard by any button
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
}

void ListBoxWidget::refresh()
{
    const QScopedValueRollback refreshing{refreshing_, true};
    applyGeometry();
    refreshRows();
    const int row = control().ListIndex.get().value();
    setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    colors().applyToField(*this, control().BackColor, windowTextColor);
    setVisible(control().Visible);
}

void ListBoxWidget::refreshRows()
{
    QStringList rows;
    for (const std::string& text : control().items())
        rows.append(toQString(text));
    bool same = rows.size() == count();
    for (int row = 0; same && row < count(); ++row)
        same = item(row)->text() == rows[row];
    if (same)
        return;
    clear();
    addItems(rows);
    const QSize size{0, Scale{*this}.pixels(rowHeight)};
    for (int row = 0; row < count(); ++row)
        item(row)->setSizeHint(size);
}

bool ListBoxWidget::event(QEvent* event)
{
    ++events_;
    const bool done = QListWidget::event(event);
    --events_;
    reportChoice();
    return done;
}

bool ListBoxWidget::viewportEvent(QEvent* event)
{
    ++events_;
    const bool done = QListWidget::viewportEvent(event);
    --events_;
    reportChoice();
    return done;
}

void ListBoxWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) // the base class would choose by any button
        return;
    setFocus(Qt::MouseFocusReason);
    if (detached())
        return;
    QListWidget::mousePressEvent(event);
    // A click on the row already chosen is reported too: some lists listen to it.
    chosen_ = chosen_ || itemAt(event->pos()) != nullptr;
}

void ListBoxWidget::focusInEvent(QFocusEvent* event)
{
    // The base class would choose the first row.
    QAbstractScrollArea::focusInEvent(event); // NOLINT(bugprone-parent-virtual-call)
    viewport()->update();
    reportFocus();
}

void ListBoxWidget::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    // The class in between would report to screen readers that the keyboard is here now.
    if (hasFocus())
        QListWidget::currentChanged(current, previous);
    else
        QAbstractItemView::currentChanged(current, previous); // NOLINT(bugprone-parent-virtual-call)
}

void ListBoxWidget::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListWidget::selectionChanged(selected, deselected);
    if (refreshing_)
        return;
    chosen_ = true;
    if (events_ == 0) // not by mouse or key: a screen reader did it
        reportChoice();
}

void ListBoxWidget::reportChoice()
{
    if (events_ > 0 || !chosen_)
        return;
    chosen_ = false;
    perform([&](User& user) { user.choose(control(), currentRow()); });
}

} // namespace ondelis
