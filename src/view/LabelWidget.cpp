#include "view/LabelWidget.h"

#include <QContextMenuEvent>

#include "view/Copying.h"
#include "view/Fonts.h"

namespace ondelis {

LabelWidget::LabelWidget(PanelWindow& window, Label& label, QWidget* parent)
    : QLabel{parent}, ControlWidget{window}, label_{label}
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
    place(label_, Double{label_.Top}.value());
    const QString caption = toQString(label_.Caption.get());
    if (caption != text()) // each call is announced to screen readers
        setText(caption);
    colors_.applyToText(*this, label_.design().ForeColor);
    setVisible(label_.Visible);
}

void LabelWidget::contextMenuEvent(QContextMenuEvent* event)
{
    if (!gone() && label_.written() && !text().isEmpty())
        popUpCopy(*this, event->globalPos(), text());
    else
        event->ignore();
}

} // namespace ondelis
