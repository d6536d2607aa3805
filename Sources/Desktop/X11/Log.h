#pragma once

#include <QLoggingCategory>

namespace Kestrune {

/// "kestrune.windows": displays, the compositor.
Q_DECLARE_LOGGING_CATEGORY(windowsLog)
/// "kestrune.clipboard": the selection and its owners; never what it holds.
Q_DECLARE_LOGGING_CATEGORY(clipboardLog)

} // namespace Kestrune
