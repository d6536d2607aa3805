#pragma once

#include <QLoggingCategory>

namespace Kestrune {

/// "kestrune.clipboard": the clipboard and its owners; never what it holds.
Q_DECLARE_LOGGING_CATEGORY(clipboardLog)

} // namespace Kestrune
