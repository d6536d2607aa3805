#pragma once

#include "ClaudeLogLine.h"
#include "UsageFigures.h"

#include <QHash>

#include <mutex>
#include <vector>

namespace Kestrune {

/// The responses of the last week, each once, and what they add up to.
class UsageLedger
{
public:
    /// Enters a response. It replaces the one with its key unless that came with a greater `rank`: so the
    /// outcome does not depend on which of several threads comes first. Any thread, also at once.
    void enter(const LoggedResponse &response, quint32 rank);

    /// Forgets what is a week old at `now` or older, and adds up the rest; nothing when none is left. Days
    /// are those of the user's time zone. Not while responses are entered.
    std::optional<ClaudeUsage> summary(const QDateTime &now);

private:
    struct Entry
    {
        qint64 date;
        qint64 tokens;
        quint32 rank;
    };
    struct Dated
    {
        qint64 date;
        qint64 tokens;
        bool operator<(const Dated &other) const
        {
            return date != other.date ? date < other.date : tokens < other.tokens;
        }
    };

    void prune(qint64 weekAgo);
    void addBlocks(ClaudeUsage &usage, qint64 now) const;
    void addDays(ClaudeUsage &usage, const QDateTime &now) const;

    std::mutex m_mutex;
    QHash<ResponseKey, Entry> m_entries;
    std::vector<Dated> m_sorted; ///< The entries by date; out of date while `m_changed`.
    quint64 m_unnamed = 0;
    bool m_changed = false;
};

} // namespace Kestrune
