#pragma once

#include <QLoggingCategory>

namespace Kestrune {

/// "kestrune.windows": displays, the window system and its compositor.
Q_DECLARE_LOGGING_CATEGORY(windowsLog)

} // namespace Kestrune
