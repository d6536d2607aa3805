#pragma once

#include "ClaudeLogLine.h"
#include "UsageFigures.h"

#include <span>
#include <vector>

namespace Kestrune {

/// One logged response, as small as it can be kept.
struct UsageEntry
{
    /// The key of a response without an id: each of them is another one.
    static constexpr ResponseKey kUnnamed{~quint64(0), ~quint64(0)};

    ResponseKey key;
    qint64 date = 0; ///< Milliseconds since 1970.
    qint64 tokens = 0;

    bool operator==(const UsageEntry &) const = default;
};

/// The responses of one log in the order of its lines; of those with one key at least the last.
class LogEntries
{
public:
    LogEntries() = default;
    explicit LogEntries(std::span<const UsageEntry> entries)
        : m_entries(entries.begin(), entries.end())
    {}

    /// Adds a response. Takes memory in proportion to the number of keys, and constant time on average.
    void enter(const LoggedResponse &response);

    /// Drops what was logged at `date` or before, in ms since 1970.
    void forgetUntil(qint64 date);

    std::span<const UsageEntry> all() const { return m_entries; }

private:
    void dropReplaced();

    std::vector<UsageEntry> m_entries;
    std::size_t m_most = 4096; ///< With more than these it is time to look for replaced ones.
};

/// What the responses of all logs add up to, each counted once.
class UsageLedger
{
public:
    /// Takes what counts from now on in place of what did before: of each log's entries those after
    /// `weekAgo`, in ms since 1970; of several with one key the last one of the last log.
    void take(std::span<const LogEntries *const> logs, qint64 weekAgo);

    /// Whether something of it was logged at `date` or before, in ms since 1970.
    bool reachesBackTo(qint64 date) const { return !m_sorted.empty() && m_sorted.front().date <= date; }

    /// The sums; nothing when there are no entries. Days are those of the user's time zone.
    std::optional<ClaudeUsage> summary(const QDateTime &now) const;

private:
    struct Dated
    {
        qint64 date;
        qint64 tokens;
    };

    void addBlocks(ClaudeUsage &usage, qint64 now) const;
    void addDays(ClaudeUsage &usage, const QDateTime &now) const;

    std::vector<Dated> m_sorted; ///< By date.
};

} // namespace Kestrune
