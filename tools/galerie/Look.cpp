#include "Look.h"

#include <QApplication>
#include <QFont>
#include <QLoggingCategory>
#include <QStyle>

#include "DarkPalette.h"

namespace ondelis::galerie {

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
