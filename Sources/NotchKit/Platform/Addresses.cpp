#include "Addresses.h"

#include <QHostAddress>
#include <QUrl>

namespace Kestrune {

bool isLoopback(const QUrl &url) { return QHostAddress(url.host()).isLoopback(); }

bool isFetchable(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("https") ||
            (url.scheme() == QLatin1String("http") && isLoopback(url)));
}

} // namespace Kestrune
