#pragma once

#include <QFont>
#include <QWidget>

#include "forms/Control.h"

namespace ondelis {

/// The system's font in the size and weight that the control asks for.
[[nodiscard]] inline QFont fontOf(const Font& design, const QWidget& parent)
{
    QFont font = parent.font();
    font.setPointSizeF(design.size);
    font.setBold(design.bold);
    return font;
}

[[nodiscard]] inline Qt::Alignment horizontal(Align align)
{
    return align == Align::Right ? Qt::AlignRight : align == Align::Center ? Qt::AlignHCenter : Qt::AlignLeft;
}

} // namespace ondelis
