#pragma once

#include <QString>
#include <QWidget>
#include <vector>

namespace ondelis {

/// A text that does not fit in its widget.
struct TextCut {
    QString text; ///< empty if the widget is too low for any
    int missing; ///< pixels, of width or of height
};

/// The texts of a widget that are cut, measured with the font that it has: captions, fields, rows of lists, buttons,
/// titles of frames.
[[nodiscard]] std::vector<TextCut> cutsIn(const QWidget& widget);

/// The title of a group box, in the widget's pixels; empty if there is none.
[[nodiscard]] QRect titleOf(const QWidget& widget);

} // namespace ondelis
