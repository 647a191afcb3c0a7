#include "view/ButtonWidgets.h"

#include <QSignalBlocker>

namespace ondelis {

OptionButtonWidget::OptionButtonWidget(PanelWindow& window, OptionButton& option, QWidget* parent)
    : QRadioButton{withoutShortcut(option.design().Caption), parent}, ControlWidget{window}, option_{option}
{
    connect(this, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen)
            act(option_, [&](User& user) { user.click(option_); });
    });
}

void OptionButtonWidget::follow()
{
    place(option_);
    const QSignalBlocker quiet{this};
    // The desk keeps the options exclusive; here each one just shows its value, none chosen included.
    setAutoExclusive(false);
    setChecked(option_.Value);
    setAutoExclusive(true);
    colors_.applyToText(*this, option_.ForeColor);
    setVisible(option_.Visible);
    followGroup();
}

void OptionButtonWidget::followGroup()
{
    const auto group = parentWidget()->findChildren<QRadioButton*>(QString{}, Qt::FindDirectChildrenOnly);
    const QRadioButton* entry = nullptr;
    for (const QRadioButton* option : group)
        if (!option->isHidden() && (entry == nullptr || option->isChecked()))
            entry = option;
    for (QRadioButton* option : group)
        option->setFocusPolicy(option == entry ? Qt::StrongFocus : Qt::ClickFocus);
}

void OptionButtonWidget::focusInEvent(QFocusEvent* event)
{
    QRadioButton::focusInEvent(event);
    act(option_, [&](User& user) { user.focus(option_); });
}

CommandButtonWidget::CommandButtonWidget(PanelWindow& window, CommandButton& button, QWidget* parent)
    : QPushButton{withoutShortcut(button.design().Caption), parent}, ControlWidget{window}, button_{button}
{
    setAutoDefault(true); // the Enter key presses it too
    connect(this, &QPushButton::clicked, this, [this] { act(button_, [&](User& user) { user.click(button_); }); });
}

void CommandButtonWidget::follow()
{
    place(button_);
    setVisible(button_.Visible);
}

void CommandButtonWidget::focusInEvent(QFocusEvent* event)
{
    QPushButton::focusInEvent(event);
    act(button_, [&](User& user) { user.focus(button_); });
}

} // namespace ondelis
