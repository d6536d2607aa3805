#pragma once

#include "CalendarSource.h"

namespace Kestrune {

/// The calendars of a server and those of folders as one source. Where the one cannot be read, the other's
/// are there all the same.
class JoinedCalendars : public CalendarSource
{
public:
    /// Both outlive the object. The folders' ids begin with a path, those of the server never do.
    JoinedCalendars(CalendarSource &server, CalendarSource &folders)
        : m_server(server)
        , m_folders(folders)
    {}

    CalendarAccess access() override;
    bool requestAccess() override;
    std::optional<CalendarStore::Events> events(const IcalRange &range) override;
    std::optional<CalendarStore::Tasks> openTasks() override;
    QStringList unread() override { return m_folders.unread() + m_server.unread(); }
    bool complete(const IcalTaskId &task) override;

private:
    CalendarSource &m_server;
    CalendarSource &m_folders;
};

} // namespace Kestrune
