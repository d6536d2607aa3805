#include "Updates.h"

#include "Desktop/Updates/SignedReleases.h"
#include "NotchKit/Platform/Addresses.h"
#include "NotchKit/Updates/FeedUpdater.h"
#include "NotchKit/Updates/PackagedUpdater.h"

#include <QStandardPaths>

namespace Kestrune {

namespace {

struct Feed
{
    QUrl address;
    std::optional<ReleaseKey> key;
};

Feed feedOf(const QString &address, const QByteArray &key)
{
    return {QUrl(address, QUrl::StrictMode), ReleaseKey::fromBase64(key)};
}

/// The one for tests, else the one of the build.
Feed findFeed()
{
    const Feed local = feedOf(qEnvironmentVariable("KESTRUNE_FEED"), qgetenv("KESTRUNE_FEED_KEY"));
    if (isLoopback(local.address))
        return local;
    return feedOf(QStringLiteral(KESTRUNE_FEED_URL), KESTRUNE_FEED_KEY);
}

} // namespace

std::unique_ptr<Updater> makeUpdater(const Platform &platform)
{
    const Feed feed = findFeed();
    const auto version = SemanticVersion::parse(QStringLiteral(KESTRUNE_VERSION));
    if (feed.address.isEmpty() || !feed.key || !version)
        return std::make_unique<PackagedUpdater>();
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                          QStringLiteral("/kestrune/updates");
    return std::make_unique<FeedUpdater>(FeedUpdater::Source{feed.address, *version},
                                         std::make_unique<SignedReleases>(*feed.key, cache), platform);
}

} // namespace Kestrune
