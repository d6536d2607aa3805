#pragma once

#include <QColor>
#include <QDateTime>
#include <QFuture>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace Kestrune {

/// What a calendar store keeps.
enum class CalendarEntity { events, reminders };

/// Whether this program may read one of them; the values are those of the models' `status`.
enum class CalendarAccess { notDetermined = 0, restricted = 1, denied = 2, full = 3 };

/// One occurrence of an event.
struct CalendarEvent
{
    QString id;    ///< Unique among the occurrences; empty where the event has no name of its own.
    QString title; ///< Empty where it has none.
    QDateTime start;
    QDateTime end;       ///< Exclusive; never before the start.
    bool allDay = false; ///< The times are midnights where the user is.
    QColor color;        ///< Of its calendar; invalid where that has none.

    bool operator==(const CalendarEvent &) const = default;
};

/// One thing left to do.
struct CalendarTask
{
    QString id;
    QString title;
    QDateTime due; ///< Invalid where it is due at no time.
    QColor color;  ///< Of its list; invalid where that has none.

    bool operator==(const CalendarTask &) const = default;
};

/// The user's calendars and lists of reminders, wherever they are kept. Called on the main thread, where
/// nothing waits; what is given up (cancelled) before its turn is not done.
class CalendarStore
{
public:
    using Events = QList<CalendarEvent>;
    using Tasks = QList<CalendarTask>;

    virtual ~CalendarStore() = default;

    /// Whether `entity` may be read.
    virtual QFuture<CalendarAccess> access(CalendarEntity entity) = 0;

    /// Asks for full access; true once it is given.
    virtual QFuture<bool> requestAccess(CalendarEntity entity) = 0;

    /// The occurrences in all calendars that overlap the time from `from` to `to`, in an order that stays;
    /// nothing when they cannot be read at present.
    virtual QFuture<std::optional<Events>> events(const QDateTime &from, const QDateTime &to) = 0;

    /// What is not done yet in all lists, in an order that stays; nothing when it cannot be read at present.
    virtual QFuture<std::optional<Tasks>> incompleteReminders() = 0;

    /// The names of the calendars of which something could not be read at the last look, in an order that
    /// stays: plain texts of one line, the first `kMostUnread` of them, each once and at most `kLongestName`
    /// long.
    static constexpr qsizetype kMostUnread = 5;
    static constexpr qsizetype kLongestName = 60;
    virtual QFuture<QStringList> unread() = 0;

    /// Marks the task of that id done and saves that. False when there is none, or the saving failed.
    virtual QFuture<bool> complete(const QString &id) = 0;
};

} // namespace Kestrune
