#include "FeedSource.h"

namespace Kestrune {

/// What the build was told, and nothing that anybody can set afterwards.
FeedSource FeedSource::ofProgram()
{
    const QUrl address(QStringLiteral(KESTRUNE_FEED_URL), QUrl::StrictMode);
    if (address.scheme() != QLatin1String("https"))
        return {};
    return {address, KESTRUNE_FEED_KEY, KESTRUNE_FEED_OFFLINE_KEY};
}

} // namespace Kestrune
