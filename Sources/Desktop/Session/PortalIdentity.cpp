#include "PortalIdentity.h"

#include "Desktop/Bus/BusCall.h"
#include "Log.h"

namespace Kestrune {

namespace {

constexpr int kIntroductionTimeout = 10'000; // ms, for a portal that the call starts.

QString portalService() { return QStringLiteral("org.freedesktop.portal.Desktop"); }

} // namespace

PortalIdentity::PortalIdentity(const QDBusConnection &bus)
    : m_bus(bus)
    , m_watcher(portalService(), bus, QDBusServiceWatcher::WatchForRegistration)
{
    if (!m_bus.isConnected())
        return;
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &PortalIdentity::introduce);
    introduce();
}

void PortalIdentity::introduce()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        portalService(), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.host.portal.Registry"), QStringLiteral("Register"));
    call << program() << QVariantMap();
    callBus(m_bus, call, kIntroductionTimeout, this, [](const QDBusMessage &reply) {
        // It takes a name once for a connection, and that of an installed desktop entry only.
        if (reply.type() == QDBusMessage::ErrorMessage)
            qCInfo(sessionLog, "the portal does not take the name: %s", qUtf8Printable(reply.errorName()));
    });
}

} // namespace Kestrune
