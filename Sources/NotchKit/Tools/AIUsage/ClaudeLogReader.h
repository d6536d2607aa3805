#pragma once

#include "UsageLedger.h"
#include "UsageLines.h"

#include <mutex>
#include <string>
#include <unordered_map>

namespace Kestrune {

/// Adds up the tokens that Claude Code logs as JSON lines below some folders. Each look reads only what was
/// appended since the last; a file that was cut or replaced is read again from its start. A response that
/// is logged several times counts once: the line read last decides, and among lines read in one go, the
/// last one of the file whose path sorts last. Any thread; one summary at a time.
class ClaudeLogReader
{
public:
    /// The folders need not exist yet. One that several of them lead to is read once.
    explicit ClaudeLogReader(const QStringList &roots);

    /// The figures at `now`; nothing when no response of the last seven days is logged. Costs as much as
    /// reading what was appended; one look at each file's state when nothing was.
    std::optional<ClaudeUsage> summary(const QDateTime &now);

    /// Ends a running summary soon, and every later one at once: they give nothing.
    void cancel() { m_stop = true; }

private:
    struct Known
    {
        FileStamp stamp;
        LogPosition position;
        qint64 seen = 0; ///< When it was last found, ms since 1970.
    };
    struct Job
    {
        const LogFile *log;
        Known *known;
        quint32 rank;
    };

    std::vector<LogFile> findAllLogs() const;
    std::vector<Job> findJobs(const std::vector<LogFile> &logs, qint64 now);
    void run(std::vector<Job> &jobs);
    void read(const Job &job, UsageLines &lines, ClaudeLogLine &parser);

    std::vector<std::string> m_roots;
    StopFlag m_stop = false;
    std::mutex m_lock;
    std::unordered_map<std::string, Known> m_files;
    UsageLedger m_ledger;
    quint32 m_rank = 0;
};

} // namespace Kestrune
