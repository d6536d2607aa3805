#pragma once

#include <QLoggingCategory>

namespace Kestrune {

/// "kestrune.players": which player answers; never what it plays.
Q_DECLARE_LOGGING_CATEGORY(playersLog)

} // namespace Kestrune
