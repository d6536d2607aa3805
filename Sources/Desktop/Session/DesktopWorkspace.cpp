#include "DesktopWorkspace.h"

#include "CoreDumps.h"
#include "Desktop/Bus/BusCall.h"
#include "Log.h"
#include "PictureEditor.h"
#include "PrivacyPages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include <sys/prctl.h>

namespace Kestrune {

Q_LOGGING_CATEGORY(sessionLog, "kestrune.session", QtWarningMsg)

using namespace std::chrono_literals;

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

constexpr auto kLongestEditorSearch = 10s;
constexpr auto kLongestTrashing = 60s; // To another disk it is a copy.
constexpr int kRevealTimeout = 5000;   // ms, for a file manager that is started by the call.
constexpr int kMostFolders = 3;        // Windows that one request may open.

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

/// Without a trash that can be made or trusted, some versions of Qt move the file to a folder of the
/// program's own instead: then it comes back.
bool trash(const QString &path)
{
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    QString moved;
    if (!QFile::moveToTrash(path, &moved))
        return false;
    const QString place = QFileInfo(moved).absolutePath();
    if (place.contains(QLatin1String("/Trash/")) || place.contains(QLatin1String("/.Trash")))
        return true;
    qCWarning(sessionLog, "there is no trash");
    QFile::rename(moved, path);
    return false;
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

QFuture<bool> DesktopWorkspace::hasPictureEditor()
{
    return m_entries.run(kLongestEditorSearch, [] { return findPictureEditor().has_value(); });
}

void DesktopWorkspace::edit(const QUrl &picture)
{
    if (picture.isLocalFile())
        m_edits.start(&DesktopWorkspace::startEditor, this, picture);
}

/// Looked for anew: another may have been installed since.
QCoro::Task<> DesktopWorkspace::startEditor(QUrl picture)
{
    const QFuture<std::optional<PictureEditor>> asked =
        m_entries.run(kLongestEditorSearch, [] { return findPictureEditor(); });
    const std::optional<PictureEditor> editor = co_await until(asked);
    if (!editor)
        co_return;
    const QStringList words = editor->commandFor(picture.toLocalFile());
    if (!startProgram(words.constFirst(), words.mid(1)))
        qCInfo(sessionLog, "%s cannot be started", qUtf8Printable(editor->entry));
}

QFuture<bool> DesktopWorkspace::moveToTrash(const QUrl &file)
{
    return m_trash.run(kLongestTrashing,
                       [path = file.toLocalFile()] { return !path.isEmpty() && trash(path); });
}

} // namespace Kestrune
