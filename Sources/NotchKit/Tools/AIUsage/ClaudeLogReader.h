#pragma once

#include "KnownLogs.h"

#include <mutex>
#include <string>

namespace Kestrune {

/// Adds up the tokens that Claude Code logs as JSON lines below some folders: the figures are those of the
/// logs as they are at each look. A look reads only what was appended since the last; a file that was cut,
/// replaced or rewritten is read again from its start. (Not noticed is what is changed in place, by as many
/// bytes, more than 4 KiB before the place up to which the file was read.) A response that is logged several
/// times counts once: the last line decides, and of several files the one whose path sorts last. Any thread;
/// one summary at a time.
class ClaudeLogReader
{
public:
    /// After so many bytes it pays to remember what was read.
    static constexpr qint64 kWorthRemembering = 8 << 20;

    /// The folders need not exist yet. One that several of them lead to is read once. What was read is
    /// remembered over a restart in the file `memory`; an empty path keeps it nowhere.
    explicit ClaudeLogReader(const QStringList &roots, QString memory = {});

    /// The figures at `now`; nothing when no response of the last seven days is logged. Costs as much as
    /// reading what was appended; one look at each file's state when nothing was.
    std::optional<ClaudeUsage> summary(const QDateTime &now);

    /// Writes what was read into the memory's file, where at least `worth` bytes were since the last time.
    /// Whether it did; what fails is tried again after as many.
    bool remember(qint64 worth = kWorthRemembering);

    /// Drops all that was read, and removes the memory's file. Whether there is none now.
    bool forget();

    /// Ends a running summary soon, and every later one at once: they give nothing.
    void cancel() { m_stop = true; }

private:
    struct Job
    {
        const LogFile *log;
        KnownLog *known;
    };

    std::vector<LogFile> findAllLogs() const;
    void recall();
    std::vector<Job> findJobs(const std::vector<LogFile> &logs, qint64 now);
    void run(std::vector<Job> &jobs, qint64 weekAgo);
    void read(const Job &job, UsageLines &lines, ClaudeLogLine &parser, qint64 weekAgo);
    void count(bool changed, qint64 weekAgo);

    std::vector<std::string> m_roots;
    const QString m_memory;
    StopFlag m_stop = false;
    std::mutex m_lock;
    bool m_recalled = false;
    KnownLogs m_known;
    std::vector<const LogEntries *> m_counted; ///< By the path of their logs.
    UsageLedger m_ledger;
    qint64 m_unsaved = 0; ///< Bytes read since the memory was written.
};

} // namespace Kestrune
