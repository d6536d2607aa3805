#include "CodexReader.h"

#include "NotchKit/Platform/Utc.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace Kestrune {

namespace {

constexpr qint64 kTail = 512 << 10;
constexpr std::ptrdiff_t kMostFiles = 5;
constexpr double kLatest = 253'402'300'799; // seconds; the last one of the year 9999
constexpr auto kKey = "rate_limits";
constexpr QByteArrayView kQuotedKey = "\"rate_limits\"";

/// The point in time so many seconds after 1970, if a calendar has it.
std::optional<QDateTime> pointInTime(double seconds)
{
    if (!(seconds >= -kLatest && seconds <= kLatest))
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(std::llround(seconds * 1000), kUtc);
}

std::optional<QDateTime> resetTime(const QJsonObject &window, const QDateTime &now)
{
    const QJsonValue at = window.value(QLatin1String("resets_at"));
    if (at.isDouble())
        return pointInTime(at.toDouble());
    const QJsonValue delay = window.value(QLatin1String("resets_in_seconds"));
    if (!delay.isDouble())
        return std::nullopt;
    return pointInTime(static_cast<double>(now.toMSecsSinceEpoch()) / 1000 + delay.toDouble());
}

int wholeMinutes(const QJsonValue &value)
{
    const double minutes = value.toDouble(0);
    return std::abs(minutes) <= std::numeric_limits<int>::max() ? static_cast<int>(minutes) : 0;
}

/// The limits in one line; null where it has none.
QJsonValue limitsIn(const QJsonDocument &line)
{
    const QJsonValue whole = line.isArray() ? QJsonValue(line.array()) : QJsonValue(line.object());
    return CodexReader::find(QLatin1String(kKey), whole);
}

/// A line is complete when a line feed follows it, or when nothing is missing in it.
QJsonValue lastLimits(const QByteArray &tail)
{
    qsizetype end = tail.size();
    for (;;) {
        const qsizetype key = QByteArrayView(tail).first(end).lastIndexOf(kQuotedKey);
        if (key < 0)
            return {};
        const qsizetype start = tail.lastIndexOf('\n', key) + 1;
        const qsizetype feed = tail.indexOf('\n', key);
        const QJsonDocument line = QJsonDocument::fromJson(tail.mid(start, feed < 0 ? -1 : feed - start));
        const QJsonValue limits = limitsIn(line);
        const bool isUnfinished = feed < 0 && line.isNull();
        if (!isUnfinished && !limits.isNull())
            return limits;
        end = start;
    }
}

} // namespace

QJsonValue CodexReader::find(const QString &key, const QJsonValue &value)
{
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        if (const auto found = object.constFind(key); found != object.constEnd())
            return *found;
        for (const QJsonValue member : object) {
            if (const QJsonValue found = find(key, member); !found.isUndefined())
                return found;
        }
    } else if (value.isArray()) {
        for (const QJsonValue item : value.toArray()) {
            if (const QJsonValue found = find(key, item); !found.isUndefined())
                return found;
        }
    }
    return QJsonValue::Undefined;
}

std::optional<UsageWindow> CodexReader::window(const QJsonValue &value, const QDateTime &now)
{
    const QJsonObject object = value.toObject();
    const QJsonValue used = object.value(QLatin1String("used_percent"));
    if (!used.isDouble() || !std::isfinite(used.toDouble()))
        return std::nullopt;
    return UsageWindow{used.toDouble(), wholeMinutes(object.value(QLatin1String("window_minutes"))),
                       resetTime(object, now)};
}

std::optional<CodexReader::Windows> CodexReader::lastRateLimits(const QByteArray &tail, const QDateTime &now)
{
    const QJsonValue limits = lastLimits(tail);
    if (!limits.isObject())
        return std::nullopt;
    return Windows{window(limits[QLatin1String("primary")], now),
                   window(limits[QLatin1String("secondary")], now)};
}

std::optional<CodexReader::Windows> CodexReader::lastRateLimits(const OpenFile &file, const QDateTime &now)
{
    if (!file.isOpen())
        return std::nullopt;
    const qint64 size = std::min(file.stamp().size, kTail);
    QByteArray tail(size, Qt::Uninitialized);
    tail.resize(file.read(tail.data(), size, file.stamp().size - size));
    return lastRateLimits(tail, now);
}

std::optional<CodexUsage> CodexReader::readCodex(const QString &home, const QDateTime &now,
                                                 const StopFlag &stop)
{
    const std::string root = QFile::encodeName(home + QLatin1String("/sessions")).toStdString();
    std::vector<LogFile> logs = findLogs(root, stop);
    std::ranges::stable_sort(logs, std::ranges::greater(),
                             [](const LogFile &log) { return log.stamp.modified; });
    const auto count = std::min(kMostFiles, std::ssize(logs));
    for (auto log = logs.cbegin(); log != logs.cbegin() + count && !stop; ++log) {
        const OpenFile file(log->path);
        if (const auto limits = lastRateLimits(file, now)) {
            const auto updated = QDateTime::fromMSecsSinceEpoch(file.stamp().modified / 1'000'000, kUtc);
            return CodexUsage{limits->first, limits->second, updated};
        }
    }
    return std::nullopt;
}

} // namespace Kestrune
