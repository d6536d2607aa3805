#pragma once

#include "NotchKit/Platform/FileSharing.h"

#include <QDBusConnection>
#include <QObject>

#include <memory>

namespace Kestrune {

struct DeviceSearch;

/// The part of GNOME's desktop that speaks KDE Connect's protocol: its devices are objects on the bus with
/// actions of GApplication's kind (https://wiki.gnome.org/Projects/GLib/GApplication/DBusAPI).
class GsConnectService
{
public:
    explicit GsConnectService(const QDBusConnection &bus)
        : m_bus(bus)
    {}

    /// Whether the device of that identifier, which is its object's path, is one of this service.
    static bool isOne(const QString &device) { return device.startsWith(QLatin1Char('/')); }

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
