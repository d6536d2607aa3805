#include "LogFolder.h"

#include <QLoggingCategory>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Kestrune {

namespace {

Q_LOGGING_CATEGORY(usageLog, "kestrune.usage", QtWarningMsg)

struct CloseFolder
{
    void operator()(DIR *folder) const { closedir(folder); }
};

FileStamp stampOf(const struct stat &status)
{
    return {status.st_dev, status.st_ino, status.st_size,
            qint64(status.st_mtim.tv_sec) * 1'000'000'000 + status.st_mtim.tv_nsec};
}

bool isLogName(std::string_view name) { return name.ends_with(".jsonl"); }

/// Walks with one folder open at a time, however deep the tree is.
class Walk
{
public:
    explicit Walk(const std::string &root)
        : m_waiting{root}
    {}

    bool isDone() const { return m_waiting.empty(); }

    void listNext()
    {
        const std::string folder = std::move(m_waiting.back());
        m_waiting.pop_back();
        const std::unique_ptr<DIR, CloseFolder> open(opendir(folder.c_str()));
        if (!open) {
            qCDebug(usageLog, "a folder of logs cannot be read: %s", std::strerror(errno));
            return;
        }
        while (const dirent *entry = readdir(open.get())) {
            if (entry->d_name[0] != '.')
                visit(open.get(), folder + '/' + entry->d_name, *entry);
        }
    }

    std::vector<LogFile> logs;

private:
    void visit(DIR *folder, std::string path, const dirent &entry)
    {
        if (isFolder(folder, entry)) {
            m_waiting.push_back(std::move(path));
            return;
        }
        struct stat status = {};
        if (isLogName(entry.d_name) && fstatat(dirfd(folder), entry.d_name, &status, 0) == 0 &&
            S_ISREG(status.st_mode))
            logs.push_back({std::move(path), stampOf(status)});
    }

    static bool isFolder(DIR *folder, const dirent &entry)
    {
        if (entry.d_type != DT_UNKNOWN)
            return entry.d_type == DT_DIR;
        struct stat status = {};
        return fstatat(dirfd(folder), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
               S_ISDIR(status.st_mode);
    }

    std::vector<std::string> m_waiting;
};

} // namespace

std::vector<LogFile> findLogs(const std::string &root, const StopFlag &stop)
{
    Walk walk(root);
    while (!walk.isDone() && !stop)
        walk.listNext();
    std::ranges::sort(walk.logs, {}, &LogFile::path);
    return std::move(walk.logs);
}

OpenFile::OpenFile(const std::string &path)
    : m_descriptor(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC))
{
    struct stat status = {};
    if (isOpen() && fstat(m_descriptor, &status) == 0 && S_ISREG(status.st_mode)) {
        m_stamp = stampOf(status);
        return;
    }
    if (isOpen())
        close(m_descriptor);
    m_descriptor = -1;
}

OpenFile::~OpenFile()
{
    if (isOpen())
        close(m_descriptor);
}

qint64 OpenFile::read(char *data, qint64 size, qint64 offset) const
{
    qint64 done = 0;
    while (done < size) {
        const ssize_t count =
            pread(m_descriptor, data + done, static_cast<std::size_t>(size - done), offset + done);
        if (count > 0)
            done += count;
        else if (count == 0 || errno != EINTR)
            break;
    }
    return done;
}

} // namespace Kestrune
