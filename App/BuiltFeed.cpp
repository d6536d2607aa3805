#include "FeedSource.h"

namespace Kestrune {

/// What the build was told, and nothing that anybody can set afterwards.
FeedSource FeedSource::ofProgram()
{
    const QUrl address(QStringLiteral(KESTRUNE_FEED_URL), QUrl::StrictMode);
    return address.scheme() == QLatin1String("https") ? FeedSource{address, KESTRUNE_FEED_KEY} : FeedSource{};
}

} // namespace Kestrune
