#include "SignedReleases.h"

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kLongest = 2min; // Packages are large, and so may be the disk's queue.

} // namespace

std::variant<Release, FeedFault> SignedReleases::read(const QByteArray &feed) const
{
    return readReleaseFeed(feed, m_key);
}

QFuture<bool> SignedReleases::holds(const Release &release)
{
    return m_worker.run(kLongest, [store = m_store, release] { return store.holds(release); });
}

QFuture<Releases::Kept> SignedReleases::keep(const Release &release, const QByteArray &package)
{
    return m_worker.run(kLongest,
                        [store = m_store, release, package] { return store.keep(release, package); });
}

QUrl SignedReleases::file(const Release &release) const { return QUrl::fromLocalFile(m_store.path(release)); }

} // namespace Kestrune
