#include "BusNetworkReturn.h"

#include "Desktop/Bus/BusCall.h"

#include <QLoggingCategory>
#include <QVariantMap>

namespace Kestrune {

namespace {

Q_LOGGING_CATEGORY(networkLog, "kestrune.network", QtWarningMsg)

constexpr int kLongest = 5000; // ms

constexpr uint kManagerReachesSite = 60; // NM_STATE_CONNECTED_SITE; NM_STATE_CONNECTED_GLOBAL is 70.

QString manager() { return QStringLiteral("org.freedesktop.NetworkManager"); }
QString portal() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
QString portalPath() { return QStringLiteral("/org/freedesktop/portal/desktop"); }
QString monitor() { return QStringLiteral("org.freedesktop.portal.NetworkMonitor"); }

} // namespace

BusNetworkReturn::BusNetworkReturn(const QDBusConnection &session, const QDBusConnection &system)
    : m_session(session)
    , m_system(system)
{
    if (m_system.isConnected())
        m_system.connect(manager(), QStringLiteral("/org/freedesktop/NetworkManager"), manager(),
                         QStringLiteral("StateChanged"), this, SLOT(managerChanged(uint)));
    if (m_session.isConnected())
        m_session.connect(portal(), portalPath(), monitor(), QStringLiteral("changed"), this,
                          SLOT(portalChanged()));
}

void BusNetworkReturn::managerChanged(uint state)
{
    if (state >= kManagerReachesSite)
        tell("NetworkManager");
}

void BusNetworkReturn::portalChanged()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(portal(), portalPath(), monitor(), QStringLiteral("GetAvailable"));
    call.setAutoStartService(false);
    callBus(m_session, call, kLongest, this, [this](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ReplyMessage && reply.arguments().value(0).toBool())
            tell("the portal");
    });
}

void BusNetworkReturn::tell(const char *who)
{
    qCInfo(networkLog, "%s: the network is there", who);
    Q_EMIT returned();
}

} // namespace Kestrune
