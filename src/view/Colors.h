#pragma once

#include <QColor>
#include <QPalette>
#include <QWidget>

#include "forms/Color.h"

namespace ondelis {

/// The colour of a control as a `QColor`; the system's own colours have none.
[[nodiscard]] QColor toQColor(Color color);

/// Whether light text stands on dark windows.
[[nodiscard]] bool isDark(const QPalette& palette);

/// Contrast according to WCAG 2.1, from 1 to 21.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

inline constexpr double textContrast = 4.5; ///< what a text needs to be read with ease
inline constexpr double lineContrast = 3; ///< what a line needs to be seen with ease
inline constexpr double quietContrast = 1.6; ///< what holds a group together without drawing the eye

/// The colour, mixed with as much black or white as it needs to have that contrast with the background.
[[nodiscard]] QColor readable(const QColor& color, const QColor& background, double minContrast = textContrast);

/// A colour for dark windows, from one meant for light ones: the luma is inverted, the hue stays, and white becomes the
/// dark background.
[[nodiscard]] QColor inverted(const QColor& color, const QColor& background);

/// The colour of a control as it is shown: itself on light palettes, inverted on dark ones, where white becomes that
/// role.
[[nodiscard]] QColor shown(Color color, QPalette::ColorRole background);

/// The colour of a text or a line as it is shown on that background, with that contrast. On dark palettes it is
/// inverted too, unless that would leave less of its hue than making it readable as it is: a pure blue, inverted, can
/// hardly be told from white.
[[nodiscard]] QColor shownStroke(Color color, const QColor& background, double minContrast = textContrast);

/// The colours of one widget: those that its control asks for, and the system's elsewhere.
class Colors {
public:
    /// For what can be written into: it has its own background. On a background that the control chose, the text is
    /// black or white unless the control chose that too.
    void applyToField(QWidget& widget, Color background, Color text);
    /// For what is written on the panel.
    void applyToText(QWidget& widget, Color text);
    /// The system's colours have changed: the next call applies the colours again.
    void forget() { applied_ = false; }

private:
    bool isApplied(Color background, Color text);

    Color background_ = windowColor;
    Color text_ = windowTextColor;
    bool applied_ = true; // a new widget has the system's colours
};

} // namespace ondelis
