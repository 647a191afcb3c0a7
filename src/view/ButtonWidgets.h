#pragma once

#include <QPushButton>
#include <QRadioButton>

#include "forms/Controls.h"
#include "view/ControlWidget.h"

namespace ondelis {

/// One of several options.
class OptionButtonWidget final : public WidgetOf<QRadioButton, OptionButton> {
public:
    OptionButtonWidget(PanelWindow& window, OptionButton& option, QWidget* parent);

    void refresh() override;

private:
    /// Makes Tab enter the options at the chosen one, or at the first if none is.
    void refreshTabStop();
};

/// A push button.
class CommandButtonWidget final : public WidgetOf<QPushButton, CommandButton> {
public:
    CommandButtonWidget(PanelWindow& window, CommandButton& button, QWidget* parent);

    void refresh() override;
};

} // namespace ondelis
