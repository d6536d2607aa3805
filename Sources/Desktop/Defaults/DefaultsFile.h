#pragma once

#include <QString>

#include <chrono>
#include <optional>

#include <sys/types.h>

/// What the store needs from the file system besides SQLite. Failures throw std::system_error.
namespace Kestrune {

/// Which file it is, whatever its name.
struct FileIdentity
{
    dev_t device;
    ino_t number;
    bool operator==(const FileIdentity &) const = default;
};

/// The file at a path and the traces that a change of its content leaves.
struct FileState
{
    FileIdentity identity;
    off_t size;
    qint64 modified; ///< nanoseconds since 1970
    bool operator==(const FileState &) const = default;
};

/// What is at `path`; nothing when it is missing or out of reach.
std::optional<FileState> fileState(const QString &path);

std::optional<FileIdentity> fileIdentity(const QString &path);

/// True only when there is certainly nothing at `path`.
bool isMissing(const QString &path);

/// Creates `path` and what is missing above it, for the user alone.
void makePrivateFolder(const QString &path);

/// Creates an empty file for the user alone where none is, and takes an existing one from all others.
void makePrivateFile(const QString &path);

/// Whether `path` lies on a file system other machines reach too.
bool isOnNetwork(const QString &path);

/// Renames the database at `path` and the companions SQLite keeps beside it, so that a new one can take
/// their place; no file is overwritten. Returns the new path.
QString setAside(const QString &path);

/// Removes what setAside() has put aside of `path`, its companions too, if that was at least `age` ago. What
/// cannot be removed stays, without an error.
void removeSetAside(const QString &path, std::chrono::seconds age = std::chrono::seconds::min());

/// Lets one process at a time in, of all that open or exchange files in `folder`; ends with its life.
class FolderLock
{
public:
    /// Waits at most `patience`, then throws. File systems that cannot lock folders are not locked.
    FolderLock(const QString &folder, std::chrono::milliseconds patience);
    ~FolderLock();
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

private:
    int m_descriptor;
};

} // namespace Kestrune
