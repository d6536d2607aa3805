#include "UsageLedger.h"

#include "NotchKit/Platform/Utc.h"

#include <algorithm>

namespace Kestrune {

namespace {

constexpr qint64 kWeek = 604'800'000; // ms
constexpr qint64 kBlock = ClaudeUsage::kBlockSeconds * 1000;

QDateTime utc(qint64 date) { return QDateTime::fromMSecsSinceEpoch(date, kUtc); }

} // namespace

void UsageLedger::enter(const LoggedResponse &response, quint32 rank)
{
    const std::scoped_lock locked(m_mutex);
    m_changed = true;
    const Entry entry{response.date, response.tokens, rank};
    if (!response.key) {
        m_entries.insert({~quint64(0), ++m_unnamed}, entry);
        return;
    }
    const auto found = m_entries.find(*response.key);
    if (found == m_entries.end())
        m_entries.insert(*response.key, entry);
    else if (found->rank <= rank)
        *found = entry;
}

void UsageLedger::prune(qint64 weekAgo)
{
    const auto isOld = [weekAgo](const auto &entry) { return entry.date <= weekAgo; };
    if (!m_changed && (m_sorted.empty() || !isOld(m_sorted.front())))
        return;
    m_entries.removeIf([&](QHash<ResponseKey, Entry>::iterator entry) { return isOld(*entry); });
    m_sorted.clear();
    m_sorted.reserve(static_cast<std::size_t>(m_entries.size()));
    for (const Entry &entry : std::as_const(m_entries))
        m_sorted.push_back({entry.date, entry.tokens});
    std::sort(m_sorted.begin(), m_sorted.end());
    m_changed = false;
}

std::optional<ClaudeUsage> UsageLedger::summary(const QDateTime &now)
{
    prune(now.toMSecsSinceEpoch() - kWeek);
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
