#include "FolderCalendars.h"

#include "CalendarColor.h"
#include "Log.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Kestrune {

namespace {

constexpr int kDeepestFolder = 2;                         // An account's folder, a calendar's folder.
constexpr qint64 kMostBytes = qint64{16} * 1024 * 1024;   // Of one file.
constexpr qsizetype kMostAtOnce = qsizetype{1024} * 1024; // Bytes of files that are in memory.

QString usualRoot()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/calendars");
}

/// The first bytes of a plain file; empty where there is none.
QByteArray beginOf(const QString &path, qint64 bytes)
{
    QFile file(path);
    return QFileInfo(file).isFile() && file.open(QFile::ReadOnly) ? file.read(bytes) : QByteArray();
}

/// What the folder's file calls it; else the folder's own name.
QString nameOf(const QString &folder)
{
    constexpr qint64 kLongest = 1024;
    const QByteArray text = beginOf(folder + QStringLiteral("/displayname"), kLongest);
    const QString name = QString::fromUtf8(text.trimmed().split('\n').first());
    return name.isEmpty() ? QFileInfo(folder).fileName() : name;
}

/// The colour that the folder's file names; invalid without one.
QColor colorOf(const QString &folder)
{
    constexpr qint64 kLongest = 64;
    return calendarColor(QString::fromLatin1(beginOf(folder + QStringLiteral("/color"), kLongest)));
}

struct Names
{
    QList<QByteArray> files;
    QList<QByteArray> folders;
};

bool isFolder(int parent, const dirent &entry)
{
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK)
        return entry.d_type == DT_DIR;
    struct stat info = {};
    return ::fstatat(parent, entry.d_name, &info, 0) == 0 && S_ISDIR(info.st_mode);
}

/// What is in the folder, without what is hidden: the files are those of calendars.
Names namesIn(const QByteArray &folder)
{
    Names names;
    DIR *open = ::opendir(folder.constData());
    if (!open) {
        qCDebug(calendarLog, "a folder of calendars cannot be read: %s", std::strerror(errno));
        return names;
    }
    while (const dirent *entry = ::readdir(open)) {
        const QByteArray name(entry->d_name);
        if (name.startsWith('.'))
            continue;
        if (isFolder(::dirfd(open), *entry))
            names.folders.append(name);
        else if (name.toLower().endsWith(".ics"))
            names.files.append(name);
    }
    ::closedir(open);
    return names;
}

/// The whole of a plain file; nothing when it cannot be read or is too long. Never waits for a pipe's writer.
std::optional<QByteArray> readFile(const QByteArray &path)
{
    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QFile::ReadOnly | QFile::Unbuffered, QFile::AutoCloseHandle))
        return std::nullopt;
    if (file.isSequential() || file.size() > kMostBytes)
        return std::nullopt;
    return file.readAll();
}

/// The near future: for tasks, which have none.
IcalRange usualRange()
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    return {now, now.addDays(2)};
}

} // namespace

QString FolderCalendars::rootFor(const QString &chosen)
{
    if (chosen == QLatin1String("~") || chosen.startsWith(QLatin1String("~/")))
        return QDir::homePath() + chosen.mid(1);
    if (!chosen.isEmpty())
        return QDir::home().absoluteFilePath(chosen);
    const QString older = QDir::homePath() + QStringLiteral("/.calendars");
    return !QFileInfo(usualRoot()).isDir() && QFileInfo(older).isDir() ? older : usualRoot();
}

CalendarAccess FolderCalendars::access()
{
    const QFileInfo root(m_root);
    if (!root.exists())
        return CalendarAccess::notDetermined;
    return root.isDir() && root.isReadable() && root.isExecutable() ? CalendarAccess::full
                                                                    : CalendarAccess::denied;
}

bool FolderCalendars::requestAccess()
{
    const QString parent = QFileInfo(m_root).path();
    if (!QFileInfo::exists(m_root) && QDir().mkpath(parent))
        ::mkdir(QFile::encodeName(m_root).constData(), S_IRWXU);
    return access() == CalendarAccess::full;
}

void FolderCalendars::look(const std::optional<IcalRange> &range)
{
    const QByteArray zone = HelperCalendars::userZone();
    if (m_zone != zone)
        m_files.clear();
    m_zone = zone;
    ++m_looks;
    lookAt(m_root, 0, range);
    m_files.removeIf([this](QMap<QByteArray, File>::iterator file) { return file->look != m_looks; });
    readChanged(range.value_or(usualRange()));
}

void FolderCalendars::lookAt(const QString &folder, int depth, const std::optional<IcalRange> &range)
{
    const QByteArray path = QFile::encodeName(folder);
    const Names names = namesIn(path);
    const QColor color = names.files.isEmpty() ? QColor() : colorOf(folder);
    for (const QByteArray &name : names.files)
        update(path + '/' + name, color, range);
    for (const QByteArray &name : depth < kDeepestFolder ? names.folders : QList<QByteArray>())
        lookAt(folder + QLatin1Char('/') + QFile::decodeName(name), depth + 1, range);
}

void FolderCalendars::update(const QByteArray &path, const QColor &color,
                             const std::optional<IcalRange> &range)
{
    struct stat info = {};
    if (::stat(path.constData(), &info) != 0 || !S_ISREG(info.st_mode))
        return;
    File &file = m_files[path];
    const qint64 modified = info.st_mtim.tv_sec * 1'000'000'000 + info.st_mtim.tv_nsec;
    const bool same = file.modified == modified && file.size == info.st_size && file.number == info.st_ino;
    file.look = m_looks;
    file.color = color;
    if (same && (!range || covers(file, *range)))
        return;
    file.modified = modified;
    file.size = info.st_size;
    file.number = info.st_ino;
    m_changed.append(path);
}

/// What was found once serves until the day is over; where there was too much, until half of it has passed,
/// if it ever passes.
bool FolderCalendars::covers(const File &file, const IcalRange &range)
{
    if (file.found.state != IcalFound::State::read)
        return file.found.state != IcalFound::State::unread;
    const QDateTime &from = file.range.from;
    const QDateTime &until = file.found.until;
    const bool isEnough =
        until >= file.range.to || until <= from || range.from < from.addMSecs(from.msecsTo(until) / 2);
    return from <= range.from && range.to <= file.range.to && isEnough;
}

void FolderCalendars::readChanged(const IcalRange &range)
{
    const QList<QByteArray> paths = std::exchange(m_changed, {});
    QList<IcalTexts> texts;
    qsizetype first = 0;
    qsizetype size = 0;
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const QByteArray text = readFile(paths.at(i)).value_or(QByteArray());
        texts.append({QFile::decodeName(paths.at(i)), true, {text}, {}, {}});
        size += text.size();
        if (size < kMostAtOnce && i + 1 < paths.size())
            continue;
        for (IcalFound &found : m_reader.read(std::exchange(texts, {}), range))
            take(paths.at(first++), std::move(found), range);
        size = 0;
    }
}

void FolderCalendars::take(const QByteArray &path, IcalFound found, const IcalRange &range)
{
    if (found.state == IcalFound::State::damaged)
        qCWarning(calendarLog, "%s is no whole calendar and is left out", path.constData());
    if (found.state == IcalFound::State::abandoned)
        qCWarning(calendarLog, "%s takes too much to be read and is left out", path.constData());
    if (found.leftOut > 0)
        qCInfo(calendarLog, "%s: %d rules repeat what cannot be worked out in time", path.constData(),
               found.leftOut);
    File &file = m_files[path];
    if (found.state == IcalFound::State::unread) { // What was found before is better than nothing.
        found.events = std::move(file.found.events);
        found.tasks = std::move(file.found.tasks);
    }
    file.found = std::move(found);
    file.range = range;
}

std::optional<CalendarStore::Events> FolderCalendars::events(const IcalRange &range)
{
    look(range);
    CalendarStore::Events events;
    for (const File &file : std::as_const(m_files)) {
        for (CalendarEvent event : file.found.events) {
            if (!range.overlaps(event.start, event.end))
                continue;
            event.color = file.color;
            events.append(event);
        }
    }
    return events;
}

std::optional<CalendarStore::Tasks> FolderCalendars::openTasks()
{
    look({});
    CalendarStore::Tasks tasks;
    for (const File &file : std::as_const(m_files)) {
        for (CalendarTask task : file.found.tasks) {
            task.color = file.color;
            tasks.append(task);
        }
    }
    return tasks;
}

QStringList FolderCalendars::unread()
{
    QStringList folders;
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        const QString folder = QFileInfo(QFile::decodeName(file.key())).path();
        if (file->found.state != IcalFound::State::read && !folders.contains(folder))
            folders.append(folder);
    }
    QStringList names;
    std::ranges::transform(folders, std::back_inserter(names), nameOf);
    return names;
}

bool FolderCalendars::complete(const IcalTaskId &task)
{
    const QByteArray path = QFile::encodeName(task.origin);
    const auto data = m_files.contains(path) ? readFile(path) : std::nullopt;
    QList<QByteArray> zones;
    const auto done =
        data ? m_reader.complete({task.origin, true, {*data}, {}, {}}, task, zones) : std::nullopt;
    QSaveFile file(task.origin);
    // What only the flush says of a full disk is forgotten by the commit.
    if (!done || !file.open(QFile::WriteOnly) || file.write(done->text) != done->text.size() ||
        !file.flush()) {
        qCInfo(calendarLog, "a completed task was not saved: %s",
               done ? qUtf8Printable(file.errorString()) : "it is not in its file");
        return false;
    }
    // Another program may have saved it meanwhile; its change must not be lost.
    return readFile(path) == data && file.commit();
}

} // namespace Kestrune
