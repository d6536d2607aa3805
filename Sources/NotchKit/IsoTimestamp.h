#pragma once

#include <QtGlobal>

#include <optional>
#include <string_view>

namespace Kestrune {

/// Milliseconds since 1970 of an ISO 8601 date and time with a fraction of a second and a zone:
/// "2026-03-29T01:30:00.123Z", "…00.5+05:45". Nothing for any other text, and for times that no calendar
/// has. Digits beyond the milliseconds are dropped. Any thread.
std::optional<qint64> parseIsoTimestamp(std::string_view text);

} // namespace Kestrune
