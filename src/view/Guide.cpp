#include "view/Guide.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QUrl>

namespace ondelis {
namespace {

/// The guide of this installation, whatever its prefix.
QString pathOf(const QString& page)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/doc/ondelis/guide/")
        + page + QStringLiteral(".html"));
}

/// The version of the program that a page was made for; empty if it names none.
QString versionOf(QFile& page)
{
    constexpr qint64 head = 1000;
    static const QRegularExpression version{QStringLiteral("name=\"ondelis-version\" content=\"([^\"]*)\"")};
    return version.match(QString::fromUtf8(page.read(head))).captured(1);
}

/// Shows a file in the desktop's browser, and calls `failed` if the desktop has none. The toolkit's own function would
/// not report that: it does not check how the desktop's command ended.
void browse(QObject& owner, const QString& file, const std::function<void()>& failed)
{
    constexpr qint64 soon
        = 15'000; // ms; on some desktops the command lasts as long as the browser, and returns its status
    // Never destroyed, since that would end those that still run: a browser outlives the program.
    static auto& openers = *new QObject; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
    auto* const opener = new QProcess{&openers};
    QElapsedTimer since;
    since.start();
    // Queued: `failed` may wait for an answer to a box, and by then the opener is deleted.
    QObject::connect(
        opener, &QProcess::finished, &owner,
        [failed, since](int status) {
            if (status != 0 && !since.hasExpired(soon))
                failed();
        },
        Qt::QueuedConnection);
    QObject::connect(
        opener, &QProcess::errorOccurred, &owner,
        [failed](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                failed();
        },
        Qt::QueuedConnection);
    QObject::connect(opener, &QProcess::stateChanged, opener, [opener](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning)
            opener->deleteLater();
    });
    opener->setProcessChannelMode(QProcess::ForwardedChannels);
    opener->setInputChannelMode(QProcess::ForwardedInputChannel);
    opener->start(QStringLiteral("xdg-open"), {QString::fromLatin1(QUrl::fromLocalFile(file).toEncoded())});
}

} // namespace

void openGuide(QObject& owner, const QString& page, const std::function<void(const QString&)>& say)
{
    QFile file{pathOf(page)};
    if (!file.open(QIODevice::ReadOnly)) {
        say(QStringLiteral("Le guide n'est pas installé : il est dans le paquet « ondelis-doc »."));
        return;
    }
    if (const QString version = versionOf(file); version != QCoreApplication::applicationVersion())
        say(QStringLiteral(
            "Ce guide est celui de la version %1, et le programme est de la version %2 : mettez à jour le "
            "paquet « ondelis-doc ».")
                .arg(version, QCoreApplication::applicationVersion()));
    browse(owner, file.fileName(), [say, name = file.fileName()] {
        say(QStringLiteral("Aucun navigateur ne s'ouvre. Le guide est là : %1").arg(name));
    });
}

} // namespace ondelis
