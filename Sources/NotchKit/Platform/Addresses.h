#pragma once

class QUrl;

namespace Kestrune {

/// Whether the address names this computer by number: 127.0.0.1, [::1] and the like.
bool isLoopback(const QUrl &url);

/// Whether something may be fetched from there: over https, or over plain http from this computer.
bool isFetchable(const QUrl &url);

} // namespace Kestrune
