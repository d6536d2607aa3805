#pragma once

#include <QLoggingCategory>

namespace Kestrune {

/// "kestrune.async": threads, and work that was given up or refused.
Q_DECLARE_LOGGING_CATEGORY(asyncLog)

} // namespace Kestrune
