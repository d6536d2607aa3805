#pragma once

#include "ArrivingPackage.h"
#include "Async/Worker.h"
#include "ReleaseFeed.h"

namespace Kestrune {

/// The releases that the owner of these keys signs.
class SignedReleases : public Releases
{
public:
    /// Packages are kept in the folder `cache`, which is this object's alone.
    SignedReleases(MakerKeys keys, QString cache)
        : m_keys(std::move(keys))
        , m_cache(std::move(cache))
    {}

    std::variant<Release, FeedFault> read(const QByteArray &feed) const override;
    QFuture<bool> holds(const Release &release) override;
    std::shared_ptr<BodySink> receive(const Release &release) override;
    QFuture<Kept> keep(bool isWhole) override;
    QUrl file(const Release &release) const override;

private:
    MakerKeys m_keys;
    QString m_cache;
    std::shared_ptr<ArrivingPackage> m_arriving;
    Worker m_worker{"updates"};
};

} // namespace Kestrune
