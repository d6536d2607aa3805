#pragma once

#include <QLoggingCategory>

namespace Kestrune {

/// "kestrune.calendar": where calendars come from, and which cannot be read; never what is in them.
Q_DECLARE_LOGGING_CATEGORY(calendarLog)

} // namespace Kestrune
