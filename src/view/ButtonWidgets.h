#pragma once

#include <QPushButton>
#include <QRadioButton>

#include "forms/Controls.h"
#include "view/Colors.h"
#include "view/ControlWidget.h"

namespace ondelis {

/// One of several options.
class OptionButtonWidget final : public QRadioButton, public ControlWidget {
public:
    OptionButtonWidget(PanelWindow& window, OptionButton& option, QWidget* parent);

    QWidget& widget() override { return *this; }
    void follow() override;
    void forgetColors() override { colors_.forget(); }

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    /// Lets Tab enter the options at the chosen one, or at the first where none is.
    void followGroup();

    OptionButton& option_;
    Colors colors_;
};

/// A push button.
class CommandButtonWidget final : public QPushButton, public ControlWidget {
public:
    CommandButtonWidget(PanelWindow& window, CommandButton& button, QWidget* parent);

    QWidget& widget() override { return *this; }
    void follow() override;

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    CommandButton& button_;
};

} // namespace ondelis
