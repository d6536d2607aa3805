#pragma once

#include <QByteArray>

namespace Kestrune {

class AppState;

/// What the program is doing, as JSON for scripts and tests. Lengths are points, origin bottom left.
QByteArray statusReport(AppState &app);

} // namespace Kestrune
