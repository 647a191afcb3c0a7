#pragma once

#include <QColor>
#include <QPalette>
#include <QWidget>

#include "forms/Color.h"

namespace ondelis {

/// The colour of a control; the system's own colours have no such form.
[[nodiscard]] QColor toQColor(Color color);

/// Whether light text stands on dark windows.
[[nodiscard]] bool isDark(const QPalette& palette);

/// Contrast after WCAG 2.1, from 1 to 21.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

inline constexpr double textContrast = 4.5; ///< what a text needs to be read with ease
inline constexpr double lineContrast = 3; ///< what a line needs to be seen with ease
inline constexpr double quietContrast = 1.6; ///< what holds a group together without drawing the eye

/// The colour, mixed with black or white as far as it must be to have that contrast with the background.
[[nodiscard]] QColor readable(const QColor& color, const QColor& background, double enough = textContrast);

/// A colour for dark windows, from one that is meant for light ones: the luma is turned round, the hue stays, and white
/// becomes the dark ground.
[[nodiscard]] QColor turned(const QColor& color, const QColor& ground);

/// The colour of a control as it is shown: itself on light palettes, turned on dark ones, where that role is white.
[[nodiscard]] QColor shown(Color color, QPalette::ColorRole ground);

/// The colour of a text as it is shown on that ground. On dark palettes it is turned too, unless that would leave less
/// of its hue than making it readable as it is: a pure blue, turned, can hardly be told from white.
[[nodiscard]] QColor shownText(Color color, const QColor& ground);

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
