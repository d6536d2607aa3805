#pragma once

#include <QDateTime>

#include <array>
#include <optional>

namespace Kestrune {

/// What Claude Code's logs add up to. Points in time are UTC.
struct ClaudeUsage
{
    static constexpr int kDays = 7;
    static constexpr qint64 kBlockSeconds = 18'000;

    qint64 blockTokens = 0;              ///< In the running block; 0 without one.
    std::optional<QDateTime> blockStart; ///< The running block's first response.
    qint64 weekTokens = 0;               ///< In the last seven days.
    qint64 weekMessages = 0;             ///< Responses in the last seven days.
    std::optional<QDateTime> lastActivity;
    qint64 peakBlockTokens = 0;              ///< The busiest block of the last seven days.
    std::array<qint64, kDays> dailyTokens{}; ///< The user's calendar days, oldest first, today last.

    bool operator==(const ClaudeUsage &) const = default;
};

/// One window of a plan's limits.
struct UsageWindow
{
    double usedPercent = 0;            ///< 0 to 100, as it was logged.
    int minutes = 0;                   ///< The window's length; 0 when it is not known.
    std::optional<QDateTime> resetsAt; ///< UTC.

    /// It has begun anew since it was logged.
    bool isRenewed(const QDateTime &now) const { return resetsAt && *resetsAt <= now; }

    /// As far as is known at `now`: nothing is used of one that has begun anew.
    UsageWindow asOf(const QDateTime &now) const
    {
        return {isRenewed(now) ? 0 : usedPercent, minutes, resetsAt};
    }

    bool operator==(const UsageWindow &) const = default;
};

/// The plan limits that Codex logged last.
struct CodexUsage
{
    std::optional<UsageWindow> primary;
    std::optional<UsageWindow> secondary;
    QDateTime updated; ///< UTC; when the session file that holds them was last written.

    bool operator==(const CodexUsage &) const = default;
};

} // namespace Kestrune
