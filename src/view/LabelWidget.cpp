#include "view/LabelWidget.h"

#include <QContextMenuEvent>

#include "view/Copying.h"
#include "view/Fonts.h"

namespace ondelis {

LabelWidget::LabelWidget(PanelWindow& window, Label& label, QWidget* parent) : WidgetOf{window, label, parent}
{
    setTextFormat(Qt::PlainText);
    setFont(fontOf(label.design().font, *parent));
    setIndent(0);
    const bool severalLines = Scale{*this}.pixels(label.at().Height) >= 2 * fontMetrics().height();
    setWordWrap(severalLines);
    setAlignment(horizontal(label.design().align) | (severalLines ? Qt::AlignTop : Qt::AlignVCenter));
}

void LabelWidget::follow()
{
    place(Double{control().Top}.value());
    const QString caption = toQString(control().Caption.get());
    if (caption != text()) // each call is announced to screen readers
        setText(caption);
    colors().applyToText(*this, control().design().ForeColor);
    setVisible(control().Visible);
    if (control().Visible) // one that is empty now had a caption by design
        panelWindow().names().rename(
            &control(), control().Caption == "" ? control().design().Caption : control().Caption.get());
}

void LabelWidget::contextMenuEvent(QContextMenuEvent* event)
{
    if (!gone() && control().written() && !text().isEmpty())
        popUpCopy(*this, event->globalPos(), text());
    else
        event->ignore();
}

} // namespace ondelis
