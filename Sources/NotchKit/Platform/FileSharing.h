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

/// What can be sent files now.
struct SharingDevices
{
    bool served = false; ///< A sharing service runs.
    QList<SharingDevice> devices;

    bool operator==(const SharingDevices &) const = default;
};

/// Hands files to the user's other devices. Main thread only; nothing here waits.
class FileSharing
{
public:
    virtual ~FileSharing() = default;

    /// The devices that can be sent files now, by name. The future always finishes, within seconds; no
    /// service is started for it.
    virtual QFuture<SharingDevices> devices() = 0;

    /// Sends local files to the device of that identifier. The future always finishes, within half a minute,
    /// with whether the service took them all. How the transfer ends is for the service to tell.
    virtual QFuture<bool> send(const QString &device, const QList<QUrl> &files) = 0;
};

} // namespace Kestrune
