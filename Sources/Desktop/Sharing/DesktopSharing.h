#pragma once

#include "GsConnectService.h"
#include "KdeConnectService.h"
#include "NotchKit/Platform/FileSharing.h"

namespace Kestrune {

/// Sends files to the devices that are paired with this one, over the service that runs: KDE Connect or
/// GSConnect.
class DesktopSharing : public FileSharing
{
public:
    explicit DesktopSharing(const QDBusConnection &bus)
        : m_kdeConnect(bus)
        , m_gsConnect(bus)
    {}

    QFuture<SharingDevices> devices() override;
    QFuture<bool> send(const QString &device, const QList<QUrl> &files) override;

private:
    KdeConnectService m_kdeConnect;
    GsConnectService m_gsConnect;
};

} // namespace Kestrune
