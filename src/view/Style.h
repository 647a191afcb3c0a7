#pragma once

#include <QProxyStyle>

namespace ondelis {

/// The widgets' look: Fusion, made legible where the system's colours leave it illegible, and with our own edges, which
/// stay whole at any screen scale. It changes only what it must, and only as far as it must.
class Style final : public QProxyStyle {
public:
    Style() : QProxyStyle{QStringLiteral("fusion")} { }

    /// Makes each text of the system's palette readable on its background.
    void polish(QPalette& palette) override;
    using QProxyStyle::polish;

    /// Gives the headings of the menu only their own margins, so that all of them fit with a large font.
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;

    /// Leaves the corners of panel windows square: their edges meet there.
    int styleHint(
        StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const override;

    /// Keeps the title of a frame away from the edge on its left.
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget) const override;

    /// Marks the menu heading that the keyboard is on, even while its menu is not open.
    void drawControl(
        ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
};

} // namespace ondelis
