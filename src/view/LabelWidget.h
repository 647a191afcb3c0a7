#pragma once

#include <QLabel>

#include "forms/Controls.h"
#include "view/Colors.h"
#include "view/ControlWidget.h"

namespace ondelis {

/// A caption: plain text, over several lines where its box has room for them.
class LabelWidget final : public QLabel, public ControlWidget {
public:
    LabelWidget(PanelWindow& window, Label& label, QWidget* parent);

    QWidget& widget() override { return *this; }
    void follow() override;
    void forgetColors() override { colors_.forget(); }

private:
    Label& label_;
    Colors colors_;
};

} // namespace ondelis
