#pragma once

#include <QLoggingCategory>

namespace Kestrune {

/// "kestrune.camera": what the portal answers, and the helper.
Q_DECLARE_LOGGING_CATEGORY(cameraLog)

} // namespace Kestrune
