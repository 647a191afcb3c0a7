#pragma once

#include <QProxyStyle>

namespace ondelis {

/// The widgets' look: Fusion, with what the system's colours leave illegible mended, and edges of our own that stand at
/// any scale of the screen. Only what needs it changes, and only as far as it needs.
class Style final : public QProxyStyle {
public:
    Style() : QProxyStyle{QStringLiteral("fusion")} { }

    /// Makes each text of the system's palette readable on its ground.
    void polish(QPalette& palette) override;
    using QProxyStyle::polish;

    /// Leaves the headings of the menu no more than their own margins, so that all of them fit with a large font.
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;

    /// Cuts no corners off the windows of panels: their edges meet there.
    int styleHint(
        StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const override;

    /// Sets the title of a frame off from the edge at its left.
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget) const override;

    /// Marks the heading of the menu that the keyboard is on, even while its menu is not open.
    void drawControl(
        ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
};

} // namespace ondelis
