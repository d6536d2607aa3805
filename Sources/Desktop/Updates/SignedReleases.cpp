#include "SignedReleases.h"

#include "PackageFile.h"

#include <QDir>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kLongest = 2min; // Packages are large, and so may be the disk's queue.

bool isKept(const QString &path, const Release &release)
{
    PackageFolder folder;
    QFile file;
    return folder.open(path) && folder.openFile(file, release.fileName()) && isPackage(file, release);
}

} // namespace

std::variant<Release, FeedFault> SignedReleases::read(const QByteArray &feed) const
{
    return readReleaseFeed(feed, m_keys);
}

QFuture<bool> SignedReleases::holds(const Release &release)
{
    return m_worker.run(kLongest, [cache = m_cache, release] { return isKept(cache, release); });
}

std::shared_ptr<BodySink> SignedReleases::receive(const Release &release)
{
    m_arriving = std::make_shared<ArrivingPackage>(m_cache, release);
    return m_arriving;
}

QFuture<Releases::Kept> SignedReleases::keep(bool isWhole)
{
    const auto package = std::exchange(m_arriving, nullptr);
    if (!package)
        return answered(Kept::notFetched);
    return m_worker.run(kLongest, [package, isWhole] { return package->keep(isWhole); });
}

QUrl SignedReleases::file(const Release &release) const
{
    return QUrl::fromLocalFile(QDir(m_cache).filePath(release.fileName()));
}

} // namespace Kestrune
