#include "ScreenshotFolders.h"

#include "ScreenshotNames.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>

#include <dirent.h>
#include <sys/stat.h>

namespace Kestrune {

namespace {

using Folders = ScreenshotFolders;

constexpr int kMostDepth = 3;         // As in year/month/day.
constexpr qsizetype kMostOfOne = 31;  // Right below a folder.
constexpr qsizetype kMostBelow = 128; // Each is watched.

QString userFolder(QStandardPaths::StandardLocation location)
{
    return QStandardPaths::writableLocation(location);
}

/// Folders that hold anything: a tool that puts its files there makes no screenshots of the others.
bool isGeneral(const QString &path)
{
    using Location = QStandardPaths::StandardLocation;
    return std::ranges::any_of(QList{Location::HomeLocation, Location::DesktopLocation,
                                     Location::PicturesLocation, Location::DocumentsLocation,
                                     Location::DownloadLocation, Location::MoviesLocation},
                               [&](Location location) { return path == userFolder(location); }) ||
           path == QLatin1String("/tmp") || path == QLatin1String("/");
}

/// Looks what is at the folder's path.
ScreenshotFolder examined(ScreenshotFolder folder)
{
    const QByteArray path = QFile::encodeName(folder.path);
    struct stat status
    {};
    if (::stat(path.constData(), &status) != 0) {
        folder.state =
            errno == EACCES ? ScreenshotFolder::State::unreadable : ScreenshotFolder::State::missing;
        return folder;
    }
    if (!S_ISDIR(status.st_mode))
        return folder;
    folder.device = status.st_dev;
    folder.node = status.st_ino;
    DIR *opened = ::opendir(path.constData());
    folder.state =
        opened || errno != EACCES ? ScreenshotFolder::State::readable : ScreenshotFolder::State::unreadable;
    if (opened)
        ::closedir(opened);
    return folder;
}

void appendFolders(QStringList &found, const QString &parent)
{
    DIR *opened = found.size() < kMostBelow ? ::opendir(QFile::encodeName(parent).constData()) : nullptr;
    if (!opened)
        return;
    QStringList names;
    while (const dirent *entry = ::readdir(opened)) {
        if (entry->d_type == DT_DIR && entry->d_name[0] != '.')
            names.append(parent + QLatin1Char('/') + QFile::decodeName(entry->d_name));
    }
    ::closedir(opened);
    names.sort();
    // Those that are named for a date, the newest first.
    std::ranges::reverse(names);
    found += names.mid(0, std::min(kMostOfOne, kMostBelow - found.size()));
}

/// The folders right below one that are named for screenshots.
QStringList namedBelow(const QString &parent)
{
    QStringList found;
    DIR *opened = ::opendir(QFile::encodeName(parent).constData());
    if (!opened)
        return found;
    while (const dirent *entry = ::readdir(opened)) {
        const bool mayBeFolder =
            entry->d_type == DT_DIR || entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN;
        if (!mayBeFolder || entry->d_name[0] == '.')
            continue;
        const QString name = QFile::decodeName(entry->d_name);
        if (ScreenshotNames::isScreenshotFolder(name))
            found.append(parent + QLatin1Char('/') + name);
    }
    ::closedir(opened);
    found.sort();
    return found;
}

/// The folders below one, level by level, without links and hidden ones.
QStringList foldersBelow(const QString &top)
{
    QStringList found{top};
    qsizetype level = 0;
    for (int depth = 0; depth < kMostDepth; ++depth) {
        const qsizetype end = found.size();
        for (; level < end; ++level)
            appendFolders(found, found.at(level));
    }
    return found.mid(1);
}

void add(Folders &folders, const QString &path, bool dedicated)
{
    if (path.isEmpty())
        return;
    const ScreenshotFolder folder = examined({QDir::cleanPath(path), dedicated});
    const auto same = std::ranges::find_if(folders, [&](const ScreenshotFolder &other) {
        return other.path == folder.path ||
               (folder.node != 0 && other.node == folder.node && other.device == folder.device);
    });
    if (same == folders.end())
        folders.append(folder);
    else
        same->dedicated = same->dedicated || dedicated;
}

/// A folder that screenshots are told to go to, and those below where it holds pictures only.
void addTree(Folders &folders, const QString &path, bool dedicated)
{
    add(folders, path, dedicated);
    if (!dedicated && path != userFolder(QStandardPaths::PicturesLocation))
        return;
    for (const QString &below : foldersBelow(QDir::cleanPath(path)))
        add(folders, below, dedicated);
}

} // namespace

ScreenshotFolders findScreenshotFolders(const QString &location, const ScreenshotTools &tools)
{
    const QString pictures = userFolder(QStandardPaths::PicturesLocation);
    Folders folders;
    addTree(folders, location, !location.isEmpty() && !isGeneral(location));
    for (const QString &path : tools.folders)
        addTree(folders, path, ScreenshotNames::isScreenshotFolder(QDir(path).dirName()));
    const QString session = qEnvironmentVariable("XDG_SCREENSHOTS_DIR");
    if (QDir::isAbsolutePath(session))
        addTree(folders, session, !isGeneral(session));
    for (const QString &path : namedBelow(pictures))
        addTree(folders, path, true);
    for (const QString &path : {pictures, userFolder(QStandardPaths::DesktopLocation), QDir::homePath()})
        add(folders, path, false);
    return folders;
}

} // namespace Kestrune
