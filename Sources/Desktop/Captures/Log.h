#pragma once

#include <QLoggingCategory>

namespace Kestrune {

/// "kestrune.captures": the folders that are watched; never what is in them.
Q_DECLARE_LOGGING_CATEGORY(capturesLog)

} // namespace Kestrune
