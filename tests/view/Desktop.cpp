#include "Desktop.h"

#include <QApplication>
#include <QStyle>

namespace ondelis {

QPalette poorDarkPalette()
{
    constexpr QColor window{0x35, 0x35, 0x35};
    constexpr QColor base{0x2a, 0x2a, 0x2a};
    constexpr QColor text{0xEE, 0xEE, 0xEC};
    constexpr QColor dimmed{0x60, 0x60, 0x60};

    QPalette palette{window};
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, dimmed);
    }
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Highlight, QColor{0x3D, 0xAE, 0xE9});
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

ScopedDesktop::ScopedDesktop(const QString& family, int points, bool dark)
    : font_{QApplication::font()}, palette_{QApplication::palette()}
{
    QApplication::setFont(QFont{family, points});
    if (!dark)
        return;
    QPalette palette = poorDarkPalette();
    QApplication::style()->polish(palette); // as it does with the desktop's palette
    QApplication::setPalette(palette);
}

ScopedDesktop::~ScopedDesktop()
{
    QApplication::setPalette(palette_);
    QApplication::setFont(font_);
}

} // namespace ondelis
