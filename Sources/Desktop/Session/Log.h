#pragma once

#include <QLoggingCategory>

namespace Kestrune {

/// "kestrune.session": the desktop: its appearance, its programs, what runs.
Q_DECLARE_LOGGING_CATEGORY(sessionLog)

} // namespace Kestrune
