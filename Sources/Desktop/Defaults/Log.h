#pragma once

#include <QLoggingCategory>

namespace Kestrune {

/// "kestrune.settings": the file of the settings; never what is set.
Q_DECLARE_LOGGING_CATEGORY(settingsLog)

} // namespace Kestrune
