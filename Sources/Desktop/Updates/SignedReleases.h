#pragma once

#include "Async/Worker.h"
#include "PackageStore.h"

namespace Kestrune {

/// The releases that the owner of one key signs.
class SignedReleases : public Releases
{
public:
    /// Packages are kept in the folder `cache`, which is this object's alone.
    SignedReleases(const ReleaseKey &key, const QString &cache)
        : m_key(key)
        , m_store(cache, key)
    {}

    std::variant<Release, FeedFault> read(const QByteArray &feed) const override;
    QFuture<bool> holds(const Release &release) override;
    QFuture<Kept> keep(const Release &release, const QByteArray &package) override;
    QUrl file(const Release &release) const override;

private:
    ReleaseKey m_key;
    PackageStore m_store;
    Worker m_worker{"updates"};
};

} // namespace Kestrune
