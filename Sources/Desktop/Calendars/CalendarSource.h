#pragma once

#include "Desktop/Reader/CalendarWire.h"

namespace Kestrune {

/// One place where calendars are kept. Lives on a thread of its own, where it may wait; each call ends
/// within seconds, whatever the other side does.
class CalendarSource
{
public:
    virtual ~CalendarSource() = default;

    /// The same for events and reminders.
    virtual CalendarAccess access() = 0;

    /// Starts or makes what is missing. True once there is full access.
    virtual bool requestAccess() = 0;

    /// As CalendarStore has them.
    virtual std::optional<CalendarStore::Events> events(const IcalRange &range) = 0;
    virtual std::optional<CalendarStore::Tasks> openTasks() = 0;
    /// Names as their calendars have them, however long and many.
    virtual QStringList unread() = 0;
    virtual bool complete(const IcalTaskId &task) = 0;
};

} // namespace Kestrune
