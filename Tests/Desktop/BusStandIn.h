#pragma once

#include "EndToEnd/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QTemporaryDir>

#include <functional>
#include <optional>

/// A session bus with the stand-in of one service on it, which records every call that it gets.
class BusStandIn : public QDBusVirtualObject
{
public:
    /// A reply, or nothing to let the caller wait.
    using Answer = std::function<std::optional<QDBusMessage>(const QDBusMessage &)>;

    explicit BusStandIn(const QString &service)
        : m_service(service)
        , m_connection(QDBusConnection::connectToBus(m_bus.address(), service))
    {
        m_connection.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
    }
    ~BusStandIn() override { QDBusConnection::disconnectFromBus(m_service); }
    Q_DISABLE_COPY_MOVE(BusStandIn)

    /// The service appears on the bus.
    bool appear(Answer answer)
    {
        m_answer = std::move(answer);
        return m_connection.registerService(m_service);
    }

    /// The bus as the adapter under test sees it.
    QDBusConnection bus() const { return m_bus.connection(); }

    QString address() const { return m_bus.address(); }

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
        QStringList names;
        for (const QDBusMessage &call : calls)
            names.append(call.path() + QLatin1Char(' ') + call.interface() + QLatin1Char('.') +
                         call.member());
        return names;
    }

    QList<QDBusMessage> calls;

private:
    QTemporaryDir m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    PrivateBus m_bus{m_environment, m_folder.path()};
    QString m_service;
    QDBusConnection m_connection;
    Answer m_answer;
};
