#pragma once

#include <QLabel>

#include "forms/Controls.h"
#include "view/ControlWidget.h"

namespace ondelis {

/// A caption: plain text, on several lines where its box has room for them. One that code has written, a result, can be
/// copied from its context menu.
class LabelWidget final : public WidgetOf<QLabel, Label> {
public:
    LabelWidget(PanelWindow& window, Label& label, QWidget* parent);

    void refresh() override;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
};

} // namespace ondelis
