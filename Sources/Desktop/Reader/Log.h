#pragma once

#include <QLoggingCategory>

namespace Kestrune {

/// "kestrune.reader": when what reads pictures or calendars cannot be started, or ended over a picture; never
/// which.
Q_DECLARE_LOGGING_CATEGORY(readerLog)

} // namespace Kestrune
