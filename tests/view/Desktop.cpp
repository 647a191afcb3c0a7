#include "Desktop.h"

#include <QApplication>
#include <QStyle>

#include "DarkPalette.h"

namespace ondelis {

QPalette poorDarkPalette()
{
    QPalette palette = galerie::darkPalette();
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(QPalette::Disabled, role, QColor{0x60, 0x60, 0x60});
    palette.setColor(QPalette::Highlight, QColor{0x3D, 0xAE, 0xE9});
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
