#pragma once

#include "Async/Bench.h"
#include "Async/Worker.h"
#include "CalendarSource.h"
#include "Desktop/Reader/ReaderPool.h"

#include <QDBusConnection>

namespace Kestrune {

class ChosenCalendars;
class UserDefaults;

/// The user's calendars: those of Evolution Data Server where it runs or can be started, else folders of
/// iCalendar files.
class DesktopCalendars : public CalendarStore
{
public:
    /// The keys of the user defaults: "evolution" or "folders" forces the one or the other, "both" takes
    /// both; and the folder.
    static QString sourceKey() { return QStringLiteral("calendarSource"); }
    static QString folderKey() { return QStringLiteral("calendarFolder"); }

    /// `defaults` outlives the object; `helper` is the program that reads what calendars hold. A calendar of
    /// the server may take `patience` longer than the others before it is left behind.
    DesktopCalendars(const QDBusConnection &bus, const UserDefaults &defaults,
                     const QString &helper = ReaderPool::installed(),
                     std::chrono::milliseconds patience = std::chrono::seconds(3));
    ~DesktopCalendars() override;

    QFuture<CalendarAccess> access(CalendarEntity entity) override;
    QFuture<bool> requestAccess(CalendarEntity entity) override;
    QFuture<std::optional<Events>> events(const QDateTime &from, const QDateTime &to) override;
    QFuture<std::optional<Tasks>> incompleteReminders() override;
    QFuture<QStringList> unread() override;
    QFuture<bool> complete(const QString &id) override;

private:
    template <typename Result, typename Ask>
    QFuture<Result> ask(Ask ask);

    const UserDefaults &m_defaults;
    Bench<ChosenCalendars> m_sources;
    Worker m_worker{"calendars"};
};

} // namespace Kestrune
