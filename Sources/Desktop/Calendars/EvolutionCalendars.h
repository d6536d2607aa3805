#pragma once

#include "CalendarSource.h"
#include "EvolutionBus.h"
#include "HelperCalendars.h"

namespace Kestrune {

/// The calendars and task lists of Evolution Data Server, asked over the session bus: the server sends them
/// as iCalendar text, so that the rules are those of the files.
class EvolutionCalendars : public CalendarSource
{
public:
    /// `helper` is the program that reads what the server sends; `patience` is that of EvolutionBus.
    EvolutionCalendars(const QDBusConnection &bus, const QString &helper, std::chrono::milliseconds patience)
        : m_bus(bus, patience)
        , m_reader(helper)
    {}

    CalendarAccess access() override;
    bool requestAccess() override;
    std::optional<CalendarStore::Events> events(const IcalRange &range) override;
    std::optional<CalendarStore::Tasks> openTasks() override;
    QStringList unread() override;
    bool complete(const IcalTaskId &task) override;

private:
    std::optional<QList<EvolutionCalendar>> open(bool taskLists);
    QList<IcalFound> readAll(const QList<EvolutionCalendar> &calendars, const QString &question,
                             const IcalRange &range);
    IcalFound read(const EvolutionCalendar &calendar, const QList<QByteArray> &texts, const IcalRange &range);
    void addSeries(const EvolutionCalendar &calendar, const QStringList &uids, IcalTexts &texts);
    bool addZones(const EvolutionCalendar &calendar, const QList<QByteArray> &names, IcalTexts &texts);

    EvolutionBus m_bus;
    HelperCalendars m_reader;
    QHash<QString, bool> m_reported;         ///< Calendars of which the log says that they take too much.
    QMap<QString, EvolutionSource> m_unread; ///< By uid; at the last look.
    QHash<QString, IcalFound> m_known;       ///< What was found last in each calendar, by uid.
    bool m_failed = false;                   ///< The last attempt to reach it.
    QHash<QString, QByteArray> m_zones;      ///< Definitions by calendar and name.
};

} // namespace Kestrune
