#pragma once

#include "ReleaseFeed.h"

namespace Kestrune {

/// The folder of the packages that were fetched: one at a time, and only what the makers signed. Blocks; any
/// thread.
class PackageStore
{
public:
    using Kept = Releases::Kept;

    PackageStore(QString folder, ReleaseKey key);

    QString path(const Release &release) const;

    /// Whether the release's package is there, whole and as it was signed.
    bool holds(const Release &release) const;

    /// Takes in a package whose signature is right, in place of all others.
    Kept keep(const Release &release, const QByteArray &package) const;

private:
    QString m_folder;
    ReleaseKey m_key;
};

} // namespace Kestrune
