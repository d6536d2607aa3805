#pragma once

#include "NotchKit/Platform/HttpClient.h"
#include "NotchKit/Platform/Releases.h"
#include "PackageFolder.h"

#include <mutex>

namespace Kestrune {

/// A release's package on its way to the disk. Blocks; any thread.
class ArrivingPackage : public BodySink
{
public:
    /// It goes into a fresh folder of that path.
    ArrivingPackage(QString folder, Release release);

    bool take(const QByteArray &piece) override;

    /// The end of it: gives it its name if it came as a whole and is what was signed, else removes it. The
    /// check reads from the very file that was written, which cannot be written any more afterwards.
    Releases::Kept keep(bool isWhole);

private:
    bool open();
    Releases::Kept check(bool isWhole);

    const QString m_path;
    const Release m_release;
    std::mutex m_mutex;
    PackageFolder m_folder;
    QFile m_file;
    bool m_isBroken = false; ///< The disk did not take it all.
};

} // namespace Kestrune
