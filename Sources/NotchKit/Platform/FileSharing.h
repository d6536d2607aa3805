#pragma once

#include <QFuture>
#include <QList>
#include <QString>
#include <QUrl>

namespace Kestrune {

/// Another device of the user's that takes files.
struct SharingDevice
{
    QString id;
    QString name; ///< What its owner calls it.

    bool operator==(const SharingDevice &) const = default;
};

/// Hands files to the user's other devices. Main thread only; nothing here waits.
class FileSharing
{
public:
    virtual ~FileSharing() = default;

    /// The devices that can be sent files now, by name. The future always finishes, within seconds, with an
    /// empty list where no sharing service runs; none is started for it.
    virtual QFuture<QList<SharingDevice>> devices() = 0;

    /// Sends local files to the device of that identifier. Nobody is told how it ends: the service does that.
    virtual void send(const QString &device, const QList<QUrl> &files) = 0;
};

} // namespace Kestrune
