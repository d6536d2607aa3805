#pragma once

#include "CalendarSource.h"
#include "EvolutionBus.h"
#include "IcalReader.h"

namespace Kestrune {

/// The calendars and task lists of Evolution Data Server, asked over the session bus: the server sends them
/// as iCalendar text, so that the rules are those of the files.
class EvolutionCalendars : public CalendarSource
{
public:
    explicit EvolutionCalendars(const QDBusConnection &bus)
        : m_bus(bus)
    {}

    CalendarAccess access() override;
    bool requestAccess() override;
    std::optional<CalendarStore::Events> events(const IcalRange &range) override;
    std::optional<CalendarStore::Tasks> openTasks() override;
    bool complete(const IcalTaskId &task) override;

private:
    std::optional<QList<EvolutionCalendar>> open(bool taskLists);
    IcalContents contents(const EvolutionCalendar &calendar, const QList<QByteArray> &texts);
    void completeSeries(const EvolutionCalendar &calendar, QList<IcalEntry> &events);
    IcalZones::Definition definitionsOf(const EvolutionCalendar &calendar);

    EvolutionBus m_bus;
    IcalReader m_reader;
    IcalSuspects m_suspects;
    bool m_failed = false;              ///< The last attempt to reach it.
    QHash<QString, QByteArray> m_zones; ///< Definitions by calendar and name.
};

} // namespace Kestrune
