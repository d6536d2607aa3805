#pragma once

#include <QLoggingCategory>

namespace Kestrune {

/// "kestrune.reader": when what reads pictures of strangers ended over one; never which.
Q_DECLARE_LOGGING_CATEGORY(readerLog)

} // namespace Kestrune
