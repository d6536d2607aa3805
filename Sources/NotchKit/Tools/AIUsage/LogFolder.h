#pragma once

#include <QtGlobal>

#include <atomic>
#include <string>
#include <vector>

namespace Kestrune {

/// Set from any thread to end work that goes on in another one.
using StopFlag = std::atomic<bool>;

/// Whose a file's content is and how it was when last looked at: while it is equal, nothing was written.
struct FileStamp
{
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = -1;
    qint64 modified = 0; ///< Nanoseconds since 1970.

    bool isSameFile(const FileStamp &other) const { return device == other.device && inode == other.inode; }
    bool operator==(const FileStamp &) const = default;
};

struct LogFile
{
    std::string path; ///< In the file system's own bytes.
    FileStamp stamp;
};

/// Every regular ".jsonl" file below `root`, by path. Hidden files and folders are left out; a link to a
/// file is followed, a link to a folder is not, so that no loop is walked. Nothing is opened but folders.
/// Unreadable folders are skipped; with `stop` set the result is incomplete. Any thread.
std::vector<LogFile> findLogs(const std::string &root, const StopFlag &stop);

/// An open file; -1 where opening failed. It closes with the object.
class OpenFile
{
public:
    /// Opens `path` for reading if it is a regular file; never waits for the other end of a pipe.
    explicit OpenFile(const std::string &path);
    ~OpenFile();
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    const FileStamp &stamp() const { return m_stamp; } ///< As it was when it was opened.

    /// Reads up to `size` bytes from `offset`; less only at the file's end or where it cannot be read.
    qint64 read(char *data, qint64 size, qint64 offset) const;

private:
    int m_descriptor;
    FileStamp m_stamp;
};

} // namespace Kestrune
