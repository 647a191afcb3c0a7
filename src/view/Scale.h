#pragma once

#include <QRect>
#include <QWidget>
#include <QtMath>

#include "forms/Control.h"

namespace ondelis {

/// Converts between twips and the pixels of a screen. The logical resolution counts, as for fonts, so that text and
/// geometry scale together.
class Scale {
public:
    explicit Scale(int dotsPerInch) : dpi_{dotsPerInch} { }
    /// The scale of the screen that the widget is on.
    explicit Scale(const QWidget& widget) : Scale{widget.logicalDpiY()} { }

    [[nodiscard]] double exact(double twips) const { return twips * dpi_ / twipsPerInch; }
    [[nodiscard]] int pixels(double twips) const { return qRound(exact(twips)); }
    [[nodiscard]] double twips(int pixels) const { return double{twipsPerInch} * pixels / dpi_; }

    /// A box in pixels, edge by edge: boxes that touch in twips touch on screen.
    [[nodiscard]] QRect pixels(const Box& box) const
    {
        const QPoint corner{pixels(box.Left), pixels(box.Top)};
        const QPoint end{pixels(box.Left + box.Width), pixels(box.Top + box.Height)};
        return {corner, QSize{end.x() - corner.x(), end.y() - corner.y()}};
    }

private:
    static constexpr int twipsPerInch = 1440;

    int dpi_;
};

} // namespace ondelis
