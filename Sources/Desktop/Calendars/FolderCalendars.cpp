#include "FolderCalendars.h"

#include "Log.h"
#include "TaskCompletion.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Kestrune {

namespace {

constexpr int kDeepestFolder = 2; // An account's folder, a calendar's folder.

QString usualRoot()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/calendars");
}

/// The colour that the folder's file names; invalid without one. Some programs add the opacity.
QColor colorOf(const QString &folder)
{
    QFile file(folder + QStringLiteral("/color"));
    constexpr int kLongest = 32;
    if (!QFileInfo(file).isFile() || !file.open(QFile::ReadOnly))
        return {};
    QString name = QString::fromLatin1(file.read(kLongest)).trimmed();
    if (name.startsWith(QLatin1Char('#')) && name.size() == 9)
        name.truncate(7);
    return QColor::isValidColorName(name) ? QColor(name) : QColor();
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
    if (file.isSequential() || file.size() > IcalReader::kMostBytes)
        return std::nullopt;
    return file.readAll();
}

/// What has ended before, unless it comes again.
bool isOver(const IcalEntry &entry, const QDateTime &from)
{
    return !entry.repeats() && !entry.instance.isValid() && entry.span.endOf(entry.start) < from;
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

void FolderCalendars::look(const QDateTime &from)
{
    ++m_looks;
    lookAt(m_root, 0, from);
    m_files.removeIf([this](QMap<QByteArray, File>::iterator file) { return file->look != m_looks; });
}

void FolderCalendars::lookAt(const QString &folder, int depth, const QDateTime &from)
{
    const QByteArray path = QFile::encodeName(folder);
    const Names names = namesIn(path);
    const QColor color = names.files.isEmpty() ? QColor() : colorOf(folder);
    for (const QByteArray &name : names.files)
        update(path + '/' + name, color, from);
    for (const QByteArray &name : depth < kDeepestFolder ? names.folders : QList<QByteArray>())
        lookAt(folder + QLatin1Char('/') + QFile::decodeName(name), depth + 1, from);
}

void FolderCalendars::update(const QByteArray &path, const QColor &color, const QDateTime &from)
{
    struct stat info = {};
    if (::stat(path.constData(), &info) != 0 || !S_ISREG(info.st_mode))
        return;
    File &file = m_files[path];
    const qint64 modified = info.st_mtim.tv_sec * 1'000'000'000 + info.st_mtim.tv_nsec;
    const bool same = file.modified == modified && file.size == info.st_size && file.number == info.st_ino;
    const bool enough = !from.isValid() || !file.forgotten.isValid() || from >= file.forgotten;
    file.look = m_looks;
    file.color = color;
    if (same && enough)
        return;
    file.modified = modified;
    file.size = info.st_size;
    file.number = info.st_ino;
    read(path, file, from);
}

void FolderCalendars::read(const QByteArray &path, File &file, const QDateTime &from)
{
    const auto data = readFile(path);
    const auto contents = data ? m_reader.readCalendar(*data) : std::nullopt;
    if (!contents)
        qCWarning(calendarLog, "%s is no whole calendar and is left out", path.constData());
    file.contents = contents.value_or(IcalContents());
    const QDateTime kept = (from.isValid() ? from : QDateTime::currentDateTimeUtc()).addDays(-1);
    file.forgotten =
        file.contents.events.removeIf([&](const IcalEntry &entry) { return isOver(entry, kept); }) > 0
            ? kept
            : QDateTime();
    file.contents.tasks.removeIf([](const IcalEntry &entry) { return entry.done || entry.cancelled; });
}

std::optional<CalendarStore::Events> FolderCalendars::events(const IcalRange &range)
{
    look(range.from);
    CalendarStore::Events events;
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file)
        events += icalOccurrences(file->contents.events, range, QFile::decodeName(file.key()), file->color,
                                  m_suspects);
    return events;
}

std::optional<CalendarStore::Tasks> FolderCalendars::openTasks()
{
    look({});
    CalendarStore::Tasks tasks;
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file)
        tasks += icalOpenTasks(file->contents.tasks, QFile::decodeName(file.key()), file->color);
    return tasks;
}

bool FolderCalendars::complete(const IcalTaskId &task)
{
    const QByteArray path = QFile::encodeName(task.origin);
    const auto data = m_files.contains(path) ? readFile(path) : std::nullopt;
    const auto done =
        data ? completeTask(*data, task.uid, task.instance, QDateTime::currentDateTimeUtc(), m_reader)
             : std::nullopt;
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
