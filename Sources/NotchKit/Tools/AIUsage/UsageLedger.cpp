#include "UsageLedger.h"

#include "NotchKit/Platform/Utc.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace Kestrune {

namespace {

constexpr qint64 kBlock = ClaudeUsage::kBlockSeconds * 1000;

/// The keys that were met, in memory that is taken once.
class Keys
{
public:
    explicit Keys(std::size_t most)
        : m_slots(std::bit_ceil(2 * most + 1))
    {}

    /// Whether a response with that key was not met before.
    bool isFirst(const ResponseKey &key)
    {
        if (key == UsageEntry::kUnnamed)
            return true;
        const std::size_t mask = m_slots.size() - 1;
        std::size_t place = key.low & mask;
        while (m_slots[place] != ResponseKey() && m_slots[place] != key)
            place = (place + 1) & mask;
        return std::exchange(m_slots[place], key) != key;
    }

private:
    std::vector<ResponseKey> m_slots;
};

QDateTime utc(qint64 date) { return QDateTime::fromMSecsSinceEpoch(date, kUtc); }

} // namespace

void LogEntries::enter(const LoggedResponse &response)
{
    const UsageEntry entry{response.key.value_or(UsageEntry::kUnnamed), response.date, response.tokens};
    // Most updates of a response follow it at once.
    if (response.key && !m_entries.empty() && m_entries.back().key == entry.key)
        m_entries.back() = entry;
    else
        m_entries.push_back(entry);
    if (m_entries.size() > m_most)
        dropReplaced();
}

void LogEntries::dropReplaced()
{
    Keys seen(m_entries.size());
    auto kept = m_entries.end();
    for (auto entry = m_entries.end(); entry != m_entries.begin();) {
        if (seen.isFirst((--entry)->key))
            *--kept = *entry;
    }
    m_entries.erase(m_entries.begin(), kept);
    m_most = std::max(m_most, 2 * m_entries.size());
}

void LogEntries::forgetUntil(qint64 date)
{
    std::erase_if(m_entries, [date](const UsageEntry &entry) { return entry.date <= date; });
}

void UsageLedger::take(std::span<const LogEntries *const> logs, qint64 weekAgo)
{
    std::size_t count = 0;
    for (const LogEntries *log : logs)
        count += log->all().size();
    Keys seen(count);
    m_sorted.clear();
    m_sorted.reserve(count);
    for (auto log = logs.rbegin(); log != logs.rend(); ++log) {
        const std::span<const UsageEntry> entries = (*log)->all();
        for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
            if (entry->date > weekAgo && seen.isFirst(entry->key))
                m_sorted.push_back({entry->date, entry->tokens});
        }
    }
    std::ranges::sort(m_sorted, {}, &Dated::date);
}

std::optional<ClaudeUsage> UsageLedger::summary(const QDateTime &now) const
{
    if (m_sorted.empty())
        return std::nullopt;
    ClaudeUsage usage;
    for (const Dated &entry : m_sorted)
        usage.weekTokens = saturatingSum(usage.weekTokens, entry.tokens);
    usage.weekMessages = static_cast<qint64>(m_sorted.size());
    usage.lastActivity = utc(m_sorted.back().date);
    addBlocks(usage, now.toMSecsSinceEpoch());
    addDays(usage, now);
    return usage;
}

void UsageLedger::addBlocks(ClaudeUsage &usage, qint64 now) const
{
    Dated block{m_sorted.front().date, 0};
    qint64 peak = std::numeric_limits<qint64>::min();
    for (const Dated &entry : m_sorted) {
        if (entry.date >= block.date + kBlock) {
            peak = std::max(peak, block.tokens);
            block = {entry.date, 0};
        }
        block.tokens = saturatingSum(block.tokens, entry.tokens);
    }
    usage.peakBlockTokens = std::max(peak, block.tokens);
    if (now < block.date + kBlock) {
        usage.blockTokens = block.tokens;
        usage.blockStart = utc(block.date);
    }
}

void UsageLedger::addDays(ClaudeUsage &usage, const QDateTime &now) const
{
    const QDate today = now.toLocalTime().date();
    const auto startOf = [&](int daysAgo) {
        const qint64 start = today.addDays(-daysAgo).startOfDay().toMSecsSinceEpoch();
        return std::ranges::lower_bound(m_sorted, start, {}, &Dated::date);
    };
    auto entry = startOf(ClaudeUsage::kDays - 1);
    for (int day = 0; day < ClaudeUsage::kDays; ++day) {
        const auto end = startOf(ClaudeUsage::kDays - 2 - day);
        for (; entry < end; ++entry)
            usage.dailyTokens[day] = saturatingSum(usage.dailyTokens[day], entry->tokens);
    }
}

} // namespace Kestrune
