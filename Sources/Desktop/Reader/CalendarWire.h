#pragma once

#include "NotchKit/Platform/CalendarStore.h"

#include <QByteArray>
#include <QMap>
#include <QStringList>

#include <optional>

/// What is asked of the reader of calendars, what it finds, and both as bytes.
namespace Kestrune {

/// No path, name or text has it.
constexpr QChar kBetweenIdParts = u'\n';

/// A piece of time, UTC.
struct IcalRange
{
    QDateTime from;
    QDateTime to; ///< Exclusive.

    /// Whether what lasts from `start` to `end` is in it, in part at least.
    bool overlaps(const QDateTime &start, const QDateTime &end) const;
};

/// What a task is found again by.
struct IcalTaskId
{
    QString origin;
    QString uid;
    QString instance; ///< As its calendar writes it; empty for the task itself.

    QString text() const;
    static std::optional<IcalTaskId> parse(const QString &text);
};

/// The iCalendar texts of one calendar.
struct IcalTexts
{
    QString origin;       ///< What its ids begin with.
    bool isWhole = false; ///< A calendar as a file has it; else components, whose zones may be elsewhere.
    QList<QByteArray> texts;
    QMap<QString, QList<QByteArray>> series; ///< In place of all in `texts` of that UID.
    QMap<QByteArray, QByteArray> zones;      ///< Definitions of time zones that are only named.
};

/// What is found in them.
struct IcalFound
{
    enum class State {
        read,
        damaged,   ///< No whole calendar.
        abandoned, ///< It took too long, or too much.
        unread,    ///< It could not be tried.
    };

    State state = State::unread;
    CalendarStore::Events events; ///< Without colours; those of the range.
    CalendarStore::Tasks tasks;   ///< Those that are not done.
    QDateTime until;              ///< All events that begin before are there; those after may not be.
    int leftOut = 0;              ///< Rules that cannot be worked out in time.
    QStringList series;           ///< UIDs of events that repeat.
    QList<QByteArray> zones;      ///< Names of time zones of which nothing is known.
};

/// A task to be marked done.
struct IcalChange
{
    IcalTaskId task;
    QDateTime now;
};

/// Calendar data in which a task is done.
struct CompletedTask
{
    QByteArray text; ///< All of it.
    QByteArray task; ///< The task's component alone.
};

struct CalendarQuestion
{
    QByteArray zone; ///< The user's, by its name in the system's list.
    IcalRange range;
    QList<IcalTexts> calendars;
    std::optional<IcalChange> change; ///< Of the only calendar.

    QByteArray bytes() const;
    static std::optional<CalendarQuestion> parse(const QByteArray &bytes);
};

struct CalendarAnswer
{
    QList<IcalFound> found; ///< As many as calendars, in their order.
    std::optional<CompletedTask> completed;

    QByteArray bytes() const;
    /// Nothing unless it is whole and its times make sense.
    static std::optional<CalendarAnswer> parse(const QByteArray &bytes);
};

} // namespace Kestrune
