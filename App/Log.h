#pragma once

#include <QLoggingCategory>

namespace Kestrune {

/// "kestrune.app": the start, the bus, and the suite that Kestrune makes way for.
Q_DECLARE_LOGGING_CATEGORY(appLog)

} // namespace Kestrune
