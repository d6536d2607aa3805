#pragma once

#include "Desktop/Defaults/DefaultsFile.h"

#include <QString>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace Kestrune {

/// Brings the log of a database into its file, both synced, shortly after each burst of writes, so that a
/// power cut costs a moment at most. Works on a thread of its own, which never wakes while nothing is due.
/// Its functions belong to one thread.
class Checkpointer
{
public:
    explicit Checkpointer(const QString &path);
    ~Checkpointer();
    Checkpointer(const Checkpointer &) = delete;
    Checkpointer &operator=(const Checkpointer &) = delete;

    /// Something was written to `file`: checkpoints it a second after the last such call, or at once when
    /// `urgent`. While calls keep coming, syncs the log alone every five seconds. Never waits for the disk.
    void schedule(FileIdentity file, bool urgent);

    /// Ends the thread, waiting for a checkpoint under way. Returns whether one is still due.
    bool stop();

private:
    using Clock = std::chrono::steady_clock;

    bool startThread();
    void run();
    void waitUntilDue(std::unique_lock<std::mutex> &lock);
    void scheduleAgain();

    const QString m_path;
    std::mutex m_mutex; // guards all below but m_worker
    std::condition_variable m_wake;
    FileIdentity m_file{};
    Clock::time_point m_firstWrite;
    Clock::time_point m_lastWrite;
    bool m_due = false;
    bool m_urgent = false;
    int m_failures = 0;
    bool m_stopping = false;
    std::thread m_worker;
};

} // namespace Kestrune
