#pragma once

#include "NotchKit/Platform/NetworkReturn.h"

#include <QDBusConnection>

namespace Kestrune {

/// The network's return as whoever manages it tells: NetworkManager on the system bus, and the desktop portal
/// on the session bus, which watches the routes where there is no NetworkManager. Nobody is asked before
/// something has changed, and nothing here waits.
class BusNetworkReturn : public NetworkReturn
{
    Q_OBJECT

public:
    BusNetworkReturn(const QDBusConnection &session, const QDBusConnection &system);

private Q_SLOTS:
    void managerChanged(uint state);
    void portalChanged();

private:
    void tell(const char *who);

    QDBusConnection m_session;
    QDBusConnection m_system;
};

} // namespace Kestrune
