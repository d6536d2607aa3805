#include "Desktop/Defaults/Checkpointer.h"

#include "Desktop/Defaults/DefaultsDatabase.h"
#include "Desktop/Defaults/Log.h"

#include <QFile>

#include <algorithm>
#include <system_error>

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace Kestrune {

using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

constexpr int attempts = 10;
constexpr seconds quietTime(1);
constexpr seconds longestBurst(5);

/// The log as a file. SQLite keeps its locks elsewhere, so that opening it apart disturbs nobody.
class LogFile
{
public:
    explicit LogFile(const SqliteDatabase &database)
        : m_descriptor(open(sqlite3_filename_wal(sqlite3_db_filename(database.handle(), "main")),
                            O_RDONLY | O_CLOEXEC))
    {}
    ~LogFile()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    LogFile(const LogFile &) = delete;
    LogFile &operator=(const LogFile &) = delete;

    void sync() const
    {
        if (m_descriptor >= 0)
            fdatasync(m_descriptor);
    }

private:
    int m_descriptor;
};

/// Syncs the log and, when `mayLock`, empties it into the file. False when that has to be tried again.
bool bringIn(const QString &path, FileIdentity expected, bool mayLock)
{
    if (fileIdentity(path) != expected) // its log may not belong to it
        return true;
    try {
        SqliteDatabase database(path, SqliteDatabase::Mode::ReadWrite);
        database.setPatience(milliseconds(100));
        database.execute("SELECT count(*) FROM sqlite_schema"); // a connection finds its log when reading
        const LogFile log(database);
        log.sync(); // the longest part, done before the checkpoint shuts writers out
        if (!mayLock)
            return true;
        checkpoint(database);
        log.sync();
        return true;
    } catch (const SqliteError &error) {
        qCDebug(settingsLog, "the log stays for now: %s", error.what());
        return false;
    }
}

} // namespace

Checkpointer::Checkpointer(const QString &path)
    : m_path(path)
{}

Checkpointer::~Checkpointer() { stop(); }

void Checkpointer::schedule(FileIdentity file, bool urgent)
{
    if (!m_worker.joinable() && !startThread())
        return;
    const std::lock_guard lock(m_mutex);
    m_file = file;
    m_lastWrite = Clock::now();
    // The thread looks at the time of the last write by itself when its second is over.
    const bool mustWake = !m_due || (urgent && !m_urgent);
    if (!m_due)
        m_firstWrite = m_lastWrite;
    m_due = true;
    m_urgent = m_urgent || urgent;
    m_failures = 0;
    if (mustWake)
        m_wake.notify_one();
}

bool Checkpointer::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
        m_wake.notify_one();
    }
    if (m_worker.joinable())
        m_worker.join();
    return m_due;
}

bool Checkpointer::startThread()
{
    try {
        m_worker = std::thread([this] { run(); });
        return true;
    } catch (const std::system_error &) {
        const std::lock_guard lock(m_mutex);
        m_due = true; // the next write tries again, and the end of the store syncs in any case
        return false;
    }
}

void Checkpointer::run()
{
    for (std::unique_lock lock(m_mutex);;) {
        waitUntilDue(lock);
        if (m_stopping)
            return;
        // While writes keep coming they must not be locked out, unless the log grows too long.
        const bool mayLock = m_urgent || Clock::now() >= m_lastWrite + quietTime;
        m_due = m_urgent = false;
        const FileIdentity file = m_file;
        lock.unlock();
        const bool done = bringIn(m_path, file, mayLock);
        lock.lock();
        m_failures = done ? 0 : m_failures + 1;
        if (!mayLock || (!done && m_failures < attempts))
            scheduleAgain();
    }
}

void Checkpointer::waitUntilDue(std::unique_lock<std::mutex> &lock)
{
    while (!m_stopping && !m_urgent) {
        const auto deadline = std::min(m_lastWrite + quietTime, m_firstWrite + longestBurst);
        if (!m_due)
            m_wake.wait(lock);
        else if (Clock::now() < deadline)
            m_wake.wait_until(lock, deadline);
        else
            return;
    }
}

void Checkpointer::scheduleAgain()
{
    m_due = true;
    m_urgent = false;
    m_firstWrite = m_lastWrite = Clock::now();
}

} // namespace Kestrune
