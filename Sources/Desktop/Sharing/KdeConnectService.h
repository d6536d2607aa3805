#pragma once

#include "NotchKit/Platform/FileSharing.h"

#include <QDBusConnection>
#include <QObject>

#include <memory>

namespace Kestrune {

struct DeviceSearch;

/// KDE Connect's service on the session bus.
class KdeConnectService
{
public:
    explicit KdeConnectService(const QDBusConnection &bus)
        : m_bus(bus)
    {}

    /// Adds the devices that take files to what `search` finds.
    void search(const std::shared_ptr<DeviceSearch> &search);

    /// FileSharing::send.
    QFuture<bool> send(const QString &device, const QList<QUrl> &files);

private:
    void keepIfItTakesFiles(const SharingDevice &device, const std::shared_ptr<DeviceSearch> &search);

    QDBusConnection m_bus;
    QObject m_answers; ///< Ends the calls that are under way with this object.
};

} // namespace Kestrune
