#include "FolderWatch.h"

#include "Log.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <cstring>

#include <sys/inotify.h>
#include <unistd.h>

namespace Kestrune {

namespace {

/// Files that are complete, or moved, linked, permitted, deleted; folders that come and go. Not every write.
constexpr uint32_t kWanted = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_CREATE | IN_DELETE |
                             IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR | IN_EXCL_UNLINK;
constexpr uint32_t kOfTheFolderItself = IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED;

QString above(const QString &folder) { return folder.left(std::max<qsizetype>(folder.lastIndexOf(u'/'), 1)); }

} // namespace

FolderWatch::FolderWatch()
    : m_descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    if (m_descriptor < 0)
        qCWarning(capturesLog, "folders cannot be watched: %s", std::strerror(errno));
}

FolderWatch::~FolderWatch()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

int FolderWatch::add(const QString &folder) const
{
    return ::inotify_add_watch(m_descriptor, QFile::encodeName(folder).constData(), kWanted);
}

bool FolderWatch::setFolders(const QStringList &folders)
{
    if (m_descriptor < 0)
        return false;
    QHash<int, QStringList> watched;
    for (QString folder : folders) {
        int number = add(folder);
        while (number < 0 && folder != QLatin1String("/")) {
            folder = above(folder);
            number = add(folder);
        }
        if (number >= 0 && !watched[number].contains(folder))
            watched[number].append(folder);
    }
    for (auto old = m_folders.cbegin(); old != m_folders.cend(); ++old) {
        if (!watched.contains(old.key()))
            ::inotify_rm_watch(m_descriptor, old.key());
    }
    return std::exchange(m_folders, watched) != watched;
}

QList<FolderWatch::Event> FolderWatch::take()
{
    QList<Event> events;
    alignas(inotify_event) std::array<char, 16384> buffer;
    for (;;) {
        const ssize_t length = m_descriptor < 0 ? 0 : ::read(m_descriptor, buffer.data(), buffer.size());
        if (length <= 0)
            return events;
        for (ssize_t place = 0; place < length;) {
            const auto *event = reinterpret_cast<const inotify_event *>(buffer.data() + place);
            place += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            if ((event->mask & IN_Q_OVERFLOW) != 0)
                events.append({{}, {}, false, true});
            const bool isFolder = (event->mask & (IN_ISDIR | kOfTheFolderItself)) != 0;
            const QByteArray name = event->len > 0 ? QByteArray(event->name) : QByteArray();
            for (const QString &folder : m_folders.value(event->wd))
                events.append({folder, name, isFolder, false});
        }
    }
}

} // namespace Kestrune
