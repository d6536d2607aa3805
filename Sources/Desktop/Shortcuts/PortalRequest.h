#pragma once

#include "Async/Pledge.h"
#include "PortalWire.h"

#include <QObject>

namespace Kestrune {

/// What a request to the portal came to.
struct PortalAnswer
{
    std::optional<uint> response =
        {}; ///< 0 is yes; nothing when the portal refused to be asked, or is silent.
    QVariantMap results = {};
};

/// A call of the portal whose answer comes as a signal later. It goes by itself once it has been answered.
class PortalRequest : public QObject
{
    Q_OBJECT

public:
    /// `portal` is the unique name of the portal that is asked.
    PortalRequest(const QDBusConnection &bus, const QString &portal, QObject *parent);

    /// A word that no other request or session has.
    static QString makeToken();

    /// Once: calls the method of the shortcuts' interface with these arguments and, after them, the options.
    QFuture<PortalAnswer> send(const QString &method, QVariantList arguments, QVariantMap options,
                               std::chrono::milliseconds reply, std::chrono::milliseconds answer);

    /// Nobody wants the session any longer that is being made: it is closed once it is there.
    void forget() { m_forgotten = true; }

    /// Ends a session.
    static void closeSession(const QDBusConnection &bus, const QString &portal, const QString &session);
    /// The session that was made, or nothing.
    static QString session(const PortalAnswer &answer);

private Q_SLOTS:
    void takeResponse(uint response, const QVariantMap &results);

private:
    void finish(const PortalAnswer &answer);

    QDBusConnection m_bus;
    QString m_portal;
    QString m_method;
    Pledge<PortalAnswer> m_pledge;
    bool m_forgotten = false;
    bool m_finished = false;
};

} // namespace Kestrune
