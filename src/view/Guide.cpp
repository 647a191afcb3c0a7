#include "view/Guide.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QUrl>

#include "view/Dialogs.h"

namespace ondelis {
namespace {

/// The guide of this installation, whatever its prefix.
QString pathOf(const QString& page)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/doc/ondelis/guide/")
        + page + QStringLiteral(".html"));
}

/// The version of the program that a page was made for; empty where it names none.
QString versionOf(QFile& page)
{
    constexpr qint64 head = 1000;
    static const QRegularExpression version{QStringLiteral("name=\"ondelis-version\" content=\"([^\"]*)\"")};
    return version.match(QString::fromUtf8(page.read(head))).captured(1);
}

void say(QWidget& window, const QString& words)
{
    ask(window, {.prompt = words.toStdString()});
}

} // namespace

void openGuide(QWidget& window, const QString& page)
{
    QFile file{pathOf(page)};
    if (!file.open(QIODevice::ReadOnly)) {
        say(window, QStringLiteral("Le guide n'est pas installé : il est dans le paquet « ondelis-doc »."));
        return;
    }
    if (const QString version = versionOf(file); version != QCoreApplication::applicationVersion())
        say(window,
            QStringLiteral(
                "Ce guide est celui de la version %1, et le programme est de la version %2 : mettez à jour le "
                "paquet « ondelis-doc ».")
                .arg(version, QCoreApplication::applicationVersion()));
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file.fileName())))
        say(window, QStringLiteral("Aucun navigateur ne s'ouvre. Le guide est là : %1").arg(file.fileName()));
}

} // namespace ondelis
