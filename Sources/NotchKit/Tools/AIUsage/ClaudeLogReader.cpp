#include "ClaudeLogReader.h"

#include <QFile>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <thread>
#include <utility>

namespace Kestrune {

namespace {

constexpr qint64 kWeekOfLogs = 604'800'000; // ms
constexpr qint64 kDayOfLogs = 86'400'000;   // ms
constexpr qint64 kNanoseconds = 1'000'000;  // in a millisecond

/// From so many bytes on, several threads read.
constexpr qint64 kWorthSharing = 8 << 20;
constexpr unsigned kMostThreads = 4;

} // namespace

ClaudeLogReader::ClaudeLogReader(const QStringList &roots, QString memory)
    : m_memory(std::move(memory))
{
    for (const QString &root : roots)
        m_roots.push_back(QFile::encodeName(root).toStdString());
}

/// By path, each once.
std::vector<LogFile> ClaudeLogReader::findAllLogs() const
{
    std::vector<LogFile> all;
    for (const std::string &root : m_roots) {
        const std::unique_ptr<char, decltype(&std::free)> path(realpath(root.c_str(), nullptr), &std::free);
        if (path)
            std::ranges::move(findLogs(path.get(), m_stop), std::back_inserter(all));
    }
    std::ranges::sort(all, {}, &LogFile::path);
    const auto isSame = [](const LogFile &one, const LogFile &other) { return one.path == other.path; };
    all.erase(std::unique(all.begin(), all.end(), isSame), all.end());
    return all;
}

std::optional<ClaudeUsage> ClaudeLogReader::summary(const QDateTime &now)
{
    const std::scoped_lock locked(m_lock);
    const qint64 time = now.toMSecsSinceEpoch();
    const qint64 weekAgo = time - kWeekOfLogs;
    recall();
    // Set back by so much, the clock was wrong before, and too old was then what is not.
    if (time < m_known.latest - kDayOfLogs)
        m_known = {};
    m_known.latest = time;
    const std::vector<LogFile> logs = findAllLogs();
    const std::vector<const LogEntries *> before = std::exchange(m_counted, {});
    std::vector<Job> jobs = findJobs(logs, time);
    run(jobs, weekAgo);
    if (m_stop)
        return std::nullopt;
    count(!jobs.empty() || m_counted != before, weekAgo);
    // A file that comes back after a moment goes on where it was; after a week nothing of it would count.
    std::erase_if(m_known.logs, [weekAgo](const auto &log) { return log.second.seen < weekAgo; });
    return m_ledger.summary(now);
}

void ClaudeLogReader::recall()
{
    if (!std::exchange(m_recalled, true) && !m_memory.isEmpty())
        m_known = KnownLogs::readFrom(m_memory);
}

bool ClaudeLogReader::remember(qint64 worth)
{
    std::vector<quint64> words;
    {
        const std::scoped_lock locked(m_lock);
        if (m_memory.isEmpty() || m_unsaved < worth)
            return false;
        m_unsaved = 0;
        words = m_known.encoded();
    }
    // The file is not waited for with the lock: a disk that hangs holds up no summary.
    return KnownLogs::write(words, m_memory);
}

bool ClaudeLogReader::forget()
{
    const std::scoped_lock locked(m_lock);
    m_recalled = true;
    m_known = {};
    m_counted = {};
    m_ledger = {};
    m_unsaved = 0;
    return m_memory.isEmpty() || QFile::remove(m_memory) || !QFile::exists(m_memory);
}

std::vector<ClaudeLogReader::Job> ClaudeLogReader::findJobs(const std::vector<LogFile> &logs, qint64 now)
{
    std::vector<Job> jobs;
    for (const LogFile &log : logs) {
        if (log.stamp.modified < (now - kWeekOfLogs) * kNanoseconds)
            continue;
        KnownLog &known = m_known.logs[ResponseKey::of(log.path, {})];
        known.seen = now;
        m_counted.push_back(&known.entries);
        if (known.stamp != log.stamp)
            jobs.push_back({&log, &known});
    }
    return jobs;
}

void ClaudeLogReader::count(bool changed, qint64 weekAgo)
{
    if (!changed && !m_ledger.reachesBackTo(weekAgo))
        return;
    for (auto &[id, log] : m_known.logs)
        log.entries.forgetUntil(weekAgo);
    m_ledger.take(m_counted, weekAgo);
}

void ClaudeLogReader::run(std::vector<Job> &jobs, qint64 weekAgo)
{
    if (jobs.empty())
        return;
    const auto toRead = [](const Job &job) { return job.log->stamp.size - job.known->position.scanned; };
    // The largest first: then the threads end at about the same time.
    std::ranges::sort(jobs, std::ranges::greater(), toRead);
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        UsageLines lines;
        ClaudeLogLine parser;
        for (std::size_t i = next++; i < jobs.size() && !m_stop; i = next++)
            read(jobs[i], lines, parser, weekAgo);
    };
    qint64 bytes = 0;
    for (const Job &job : jobs)
        bytes += std::max<qint64>(toRead(job), 0);
    m_unsaved += bytes;
    std::vector<std::jthread> threads;
    const unsigned wanted = std::min(kMostThreads, std::thread::hardware_concurrency());
    if (bytes >= kWorthSharing) {
        for (unsigned i = 1; i < wanted; ++i)
            threads.emplace_back(work);
    }
    work();
}

void ClaudeLogReader::read(const Job &job, UsageLines &lines, ClaudeLogLine &parser, qint64 weekAgo)
{
    const OpenFile file(job.log->path);
    if (!file.isOpen())
        return;
    KnownLog &known = *job.known;
    const qint64 size = file.stamp().size;
    if (!known.stamp.isSameFile(file.stamp()) || known.position.lineStart > size ||
        known.tail != KnownLog::tailOf(file, known.position.lineStart))
        known = {{}, {}, 0, known.seen, {}};
    else if (known.position.scanned > size)
        known.position = {known.position.lineStart, known.position.lineStart, false};
    const bool complete = lines.read(file, known.position, m_stop, [&](std::span<char> line) {
        const auto response = parser.parse(line);
        if (response && response->date > weekAgo)
            known.entries.enter(*response);
    });
    known.tail = KnownLog::tailOf(file, known.position.lineStart);
    known.stamp = file.stamp();
    if (!complete)
        known.stamp.size = -1;
}

} // namespace Kestrune
