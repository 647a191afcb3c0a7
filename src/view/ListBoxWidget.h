#pragma once

#include <QListWidget>

#include "forms/Controls.h"
#include "view/ControlWidget.h"

namespace ondelis {

/// A list of texts. Only the left mouse button chooses a row and gives the list the keyboard.
class ListBoxWidget final : public WidgetOf<QListWidget, ListBox> {
public:
    ListBoxWidget(PanelWindow& window, ListBox& list, QWidget* parent);

    void refresh() override;

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    static constexpr double rowHeight = 240; ///< twips

    void refreshRows();
    /// Reports which row the user has chosen, once the base class is done with the event.
    void reportChoice();

    bool chosen_ = false; ///< by the event that the base class is working on
    bool refreshing_ = false;
    unsigned events_ = 0; ///< that the base class is working on
};

} // namespace ondelis
