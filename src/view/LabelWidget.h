#pragma once

#include <QLabel>

#include "forms/Controls.h"
#include "view/Colors.h"
#include "view/ControlWidget.h"

namespace ondelis {

/// A caption: plain text, over several lines where its box has room for them. One that code has written, a result, can
/// be copied by its context menu.
class LabelWidget final : public QLabel, public ControlWidget {
public:
    LabelWidget(PanelWindow& window, Label& label, QWidget* parent);

    QWidget& widget() override { return *this; }
    void follow() override;
    void forgetColors() override { colors_.forget(); }

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    Label& label_;
    Colors colors_;
};

} // namespace ondelis
