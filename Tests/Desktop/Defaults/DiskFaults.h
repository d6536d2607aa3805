#pragma once

#include <QFile>
#include <QString>

#include <csignal>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

/// Keeps a file or folder from being changed, even by root, while it lives.
struct Freeze
{
    explicit Freeze(const QString &path)
        : m_descriptor(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC))
    {
        isFrozen = set(true);
    }
    ~Freeze()
    {
        set(false);
        close(m_descriptor);
    }
    Q_DISABLE_COPY(Freeze)

    bool isFrozen;

private:
    bool set(bool frozen) const
    {
        if (geteuid() != 0)
            return fchmod(m_descriptor, frozen ? 0500 : 0700) == 0;
        int flags = 0;
        if (ioctl(m_descriptor, FS_IOC_GETFLAGS, &flags) != 0)
            return false;
        flags = frozen ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
        return ioctl(m_descriptor, FS_IOC_SETFLAGS, &flags) == 0;
    }
    int m_descriptor;
};

/// Makes this process's writes past `size` bytes of any file fail while it lives, as a full disk does.
struct FileSizeLimit
{
    explicit FileSizeLimit(rlim_t size)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limited{size, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY(FileSizeLimit)

private:
    void (*m_handler)(int);
    rlimit m_before{};
};
