#pragma once

#include <QLoggingCategory>

namespace Kestrune {

Q_DECLARE_LOGGING_CATEGORY(sharingLog)

} // namespace Kestrune
