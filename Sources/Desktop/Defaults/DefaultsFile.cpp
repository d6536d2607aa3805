#include "Desktop/Defaults/DefaultsFile.h"

#include "NotchKit/Platform/Utc.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace Kestrune {

namespace {

constexpr std::array companions{"-wal", "-shm", "-journal"};
const QString asideSuffix = QStringLiteral(".damaged-");

[[noreturn]] void fail(int error) { throw std::system_error(error, std::generic_category()); }

bool statusOf(const QString &path, struct stat *status)
{
    return stat(QFile::encodeName(path).constData(), status) == 0;
}

QString beside(const QString &path, const char *suffix) { return path + QLatin1String(suffix); }

void rename(const QString &from, const QString &to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    int code = renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE);
    if (code != 0 && (errno == EINVAL || errno == ENOSYS)) // the caller has seen that `to` is free
        code = ::rename(source.constData(), target.constData());
    if (code != 0)
        fail(errno);
}

bool isTaken(const QString &path)
{
    return !isMissing(path) || std::any_of(companions.begin(), companions.end(), [&](const char *suffix) {
        return !isMissing(beside(path, suffix));
    });
}

QString unusedName(const QString &path)
{
    const QString stamped =
        path + asideSuffix + QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString name = stamped;
    for (int number = 2; isTaken(name); ++number)
        name = stamped + QLatin1Char('-') + QString::number(number);
    return name;
}

/// What a stamp reads, parted into day and time because some times of UTC are none where the user is.
QDateTime timeOf(const QString &stamp)
{
    return {QDate::fromString(stamp.left(8), QStringLiteral("yyyyMMdd")),
            QTime::fromString(stamp.mid(9, 6), QStringLiteral("HHmmss")), kUtc};
}

/// Of the file at `path` itself, should it be a link.
QString realPath(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? path : canonical;
}

} // namespace

std::optional<FileState> fileState(const QString &path)
{
    struct stat status
    {};
    if (!statusOf(path, &status))
        return std::nullopt;
    return FileState{{status.st_dev, status.st_ino},
                     status.st_size,
                     qint64{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec};
}

std::optional<FileIdentity> fileIdentity(const QString &path)
{
    const auto state = fileState(path);
    return state ? std::optional(state->identity) : std::nullopt;
}

bool isMissing(const QString &path)
{
    struct stat status
    {};
    return !statusOf(path, &status) && (errno == ENOENT || errno == ENOTDIR);
}

void makePrivateFolder(const QString &path)
{
    struct stat status
    {};
    if (statusOf(path, &status))
        return;
    if (const QString parent = QFileInfo(path).path(); parent != path)
        makePrivateFolder(parent);
    if (mkdir(QFile::encodeName(path).constData(), 0700) != 0 && errno != EEXIST)
        fail(errno);
}

void makePrivateFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    // Not open(): closing a descriptor of a database would drop the locks SQLite holds on it.
    if (mknod(name.constData(), S_IFREG | 0600, 0) != 0 && errno != EEXIST)
        fail(errno);
    struct stat status
    {};
    if (stat(name.constData(), &status) == 0 && (status.st_mode & 077) != 0)
        chmod(name.constData(), 0600); // as far as the file is ours; reading it matters more
}

bool isOnNetwork(const QString &path)
{
    constexpr std::array<unsigned long, 8> shared{NFS_SUPER_MAGIC,  SMB_SUPER_MAGIC, SMB2_SUPER_MAGIC,
                                                  CIFS_SUPER_MAGIC, V9FS_MAGIC,      CEPH_SUPER_MAGIC,
                                                  AFS_SUPER_MAGIC,  CODA_SUPER_MAGIC};
    struct statfs system
    {};
    return statfs(QFile::encodeName(path).constData(), &system) == 0 &&
           std::find(shared.begin(), shared.end(), static_cast<unsigned long>(system.f_type)) != shared.end();
}

QString setAside(const QString &path)
{
    const QString file = realPath(path);
    const QString name = unusedName(file);
    // The file goes last: a new one must never meet the log of the old.
    for (const char *suffix : companions) {
        if (!isMissing(beside(file, suffix)))
            rename(beside(file, suffix), beside(name, suffix));
    }
    rename(file, name);
    return name;
}

void removeSetAside(const QString &path, std::chrono::seconds age)
{
    const QFileInfo file(realPath(path));
    const QString prefix = file.fileName() + asideSuffix;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (const QFileInfo &copy : file.dir().entryInfoList(QDir::Files | QDir::Hidden | QDir::System)) {
        if (!copy.fileName().startsWith(prefix))
            continue;
        const QDateTime time = timeOf(copy.fileName().mid(prefix.size()));
        if (time.isValid() && std::chrono::seconds(time.secsTo(now)) >= age)
            QFile::remove(copy.filePath());
    }
}

FolderLock::FolderLock(const QString &folder, std::chrono::milliseconds patience)
    : m_descriptor(open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (m_descriptor < 0)
        fail(errno);
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (flock(m_descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        if (std::chrono::steady_clock::now() >= deadline) {
            close(m_descriptor);
            fail(EWOULDBLOCK);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

FolderLock::~FolderLock() { close(m_descriptor); }

} // namespace Kestrune
