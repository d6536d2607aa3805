#include "ClaudeLogReader.h"

#include <QFile>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <thread>

namespace Kestrune {

namespace {

constexpr qint64 kWeekOfLogs = 604'800'000; // ms
constexpr qint64 kNanoseconds = 1'000'000;  // in a millisecond

/// From so many bytes on, several threads read.
constexpr qint64 kWorthSharing = 8 << 20;
constexpr unsigned kMostThreads = 4;

} // namespace

ClaudeLogReader::ClaudeLogReader(const QStringList &roots)
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
    const std::vector<LogFile> logs = findAllLogs();
    std::vector<Job> jobs = findJobs(logs, time);
    run(jobs);
    if (m_stop)
        return std::nullopt;
    // A file that comes back after a moment goes on where it was; after a week nothing of it would count.
    std::erase_if(m_files, [time](const auto &file) { return file.second.seen < time - kWeekOfLogs; });
    return m_ledger.summary(now);
}

std::vector<ClaudeLogReader::Job> ClaudeLogReader::findJobs(const std::vector<LogFile> &logs, qint64 now)
{
    std::vector<Job> jobs;
    for (const LogFile &log : logs) {
        if (log.stamp.modified < (now - kWeekOfLogs) * kNanoseconds)
            continue;
        Known &known = m_files[log.path];
        known.seen = now;
        if (known.stamp != log.stamp)
            jobs.push_back({&log, &known, ++m_rank});
    }
    return jobs;
}

void ClaudeLogReader::run(std::vector<Job> &jobs)
{
    if (jobs.empty())
        return;
    const auto toRead = [](const Job &job) { return job.log->stamp.size - job.known->position.lineStart; };
    // The largest first: then the threads end at about the same time.
    std::ranges::sort(jobs, std::ranges::greater(), toRead);
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        UsageLines lines;
        ClaudeLogLine parser;
        for (std::size_t i = next++; i < jobs.size() && !m_stop; i = next++)
            read(jobs[i], lines, parser);
    };
    qint64 bytes = 0;
    for (const Job &job : jobs)
        bytes += toRead(job);
    std::vector<std::jthread> threads;
    const unsigned wanted = std::min(kMostThreads, std::thread::hardware_concurrency());
    if (bytes >= kWorthSharing) {
        for (unsigned i = 1; i < wanted; ++i)
            threads.emplace_back(work);
    }
    work();
}

void ClaudeLogReader::read(const Job &job, UsageLines &lines, ClaudeLogLine &parser)
{
    const OpenFile file(job.log->path);
    if (!file.isOpen())
        return;
    Known &known = *job.known;
    const qint64 size = file.stamp().size;
    if (!known.stamp.isSameFile(file.stamp()) || known.position.lineStart > size)
        known.position = {};
    else if (known.position.scanned > size)
        known.position = {known.position.lineStart, known.position.lineStart, false};
    const bool complete = lines.read(file, known.position, m_stop, [&](std::span<char> line) {
        if (const auto response = parser.parse(line))
            m_ledger.enter(*response, job.rank);
    });
    known.stamp = file.stamp();
    if (!complete)
        known.stamp.size = -1;
}

} // namespace Kestrune
