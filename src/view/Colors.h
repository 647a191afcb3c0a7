#pragma once

#include <QColor>
#include <QWidget>

#include "forms/Color.h"

namespace ondelis {

/// The colour of a control; the system's own colours have no such form.
[[nodiscard]] QColor toQColor(Color color);

/// Whether light text stands on dark windows.
[[nodiscard]] bool isDark(const QPalette& palette);

/// The text colour, made lighter or darker as far as it must be to be read on that background.
[[nodiscard]] QColor readable(const QColor& text, const QColor& background);

/// The colours of one widget: those that its control asks for, and the system's elsewhere.
class Colors {
public:
    /// For what is written into: its own background. Black or white is the text on a background that the
    /// control chose, where it did not choose the text too.
    void applyToField(QWidget& widget, Color background, Color text);
    /// For what is written on the panel.
    void applyToText(QWidget& widget, Color text);
    /// The system has other colours now: the next call does its work anew.
    void forget() { applied_ = false; }

private:
    bool isApplied(Color background, Color text);

    Color background_ = windowColor;
    Color text_ = windowTextColor;
    bool applied_ = true; // a new widget has the system's colours
};

} // namespace ondelis
