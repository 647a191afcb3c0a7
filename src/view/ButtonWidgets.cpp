#include "view/ButtonWidgets.h"

#include <QSignalBlocker>

namespace ondelis {

OptionButtonWidget::OptionButtonWidget(PanelWindow& window, OptionButton& option, QWidget* parent)
    : WidgetOf{window, option, withoutShortcut(option.design().Caption), parent}
{
    connect(this, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen)
            perform([&](User& user) { user.click(control()); });
    });
}

void OptionButtonWidget::refresh()
{
    applyGeometry();
    const QSignalBlocker quiet{this};
    // The runtime keeps the options exclusive; here each one just shows its value, even if none is chosen.
    setAutoExclusive(false);
    setChecked(control().Value);
    setAutoExclusive(true);
    colors().applyToText(*this, control().ForeColor);
    setVisible(control().Visible);
    refreshTabStop();
}

void OptionButtonWidget::refreshTabStop()
{
    const auto group = parentWidget()->findChildren<QRadioButton*>(QString{}, Qt::FindDirectChildrenOnly);
    const QRadioButton* entry = nullptr;
    for (const QRadioButton* option : group)
        if (!option->isHidden() && (entry == nullptr || option->isChecked()))
            entry = option;
    for (QRadioButton* option : group)
        option->setFocusPolicy(option == entry ? Qt::StrongFocus : Qt::ClickFocus);
}

CommandButtonWidget::CommandButtonWidget(PanelWindow& window, CommandButton& button, QWidget* parent)
    : WidgetOf{window, button, withoutShortcut(button.design().Caption), parent}
{
    setAutoDefault(true); // the Enter key presses it too
    connect(this, &QPushButton::clicked, this, [this] { perform([&](User& user) { user.click(control()); }); });
}

void CommandButtonWidget::refresh()
{
    applyGeometry();
    setVisible(control().Visible);
}

} // namespace ondelis
