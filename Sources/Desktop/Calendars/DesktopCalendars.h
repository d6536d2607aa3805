#pragma once

#include "CalendarSource.h"
#include "Desktop/WorkLoop.h"

#include <QDBusConnection>

#include <memory>

namespace Kestrune {

class ChosenCalendars;
class UserDefaults;

/// The user's calendars: those of Evolution Data Server where it runs or can be started, else folders of
/// iCalendar files. A thread of its own, which the first question starts, does what can wait.
class DesktopCalendars : public CalendarStore
{
public:
    /// The keys of the user defaults: "evolution" or "folders" forces the one or the other; and the folder.
    static QString sourceKey() { return QStringLiteral("calendarSource"); }
    static QString folderKey() { return QStringLiteral("calendarFolder"); }

    /// `defaults` outlives the object.
    DesktopCalendars(const QDBusConnection &bus, const UserDefaults &defaults);
    ~DesktopCalendars() override;

    QFuture<CalendarAccess> access(CalendarEntity entity) override;
    QFuture<bool> requestAccess(CalendarEntity entity) override;
    QFuture<std::optional<Events>> events(const QDateTime &from, const QDateTime &to) override;
    QFuture<std::optional<Tasks>> incompleteReminders() override;
    QFuture<bool> complete(const QString &id) override;

private:
    template <typename Result, typename Ask>
    QFuture<Result> ask(Ask ask);

    const UserDefaults &m_defaults;
    std::shared_ptr<ChosenCalendars> m_sources; ///< Used on the thread only.
    WorkLoop m_loop{QStringLiteral("calendars")};
};

} // namespace Kestrune
