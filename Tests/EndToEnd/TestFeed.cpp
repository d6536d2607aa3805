#include "App/FeedSource.h"

namespace Kestrune {

/// The tests' copy of the program follows the feed that a test names.
FeedSource FeedSource::ofProgram()
{
    return {QUrl(qEnvironmentVariable("KESTRUNE_FEED"), QUrl::StrictMode), qgetenv("KESTRUNE_FEED_KEY"),
            qgetenv("KESTRUNE_FEED_OFFLINE_KEY")};
}

} // namespace Kestrune
