#include "Screen.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QtMath>
#include <qpa/qplatformnativeinterface.h>

namespace ondelis::fenetre {
namespace {

constexpr int dotsPerInch = 96;
constexpr int twipsPerInch = 1440;

QJsonObject configuration(const Size& size)
{
    const auto pixels = [](double twips) { return qRound(twips * dotsPerInch / twipsPerInch); };
    const QJsonObject screen{{QStringLiteral("name"), QStringLiteral("screen")}, {QStringLiteral("x"), 0},
        {QStringLiteral("y"), 0}, {QStringLiteral("width"), pixels(size.Width)},
        {QStringLiteral("height"), pixels(size.Height)}, {QStringLiteral("logicalDpi"), dotsPerInch},
        {QStringLiteral("logicalBaseDpi"), dotsPerInch}, {QStringLiteral("dpr"), 1}};
    return {{QStringLiteral("synchronousWindowSystemEvents"), true}, {QStringLiteral("windowFrameMargins"), false},
        {QStringLiteral("screens"), QJsonArray{screen}}};
}

} // namespace

bool setOffscreenSize(const Size& size)
{
    QPlatformNativeInterface* const platform = QGuiApplication::platformNativeInterface();
    // The platform's own tests set it up by this function, which it gives as a plain address.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast)
    auto* const set = reinterpret_cast<void (*)(const QJsonObject&, QPlatformNativeInterface*)>(
        platform->nativeResourceForIntegration("setConfiguration"));
    if (set == nullptr)
        return false;
    set(configuration(size), platform);
    return true;
}

} // namespace ondelis::fenetre
