#include "view/Colors.h"

#include <QApplication>
#include <QPalette>
#include <QtMath>
#include <algorithm>

namespace ondelis {
namespace {

/// Relative luminance according to WCAG 2.1, from 0 to 1.
double luminance(const QColor& color)
{
    const auto linear
        = [](double channel) { return channel <= 0.04045 ? channel / 12.92 : qPow((channel + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor blackOrWhite(const QColor& background)
{
    return contrast(Qt::black, background) >= contrast(Qt::white, background) ? Qt::black : Qt::white;
}

int colorfulness(const QColor& color)
{
    const auto [least, most] = std::minmax({color.red(), color.green(), color.blue()});
    return most - least;
}

} // namespace

QColor toQColor(Color color)
{
    const Color plain = plainColor(color);
    return {
        static_cast<int>(plain & 0xFFU), static_cast<int>(plain >> 8U & 0xFFU), static_cast<int>(plain >> 16U & 0xFFU)};
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor readable(const QColor& color, const QColor& background, double minContrast)
{
    constexpr int steps = 50;
    const QColor extreme = blackOrWhite(background);
    QColor mixed = color;
    for (int step = 1; step <= steps && contrast(mixed, background) < minContrast; ++step) {
        const auto mix = [&](int from, int to) { return from + (to - from) * step / steps; };
        mixed
            = {mix(color.red(), extreme.red()), mix(color.green(), extreme.green()), mix(color.blue(), extreme.blue())};
    }
    return mixed;
}

QColor inverted(const QColor& color, const QColor& background)
{
    constexpr int brightest = 255;
    const int luma = (54 * color.red() + 183 * color.green() + 19 * color.blue()) / 256; // by ITU-R BT.709
    const auto turn = [&](int channel, int dark) {
        const int light = std::clamp(channel + brightest - 2 * luma, 0, brightest);
        return light + dark * (brightest - light) / brightest;
    };
    return {turn(color.red(), background.red()), turn(color.green(), background.green()),
        turn(color.blue(), background.blue())};
}

QColor shown(Color color, QPalette::ColorRole background)
{
    const QPalette palette = QApplication::palette();
    const QColor plain = toQColor(color);
    return isDark(palette) ? inverted(plain, palette.color(background)) : plain;
}

QColor shownStroke(Color color, const QColor& background, double minContrast)
{
    const QColor plain = readable(toQColor(color), background, minContrast);
    if (!isDark(QApplication::palette()))
        return plain;
    const QColor invertedFirst = readable(inverted(toQColor(color), background), background, minContrast);
    return colorfulness(plain) > colorfulness(invertedFirst) ? plain : invertedFirst;
}

void Colors::applyToField(QWidget& widget, Color background, Color text)
{
    if (isApplied(background, text))
        return;
    QPalette palette;
    const bool ownBackground = !isSystemColor(background);
    const bool ownText = !isSystemColor(text);
    const bool dark = isDark(QApplication::palette());
    QColor base = QApplication::palette().color(QPalette::Base);
    if (ownBackground)
        base = dark ? readable(shown(background, QPalette::Base), Qt::white) : shown(background, QPalette::Base);
    if (ownBackground)
        palette.setColor(QPalette::Base, base);
    if (ownText)
        palette.setColor(QPalette::Text, shownStroke(text, base));
    else if (ownBackground)
        palette.setColor(QPalette::Text, dark ? Qt::white : blackOrWhite(base));
    widget.setPalette(palette);
}

void Colors::applyToText(QWidget& widget, Color text)
{
    if (isApplied(windowColor, text))
        return;
    QPalette palette;
    if (!isSystemColor(text))
        palette.setColor(QPalette::WindowText, shownStroke(text, QApplication::palette().color(QPalette::Window)));
    widget.setPalette(palette);
}

bool Colors::isApplied(Color background, Color text)
{
    const bool same = applied_ && background_ == background && text_ == text;
    background_ = background;
    text_ = text;
    applied_ = true;
    return same;
}

} // namespace ondelis
