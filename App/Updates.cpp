#include "Updates.h"

#include "Desktop/Updates/SignedReleases.h"
#include "NotchKit/Updates/FeedUpdater.h"
#include "NotchKit/Updates/PackagedUpdater.h"

#include <QStandardPaths>

namespace Kestrune {

std::unique_ptr<Updater> makeUpdater(const FeedSource &feed, const Platform &platform)
{
    const auto everyday = ReleaseKey::fromBase64(feed.key);
    const auto offline = ReleaseKey::fromBase64(feed.offlineKey);
    const auto version = SemanticVersion::parse(QStringLiteral(KESTRUNE_VERSION));
    if (feed.address.isEmpty() || !everyday || !offline || !version)
        return std::make_unique<PackagedUpdater>();
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                          QStringLiteral("/kestrune/updates");
    return std::make_unique<FeedUpdater>(
        FeedUpdater::Source{feed.address, *version},
        std::make_unique<SignedReleases>(MakerKeys{*everyday, *offline}, cache), platform);
}

} // namespace Kestrune
