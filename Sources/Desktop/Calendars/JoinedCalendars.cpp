#include "JoinedCalendars.h"

namespace Kestrune {

namespace {

template <typename List>
std::optional<List> joined(const std::optional<List> &first, const std::optional<List> &second)
{
    if (!first || !second)
        return first ? first : second;
    return *first + *second;
}

} // namespace

CalendarAccess JoinedCalendars::access()
{
    const CalendarAccess folders = m_folders.access();
    const CalendarAccess server = m_server.access();
    for (const CalendarAccess access : {CalendarAccess::full, CalendarAccess::notDetermined}) {
        if (folders == access || server == access)
            return access;
    }
    return folders;
}

bool JoinedCalendars::requestAccess()
{
    const bool folders = m_folders.requestAccess();
    return m_server.requestAccess() || folders;
}

std::optional<CalendarStore::Events> JoinedCalendars::events(const IcalRange &range)
{
    const auto folders = m_folders.events(range);
    return joined(folders, m_server.events(range));
}

std::optional<CalendarStore::Tasks> JoinedCalendars::openTasks()
{
    const auto folders = m_folders.openTasks();
    return joined(folders, m_server.openTasks());
}

bool JoinedCalendars::complete(const IcalTaskId &task)
{
    return (task.origin.startsWith(QLatin1Char('/')) ? m_folders : m_server).complete(task);
}

} // namespace Kestrune
