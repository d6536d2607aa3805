#include "EndToEnd/PrivateBus.h"

#include "EndToEnd/Waiting.h"
#include "Support/TestRegistry.h"

// None of the machine's own folders of services: nothing starts on this bus unasked.
constexpr auto busConfiguration = R"(<busconfig>
  %1<type>session</type><listen>unix:tmpdir=/tmp</listen><auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/>
  </policy>
</busconfig>)";

PrivateBus::PrivateBus(QProcessEnvironment &environment, const QString &folder, const QString &services)
    : m_daemon(environment)
{
    const QString configuration = folder + u"/bus.conf"_s;
    const QString started = services.isEmpty() ? QString() : u"<servicedir>%1</servicedir>"_s.arg(services);
    const QByteArray text = QString::fromLatin1(busConfiguration).arg(started).toUtf8();
    if (!writeFile(configuration, text))
        qFatal("the bus could not be configured");
    m_daemon.launch(u"dbus-daemon"_s,
                    {u"--config-file"_s, configuration, u"--print-address"_s, u"--nofork"_s});
    if (!waitUntil([&] { return m_daemon.canReadLine(); }))
        qFatal("the bus did not start");
    m_address = QString::fromLatin1(m_daemon.readLine().trimmed());
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_address);
    m_connection = QDBusConnection::connectToBus(m_address, m_address);
    if (!m_connection.isConnected())
        qFatal("the bus does not answer");
}

PrivateBus::~PrivateBus() { QDBusConnection::disconnectFromBus(m_address); }
