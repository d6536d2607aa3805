#pragma once

#include <QTimeZone>

namespace Kestrune {

/// Coordinated universal time, for the constructors of QDateTime: Qt 6.5 took what Qt 6.4 knows for
/// deprecated.
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
inline constexpr auto kUtc = QTimeZone::UTC;
#else
inline constexpr auto kUtc = Qt::UTC;
#endif

} // namespace Kestrune
