#include "view/Style.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

#include "view/Colors.h"
#include "view/Edges.h"

namespace ondelis {
namespace {

/// How much lighter Fusion's menus are than fields, in percent.
constexpr int menuLightness = 108;
/// The row with the keyboard is a little lighter than the highlight.
constexpr double rowContrast = 4.7;
/// How much darker than the window Fusion draws edges, and how much darker than the highlight that of the field with
/// the keyboard.
constexpr int edgeDarkness = 140;
constexpr int focusDarkness = 125;
/// A title bar's background is, at its lightest, a third more luminous than its colour.
constexpr double titleContrast = 6;

void ensureContrast(QPalette& palette, QPalette::ColorGroup group)
{
    const auto color = [&](QPalette::ColorRole role) { return palette.color(group, role); };
    const auto ensureRoleContrast = [&](QPalette::ColorRole role, const QColor& background) {
        palette.setColor(group, role, readable(color(role), background));
    };
    ensureRoleContrast(QPalette::WindowText, color(QPalette::Window));
    ensureRoleContrast(QPalette::ButtonText, color(QPalette::Button));
    ensureRoleContrast(QPalette::Text, color(QPalette::Base));
    ensureRoleContrast(QPalette::Text, color(QPalette::Base).lighter(menuLightness));
    ensureRoleContrast(QPalette::ToolTipText, color(QPalette::ToolTipBase));
    // Not its text, which is mostly black or white: selected rows should keep their hue.
    palette.setColor(group, QPalette::Highlight,
        readable(color(QPalette::Highlight), color(QPalette::HighlightedText), rowContrast));
}

/// The colour of an edge on a window, and that of the edge of what has the keyboard.
QColor edgeColor(const QPalette& palette, double minContrast)
{
    const QColor window = palette.color(QPalette::Window);
    return readable(window.darker(edgeDarkness), window, minContrast);
}

QColor focusColor(const QPalette& palette)
{
    return readable(
        palette.color(QPalette::Highlight).darker(focusDarkness), palette.color(QPalette::Window), lineContrast);
}

/// The option of a round edge, with colours from which Fusion makes a visible one.
QStyleOptionButton withVisibleEdge(const QStyleOptionButton& option)
{
    QStyleOptionButton adjusted{option};
    adjusted.palette.setColor(QPalette::Window, edgeColor(option.palette, lineContrast).lighter(edgeDarkness));
    adjusted.palette.setColor(QPalette::Highlight, focusColor(option.palette).lighter(focusDarkness));
    return adjusted;
}

/// The picture of a button in the colour of its text: Fusion's own are dark on all windows.
QIcon recolored(const QStyleOptionToolButton& button)
{
    QPixmap picture = button.icon.pixmap(button.iconSize);
    QPainter painter{&picture};
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), button.palette.color(QPalette::ButtonText));
    painter.end();
    return QIcon{picture};
}

/// The edge of a field or a list, which shows whether it has the keyboard.
void drawFieldEdge(QPainter& painter, const QStyleOption& option)
{
    const bool keyboard = (option.state & QStyle::State_HasFocus) != 0;
    drawEdge(painter, option.rect, keyboard ? focusColor(option.palette) : edgeColor(option.palette, lineContrast),
        Corners::Cut);
}

/// Fills the rim of a title bar, where Fusion makes the corners round with lines that fall between pixels.
void fillRim(QPainter& painter, const QRectF& bar, const QBrush& background)
{
    constexpr double across = 3;
    constexpr double down = 2;
    painter.fillRect(QRectF{bar.left(), bar.top(), bar.width(), down}, background);
    const QRectF side{bar.left(), bar.top(), across, bar.height() - down};
    painter.fillRect(side, background);
    painter.fillRect(side.translated(bar.width() - across, 0), background);
}

/// The background of a title bar, as Fusion shades it.
QBrush titleBackground(const QRectF& bar, const QColor& color)
{
    QLinearGradient shades{bar.topLeft(), bar.bottomLeft()};
    shades.setStops({{0, color.lighter(114)}, {0.5, color.lighter(102)}, {0.51, color.darker(104)}, {1, color}});
    return shades;
}

/// Whether a bar belongs to a list or a text, whose own edge surrounds it.
bool isInner(const QWidget* bar)
{
    const QWidget* const holder = bar == nullptr ? nullptr : bar->parentWidget();
    const auto* const area
        = qobject_cast<const QAbstractScrollArea*>(holder == nullptr ? nullptr : holder->parentWidget());
    return area != nullptr && area->frameWidth() > 0;
}

} // namespace

void Style::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        ensureContrast(palette, group);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    return metric == PM_MenuBarItemSpacing ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
}

int Style::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const
{
    auto* const mask = qstyleoption_cast<QStyleHintReturnMask*>(returned);
    if (hint != SH_WindowFrame_Mask || option == nullptr || mask == nullptr)
        return QProxyStyle::styleHint(hint, option, widget, returned);
    mask->region = option->rect;
    return 1;
}

QRect Style::subControlRect(
    ComplexControl control, const QStyleOptionComplex* option, SubControl part, const QWidget* widget) const
{
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    if (control == CC_GroupBox && part == SC_GroupBoxFrame)
        return option->rect; // newer versions of Fusion put the title above the frame
    if (control != CC_GroupBox || part != SC_GroupBoxLabel)
        return rect;
    return rect.translated(option->fontMetrics.averageCharWidth(), option->fontMetrics.leading() + 2);
}

void Style::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    if (element == CE_ToolButtonLabel) // only a narrow menu bar has such a button, for what it has no room for
        if (const auto* const button = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
            QStyleOptionToolButton adjusted{*button};
            adjusted.icon = recolored(*button);
            QProxyStyle::drawControl(element, &adjusted, painter, widget);
            return;
        }
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
    if (control == CC_ScrollBar) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        // Three sides of an inner bar fall on the edge around it, and are clipped.
        const bool across = (option->state & State_Horizontal) != 0;
        const QMargins beyond = isInner(widget) ? QMargins{across ? 2 : 0, across ? 0 : 2, 2, 2} : QMargins{};
        // On a dark window Fusion's slider is as dark as the groove, whose colour is nearer to the edge's than that of
        // the window: the edge has to be lighter there.
        if ((option->state & State_Enabled) != 0) {
            const QRect slider = subControlRect(control, option, SC_ScrollBarSlider, widget);
            const QRect along = across ? QRect{slider.x(), option->rect.y(), slider.width(), option->rect.height()}
                                       : QRect{option->rect.x(), slider.y(), option->rect.width(), slider.height()};
            drawEdge(*painter, along + beyond, edgeColor(option->palette, 1.15 * lineContrast));
        }
        drawEdge(*painter, option->rect + beyond, edgeColor(option->palette, lineContrast));
        return;
    }
    const auto* const title = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    const bool active = title != nullptr && (title->titleBarState & State_Active) != 0;
    if (control != CC_TitleBar || title == nullptr || !(active || isDark(title->palette))) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control == CC_TitleBar)
            fillRim(*painter, option->rect, titleBackground(option->rect, option->palette.color(QPalette::Window)));
        return;
    }
    // Fusion writes an active title in white, on a shadow of the text's colour. In an inactive one it draws the cross
    // of the close box in black: on a dark window that title is drawn as an active one too, on the window's colour.
    QStyleOptionTitleBar adjusted{*title};
    const QColor background = title->palette.color(active ? QPalette::Highlight : QPalette::Window);
    adjusted.titleBarState |= State_Active;
    adjusted.palette.setColor(QPalette::Highlight, readable(background, Qt::white, titleContrast));
    adjusted.palette.setColor(QPalette::Text, Qt::black);
    QProxyStyle::drawComplexControl(control, &adjusted, painter, widget);
    fillRim(*painter, title->rect, titleBackground(title->rect, adjusted.palette.color(QPalette::Highlight)));
}

void Style::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case PE_IndicatorRadioButton:
        if (const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            const QStyleOptionButton adjusted = withVisibleEdge(*button);
            QProxyStyle::drawPrimitive(element, &adjusted, painter, widget);
        }
        return;
    case PE_PanelLineEdit:
        fillInside(*painter, option->rect, option->palette.color(QPalette::Base));
        drawFieldEdge(*painter, *option);
        return;
    case PE_FrameLineEdit:
        drawFieldEdge(*painter, *option);
        return;
    case PE_Frame: // a list has the edge of a field, so that it shows the keyboard too
        fillInside(*painter, option->rect, option->palette.color(QPalette::Base));
        drawFieldEdge(*painter, *option);
        return;
    case PE_FrameFocusRect: // the focus frame marks the control with the keyboard, and one mark is enough
        return;
    case PE_FrameGroupBox:
        drawEdge(*painter, option->rect, edgeColor(option->palette, quietContrast), Corners::Cut);
        return;
    case PE_FrameWindow:
        painter->save();
        painter->setClipping(false); // the edge goes around the title bar too
        drawEdge(*painter, option->rect, edgeColor(option->palette, lineContrast));
        painter->restore();
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

} // namespace ondelis
