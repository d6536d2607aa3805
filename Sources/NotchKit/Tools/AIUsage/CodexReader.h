#pragma once

#include "LogFolder.h"
#include "UsageFigures.h"

#include <QByteArray>
#include <QJsonValue>

#include <utility>

namespace Kestrune {

/// Reads the plan limits that Codex CLI writes into its session logs. Any thread.
namespace CodexReader {

using Windows = std::pair<std::optional<UsageWindow>, std::optional<UsageWindow>>;

/// The limits in the newest of the five sessions written last below `home`/sessions; nothing when none of
/// them holds any. A reset that is told as a delay counts from `now`.
std::optional<CodexUsage> readCodex(const QString &home, const QDateTime &now, const StopFlag &stop);

/// The primary and the secondary window in the last line with rate limits among a log's last 512 KiB. A
/// last line that is still being written does not count, nor does one that says there are none (null).
std::optional<Windows> lastRateLimits(const OpenFile &file, const QDateTime &now);
std::optional<Windows> lastRateLimits(const QByteArray &tail, const QDateTime &now);

/// A window from its logged object; nothing without a used percentage.
std::optional<UsageWindow> window(const QJsonValue &value, const QDateTime &now);

/// The value of `key` in the first object that holds it, looking into members in the order of their names.
/// Recurses as deep as the value, which the parser limits. Undefined without one.
QJsonValue find(const QString &key, const QJsonValue &value);

} // namespace CodexReader

} // namespace Kestrune
