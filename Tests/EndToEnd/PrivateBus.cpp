#include "EndToEnd/PrivateBus.h"

#include "EndToEnd/Waiting.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

// No folders of services: nothing of the machine's own starts on this bus.
constexpr auto busConfiguration = R"(<busconfig>
  <type>session</type><listen>unix:tmpdir=/tmp</listen><auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/>
  </policy>
</busconfig>)";

} // namespace

PrivateBus::PrivateBus(QProcessEnvironment &environment, const QString &folder)
    : m_daemon(environment)
{
    QFile configuration(folder + u"/bus.conf"_s);
    if (!configuration.open(QFile::WriteOnly) || configuration.write(busConfiguration) < 0)
        qFatal("the bus could not be configured");
    configuration.close();
    m_daemon.launch(u"dbus-daemon"_s,
                    {u"--config-file"_s, configuration.fileName(), u"--print-address"_s, u"--nofork"_s});
    if (!waitUntil([&] { return m_daemon.canReadLine(); }))
        qFatal("the bus did not start");
    m_address = QString::fromLatin1(m_daemon.readLine().trimmed());
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_address);
    m_connection = QDBusConnection::connectToBus(m_address, m_address);
    if (!m_connection.isConnected())
        qFatal("the bus does not answer");
}

PrivateBus::~PrivateBus() { QDBusConnection::disconnectFromBus(m_address); }
