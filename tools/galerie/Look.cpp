#include "Look.h"

#include <QApplication>
#include <QFont>
#include <QLoggingCategory>
#include <QPalette>
#include <QStyle>

namespace ondelis::galerie {
namespace {

/// The colours of the usual dark desktops.
QPalette darkPalette()
{
    constexpr QColor window{0x35, 0x35, 0x35};
    constexpr QColor base{0x2a, 0x2a, 0x2a};
    constexpr QColor text{0xee, 0xee, 0xec};
    constexpr QColor dimmed{0x91, 0x91, 0x90};
    constexpr QColor highlight{0x15, 0x53, 0x9e};

    QPalette palette{window};
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, dimmed);
    }
    for (const auto role : {QPalette::Base, QPalette::ToolTipBase})
        palette.setColor(role, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::PlaceholderText, dimmed);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor{0x62, 0xa0, 0xea});
    return palette;
}

} // namespace

void Look::chooseResolution() const
{
    qputenv("QT_FONT_DPI", QByteArray::number(dpi));
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREEN); // large enough for the frame
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false")); // it warns of each window's size hints
}

void Look::apply() const
{
    QApplication::setFont(QFont{QStringLiteral("DejaVu Sans"), 9}); // the same pictures whatever the system's font
    if (!dark)
        return;
    QPalette palette = darkPalette();
    QApplication::style()->polish(palette); // as the style does with the desktop's palette
    QApplication::setPalette(palette);
}

} // namespace ondelis::galerie
