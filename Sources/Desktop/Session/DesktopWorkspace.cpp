#include "DesktopWorkspace.h"

#include "CoreDumps.h"
#include "Desktop/Bus/BusCall.h"
#include "Log.h"
#include "PrivacyPages.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include <sys/prctl.h>

namespace Kestrune {

Q_LOGGING_CATEGORY(sessionLog, "kestrune.session", QtWarningMsg)

namespace {

/// Behind what a service unit takes from this program others could not do their work. The user's service
/// manager starts them outside; empty where they are children like any.
QString serviceStarter()
{
    const bool isConfined = ::prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0) == 1;
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const bool isManaged = isConfined && QFileInfo::exists(runtime + QStringLiteral("/systemd/private"));
    return isManaged ? QStandardPaths::findExecutable(QStringLiteral("systemd-run")) : QString();
}

bool startProgram(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    if (const QString starter = serviceStarter(); !starter.isEmpty()) {
        process.setProgram(starter);
        process.setArguments(QStringList{QStringLiteral("--user"), QStringLiteral("--quiet"),
                                         QStringLiteral("--collect"), QStringLiteral("--"), program} +
                             arguments);
    }
    CoreDumps::allow(process);
    return process.startDetached();
}

void openSettings(const QString &anchor)
{
    const QStringList page = privacyPage(anchor);
    if (page.isEmpty() || !startProgram(page.constFirst(), page.mid(1)))
        qCInfo(sessionLog, "no settings program is installed");
}

constexpr int kRevealTimeout = 5000; // ms, for a file manager that is started by the call.
constexpr int kMostFolders = 3;      // Windows that one request may open.

void openWithDesktop(const QUrl &url)
{
    if (!startProgram(QStringLiteral("xdg-open"), {url.toString(QUrl::FullyEncoded)}))
        qCInfo(sessionLog, "xdg-open cannot be started");
}

QList<QUrl> localFiles(QList<QUrl> files)
{
    files.removeIf([](const QUrl &file) { return !file.isLocalFile(); });
    return files;
}

void openFolders(const QList<QUrl> &files)
{
    QList<QUrl> folders;
    for (const QUrl &file : files) {
        const QUrl folder = file.adjusted(QUrl::StripTrailingSlash).adjusted(QUrl::RemoveFilename);
        if (!folders.contains(folder) && folders.size() < kMostFolders)
            folders.append(folder);
    }
    for (const QUrl &folder : std::as_const(folders))
        openWithDesktop(folder);
}

} // namespace

void DesktopWorkspace::open(const QUrl &url)
{
    if (url.scheme() == QLatin1String("x-apple.systempreferences")) {
        openSettings(url.query());
        return;
    }
    openWithDesktop(url);
}

void DesktopWorkspace::reveal(const QList<QUrl> &files)
{
    const QList<QUrl> local = localFiles(files);
    if (local.isEmpty())
        return;
    const QString manager = QStringLiteral("org.freedesktop.FileManager1");
    QDBusMessage call = QDBusMessage::createMethodCall(
        manager, QStringLiteral("/org/freedesktop/FileManager1"), manager, QStringLiteral("ShowItems"));
    call << QUrl::toStringList(local, QUrl::FullyEncoded) << QString(); // No startup notification.
    callBus(m_bus, call, kRevealTimeout, &m_answers, [local](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ReplyMessage)
            return;
        qCInfo(sessionLog, "no file manager shows files: %s", qUtf8Printable(reply.errorName()));
        openFolders(local);
    });
}

} // namespace Kestrune
