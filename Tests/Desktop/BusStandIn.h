#pragma once

#include "EndToEnd/PrivateBus.h"
#include "EndToEnd/Waiting.h"
#include "Support/TestRegistry.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>

/// The stand-in of one service on a bus, which records every call that it gets.
struct ServiceStandIn : QDBusVirtualObject
{
    /// A reply, or nothing to let the caller wait.
    using Answer = std::function<std::optional<QDBusMessage>(const QDBusMessage &)>;

    ServiceStandIn(const QString &bus, const QString &service)
        : m_service(service)
        , m_name(bus + service)
        , m_connection(QDBusConnection::connectToBus(bus, m_name))
    {
        m_connection.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
    }
    ~ServiceStandIn() override
    {
        // A call that has not been delivered yet must not outlive the connection that it came over.
        m_connection.unregisterObject(QStringLiteral("/"), QDBusConnection::UnregisterTree);
        QCoreApplication::removePostedEvents(this);
        QDBusConnection::disconnectFromBus(m_name);
    }
    Q_DISABLE_COPY_MOVE(ServiceStandIn)

    /// The service appears on the bus.
    bool appear(Answer answer)
    {
        m_answer = std::move(answer);
        return m_connection.registerService(m_service);
    }

    /// It goes, and its name with it.
    bool leave() { return m_connection.unregisterService(m_service); }

    void send(const QDBusMessage &signal) { m_connection.send(signal); }
    void signal(const QString &path, const QString &interface, const QString &member,
                const QVariantList &arguments)
    {
        QDBusMessage signal = QDBusMessage::createSignal(path, interface, member);
        signal.setArguments(arguments);
        send(signal);
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        calls.append(message);
        if (const auto reply = m_answer(message))
            connection.send(*reply);
        return true;
    }

    /// "path interface.member" of every call, in their order.
    QStringList called() const
    {
        return each(calls, [](const QDBusMessage &call) {
            return QStringLiteral("%1 %2.%3").arg(call.path(), call.interface(), call.member());
        });
    }

    QList<QDBusMessage> calls;

private:
    QString m_service;
    QString m_name;
    QDBusConnection m_connection;
    Answer m_answer;
};

/// A session bus of a test's own.
struct StandInBus
{
    QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    PrivateBus bus{environment, folder.path()};
};

/// Such a bus with one service on it.
class BusStandIn : private StandInBus, public ServiceStandIn
{
public:
    explicit BusStandIn(const QString &service)
        : ServiceStandIn(StandInBus::bus.address(), service)
    {}

    /// The bus as the adapter under test sees it.
    QDBusConnection bus() const { return StandInBus::bus.connection(); }

    QString address() const { return StandInBus::bus.address(); }
};
