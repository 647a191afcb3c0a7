#include "view/Style.h"

#include <QPainter>
#include <QStyleOption>

#include "view/Colors.h"

namespace ondelis {
namespace {

/// How much lighter Fusion's menus are than fields, in per cent.
constexpr int menuLightness = 108;
/// The row with the keyboard is a little lighter than the highlight.
constexpr double rowContrast = 4.7;
/// How much darker than the window Fusion draws edges, and than the highlight that of the field with the keyboard.
constexpr int edgeDarkness = 140;
constexpr int focusDarkness = 125;
/// A title bar's ground is a third more luminous than its colour where it is lightest.
constexpr double titleContrast = 6;

void mend(QPalette& palette, QPalette::ColorGroup group)
{
    const auto color = [&](QPalette::ColorRole role) { return palette.color(group, role); };
    const auto mendRole = [&](QPalette::ColorRole role, const QColor& background) {
        palette.setColor(group, role, readable(color(role), background));
    };
    mendRole(QPalette::WindowText, color(QPalette::Window));
    mendRole(QPalette::ButtonText, color(QPalette::Button));
    mendRole(QPalette::Text, color(QPalette::Base));
    mendRole(QPalette::Text, color(QPalette::Base).lighter(menuLightness));
    mendRole(QPalette::ToolTipText, color(QPalette::ToolTipBase));
    // Not its text, which is black or white most often: selected rows are to keep their hue.
    palette.setColor(group, QPalette::Highlight,
        readable(color(QPalette::Highlight), color(QPalette::HighlightedText), rowContrast));
}

/// The option of an edge, with colours from which Fusion makes one that is seen.
template <class Option>
Option seen(const Option& option, double enough)
{
    Option mended{option};
    const QColor window = option.palette.color(QPalette::Window);
    const QColor edge = readable(window.darker(edgeDarkness), window, enough);
    const QColor focus
        = readable(option.palette.color(QPalette::Highlight).darker(focusDarkness), window, lineContrast);
    mended.palette.setColor(QPalette::Window, edge.lighter(edgeDarkness));
    mended.palette.setColor(QPalette::Highlight, focus.lighter(focusDarkness));
    return mended;
}

} // namespace

void Style::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        mend(palette, group);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    return metric == PM_MenuBarItemSpacing ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
}

void Style::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    const auto* const heading = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element != CE_MenuBarItem || heading == nullptr || (heading->state & State_Selected) == 0) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionMenuItem marked{*heading};
    marked.state |= State_Sunken; // as Fusion draws it once its menu is open
    QProxyStyle::drawControl(element, &marked, painter, widget);
}

void Style::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    const auto* const title = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    const bool active = title != nullptr && (title->titleBarState & State_Active) != 0;
    if (control != CC_TitleBar || title == nullptr || !(active || isDark(title->palette))) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    // Fusion writes an active title in white, on a shadow of the text's colour. Of an inactive one it crosses the
    // close box in black: on a dark window that one is an active title too, on the window's colour.
    QStyleOptionTitleBar mended{*title};
    const QColor ground = title->palette.color(active ? QPalette::Highlight : QPalette::Window);
    mended.titleBarState |= State_Active;
    mended.palette.setColor(QPalette::Highlight, readable(ground, Qt::white, titleContrast));
    mended.palette.setColor(QPalette::Text, Qt::black);
    QProxyStyle::drawComplexControl(control, &mended, painter, widget);
}

void Style::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    if (const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
        button != nullptr && element == PE_IndicatorRadioButton) {
        const QStyleOptionButton mended = seen(*button, lineContrast);
        QProxyStyle::drawPrimitive(element, &mended, painter, widget);
        return;
    }
    if (const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        frame != nullptr && (element == PE_FrameLineEdit || element == PE_Frame)) {
        // A list has the edge of a field, so that it shows the keyboard too.
        const QStyleOptionFrame mended = seen(*frame, lineContrast);
        QProxyStyle::drawPrimitive(PE_FrameLineEdit, &mended, painter, widget);
        return;
    }
    if (element == PE_FrameFocusRect)
        return; // the focus frame marks the control with the keyboard, and one mark is enough
    if (element == PE_FrameGroupBox && isDark(option->palette)) {
        drawLightFrame(*option, *painter, widget);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawLightFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const
{
    const double ratio = painter.device()->devicePixelRatioF();
    QImage image{option.rect.size() * ratio, QImage::Format_ARGB32_Premultiplied};
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter shade{&image};
    shade.translate(-option.rect.topLeft());
    QProxyStyle::drawPrimitive(PE_FrameGroupBox, &option, &shade, widget);
    shade.end();
    image.convertTo(QImage::Format_ARGB32);
    image.invertPixels(QImage::InvertRgb);
    painter.drawImage(option.rect.topLeft(), image);
}

} // namespace ondelis
