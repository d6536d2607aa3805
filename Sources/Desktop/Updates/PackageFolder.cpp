#include "PackageFolder.h"

#include <QFileInfo>

#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Kestrune {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kForOwner = 0700;
constexpr mode_t kForOthers = 0077;

/// Takes the descriptor, if it is one, to be closed with the file.
bool hold(QFile &file, int descriptor, QIODevice::OpenMode mode)
{
    return descriptor >= 0 &&
           file.open(descriptor, mode | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
}

} // namespace

void PackageFolder::close()
{
    if (m_descriptor >= 0)
        ::close(std::exchange(m_descriptor, -1));
}

bool PackageFolder::open(const QString &path)
{
    close();
    m_descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat is = {};
    return m_descriptor >= 0 && ::fstat(m_descriptor, &is) == 0 && is.st_uid == ::geteuid() &&
           (is.st_mode & kForOthers) == 0;
}

bool PackageFolder::renew(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    const fs::path folder(name.toStdString());
    std::error_code ignored; // What could not be removed is in the way.
    if (fs::symlink_status(folder, ignored).type() == fs::file_type::directory)
        fs::remove_all(folder, ignored);
    fs::create_directories(folder.parent_path(), ignored);
    return ::mkdir(name.constData(), kForOwner) == 0 && open(path);
}

bool PackageFolder::openFile(QFile &file, const QString &name) const
{
    const int descriptor = ::openat(m_descriptor, QFile::encodeName(name).constData(),
                                    O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    return hold(file, descriptor, QIODevice::ReadOnly);
}

bool PackageFolder::makeFile(QFile &file, const QString &name) const
{
    const int descriptor = ::openat(m_descriptor, QFile::encodeName(name).constData(),
                                    O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    return hold(file, descriptor, QIODevice::ReadWrite);
}

bool PackageFolder::rename(const QString &from, const QString &to) const
{
    return ::renameat(m_descriptor, QFile::encodeName(from).constData(), m_descriptor,
                      QFile::encodeName(to).constData()) == 0;
}

void PackageFolder::remove(const QString &name) const
{
    ::unlinkat(m_descriptor, QFile::encodeName(name).constData(), 0);
}

} // namespace Kestrune
