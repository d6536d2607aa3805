#pragma once

#include <QByteArray>

namespace Kestrune {

class AppState;
struct WindowSystemChoice;

/// What the program is doing, as JSON for scripts and tests. Lengths are points, origin bottom left.
QByteArray statusReport(AppState &app, const WindowSystemChoice &windows);

} // namespace Kestrune
